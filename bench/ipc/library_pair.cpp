// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "library_pair.h"

#include "TavTermIPC.h"

#include <stdexcept>
#include <utility>

namespace planner::bench {
namespace {

void require(int done) {
    if (done == 0) {
        throw std::runtime_error("an event call failed");
    }
}

} // namespace

LibraryPair::LibraryPair(std::string name) : m_name(std::move(name)) {}

void LibraryPair::openNear() {
    require(TvIpcCreazioneEvento(m_name.c_str()));
}

void LibraryPair::closeNear() {
    require(TvIpcRimozioneEvento(m_name.c_str()));
}

void LibraryPair::signalFar() {
    require(TvIpcSetEvento(m_name.c_str()));
}

void LibraryPair::waitNear() {
    require(TvIpcWaitEvento(m_name.c_str()));
}

void LibraryPair::signalNear() {
    require(TvIpcSetEvento(m_name.c_str()));
}

void LibraryPair::waitFar() {
    require(TvIpcWaitEvento(m_name.c_str()));
}

} // namespace planner::bench
