// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace planner {

/// The four operations on the named event that the host and the planner share. Results are ignored: a
/// failure passes unnoticed, as the protocol has it.
class HostIpc {
public:
    virtual ~HostIpc() = default;
    virtual void TvIpcCreazioneEvento(const std::string& nome) = 0;
    virtual void TvIpcSetEvento(const std::string& nome) = 0;
    /// Blocks without time-out until the host signals.
    virtual void TvIpcWaitEvento(const std::string& nome) = 0;
    virtual void TvIpcRimozioneEvento(const std::string& nome) = 0;
};

} // namespace planner
