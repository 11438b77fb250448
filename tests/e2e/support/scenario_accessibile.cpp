// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

namespace planner::e2e {

void ScenarioAccessibile::request(const std::string& bytes) {
    archivio.writeTransit(bytes);
    ospite.startWaiting();
    if (m_planner == nullptr) {
        m_planner = &startWithEvent();
    } else {
        EXPECT_TRUE(ospite.signal());
    }
}

void ScenarioAccessibile::lookAt(const std::string& title) {
    m_window = window(*m_planner, title);
    m_window->activate();
}

void ScenarioAccessibile::pick(const Casella& casella, const Clic& clic) const {
    bus.click(*m_planner, casella.cella, clic);
    bus.waitFor(*m_planner, casella.cella.nome); // now on the status line
}

bool ScenarioAccessibile::tabTo(const std::string& name, const std::string& keys) const {
    constexpr int stops = 30; // more than a window has
    for (int i = 0; i < stops; ++i) {
        const std::string before = bus.focused(*m_planner);
        if (before == name) {
            return true;
        }
        m_window->press(keys);
        comesTrue([&] { return bus.focused(*m_planner) != before; });
    }
    return false;
}

bool ScenarioAccessibile::comesToWait() {
    return m_window->disappears() && showsNoWindow(*m_planner) && m_planner->comesToSleep();
}

} // namespace planner::e2e
