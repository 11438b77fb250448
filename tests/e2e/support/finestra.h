// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/immagine.h"
#include "e2e/support/schermo.h"

#include <optional>
#include <utility>

namespace planner::e2e {

/// A window on the screen, acted upon as a user does: with real keys and a real mouse.
class Finestra {
public:
    /// The visible window of that process with that title, in whatever letter case; waits for it, and throws
    /// at the deadline.
    Finestra(const Schermo& schermo, const Processo& owner, const std::string& title);

    /// The same if it is on the screen at this moment.
    static std::optional<Finestra> find(const Schermo& schermo, const Processo& owner,
                                        const std::string& title);
    /// How many windows the process shows at this moment, menus among them.
    static int count(const Schermo& schermo, const Processo& owner);
    /// True when it shows any with a title.
    static bool any(const Schermo& schermo, const Processo& owner);

    void activate() const;
    /// Activates the window and presses a key, as in "Escape", "Return", "ctrl+q".
    void press(const std::string& key) const;
    /// Activates the window and types letters, digits and blanks.
    void type(const std::string& text) const;
    /// Activates the window and clicks on a point of it, counted from its corner inside the frame.
    void click(int x, int y) const;

    std::string title() const;
    bool isVisible() const;
    bool isActive() const;
    /// Waits until the window is no longer on the screen; false at the deadline.
    bool disappears() const;

    /// Where the window stands on the screen, its frame included.
    Area frame() const;
    /// Asks the window manager for an inner size.
    void resize(int width, int height) const;
    Immagine picture() const;

private:
    Finestra(const Schermo& schermo, std::string id) : m_schermo(&schermo), m_id(std::move(id)) {}

    const Schermo* m_schermo;
    std::string m_id;
};

} // namespace planner::e2e
