// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/finestra.h"
#include "support/compiti.h"

#include <vector>

namespace planner::e2e {

/// The hands on the keyboard: what is pressed goes to the window that came last.
class Battitore {
public:
    /// Of the planner's windows; `prima` is the title of the one that they are in front of.
    Battitore(const Schermo& schermo, std::string prima) : m_schermo(&schermo), m_prima(std::move(prima)) {}

    /// Presses the key, or types the text; waits for the window that comes or goes. Throws at the deadline.
    void press(const Processo& planner, const test::Battuta& battuta);

private:
    Finestra inFront(const Processo& planner) const;

    const Schermo* m_schermo;
    std::string m_prima;
    std::vector<Finestra> m_aperte; // over it
};

/// The name that the tool of the keys has for a shortcut: "ctrl+Page_Down" for "Ctrl+PgDown".
std::string xKeys(std::string_view shortcut);

} // namespace planner::e2e
