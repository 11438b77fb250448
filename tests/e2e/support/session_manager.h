// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/processo.h"

namespace planner::e2e {

/// A session manager of one client. It and its socket go with the object.
class SessionManager {
public:
    explicit SessionManager(const Environment& environment);
    ~SessionManager();
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    /// The address that the client finds it by, for SESSION_MANAGER.
    const std::string& address() const { return m_address; }

    /// Asks the client to get ready for a log-out, and then to end.
    void logOut() const;
    /// Asks the client to get ready for a log-out, and then tells it that the user has called it off.
    void callOffLogOut() const;

    /// The next thing that the client does: "registered", "restart N", its restart style hint, "saved", when
    /// it is ready for a log-out, "gone". Throws at the deadline.
    std::string next() { return m_process.readLine(); }
    /// Waits until the client does that.
    void await(const std::string& deed);

private:
    Processo m_process;
    std::string m_address;
};

} // namespace planner::e2e
