// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/processo.h"
#include "support/temp_folder.h"

namespace planner::e2e {

/// The account that the host and the planner share: a home and a run-time folder of their own. This process,
/// being the host, takes the run-time folder over.
class Utente {
public:
    Utente();

    /// For the programs that the user runs.
    Environment environment() const;
    std::string home() const { return m_folder.path("home"); }
    std::string runtimeFolder() const { return m_folder.path("run"); }
    /// Where the events stand that the host and the planner share.
    std::string eventFolder() const { return runtimeFolder() + "/tavterm-ipc"; }

private:
    test::TempFolder m_folder;
};

} // namespace planner::e2e
