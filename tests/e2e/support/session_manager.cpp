// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/session_manager.h"

#include <csignal>

namespace planner::e2e {

SessionManager::SessionManager(const Environment& environment)
    : m_process({SESSION_MANAGER_FILE}, environment), m_address(m_process.readLine()) {}

SessionManager::~SessionManager() {
    m_process.terminate(); // a killed one would leave its socket behind
}

void SessionManager::logOut() const {
    ::kill(m_process.pid(), SIGUSR1);
}

void SessionManager::callOffLogOut() const {
    ::kill(m_process.pid(), SIGUSR2);
}

void SessionManager::await(const std::string& deed) {
    while (next() != deed) {
    }
}

} // namespace planner::e2e
