// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/scenario.h"
#include "e2e/support/session_manager.h"

namespace planner::e2e {

/// A scenario in which the planner is part of a desktop session.
class ScenarioInSession : public Scenario {
protected:
    Environment plannerEnvironment() const override;

    SessionManager session{utente.environment()};
};

} // namespace planner::e2e
