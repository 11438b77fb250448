// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_in_session.h"

namespace planner::e2e {

Environment ScenarioInSession::plannerEnvironment() const {
    Environment environment = Scenario::plannerEnvironment();
    environment["SESSION_MANAGER"] = session.address();
    return environment;
}

} // namespace planner::e2e
