// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/ipc/tavterm_host_ipc.h"

#include "platform/ipc/TavTermIPC.h"

namespace planner {

void TavTermHostIpc::TvIpcCreazioneEvento(const std::string& nome) {
    ::TvIpcCreazioneEvento(nome.c_str());
}

void TavTermHostIpc::TvIpcSetEvento(const std::string& nome) {
    ::TvIpcSetEvento(nome.c_str());
}

void TavTermHostIpc::TvIpcWaitEvento(const std::string& nome) {
    ::TvIpcWaitEvento(nome.c_str());
}

void TavTermHostIpc::TvIpcRimozioneEvento(const std::string& nome) {
    ::TvIpcRimozioneEvento(nome.c_str());
}

} // namespace planner
