// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/caselle.h"
#include "e2e/support/scenario.h"

namespace planner::e2e {

/// A scenario in which the planner is used through its visible controls, found by their names.
class ScenarioAccessibile : public Scenario {
protected:
    Environment plannerEnvironment() const override { return bus.environment(); }

    /// Writes the request, and shows the planner that answers it: a new one, or the one that waits for it.
    void request(const std::string& bytes);
    /// Waits for the planner's window with this title.
    void lookAt(const std::string& title);

    /// Clicks on the cell, and waits for what the planner says of it.
    void pick(const Casella& casella, const Clic& clic = {}) const;
    void press(const std::string& name) const { bus.press(*m_planner, name); }
    void click(const std::string& name) const { bus.click(*m_planner, name); }
    /// Presses Tab, or other keys, until the control of that name has the focus; false when it never has.
    bool tabTo(const std::string& name, const std::string& keys = "Tab") const;

    /// True when the planner comes to show nothing on the screen and to use no processor time.
    bool comesToWait();
    Programma& planner() const { return *m_planner; }
    /// The window looked at last.
    const Finestra& finestra() const { return *m_window; }

    const Accessibilita bus{schermo};

private:
    Programma* m_planner = nullptr; // once there was a request
    std::optional<Finestra> m_window;
};

} // namespace planner::e2e
