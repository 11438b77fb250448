// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/host_ipc.h"

namespace planner {

/// The named event through the host's library.
class TavTermHostIpc : public HostIpc {
public:
    void TvIpcCreazioneEvento(const std::string& nome) override;
    void TvIpcSetEvento(const std::string& nome) override;
    void TvIpcWaitEvento(const std::string& nome) override;
    void TvIpcRimozioneEvento(const std::string& nome) override;
};

} // namespace planner
