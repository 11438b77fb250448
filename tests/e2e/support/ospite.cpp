// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/ospite.h"

#include "TavTermIPC.h"
#include "e2e/support/deadline.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace planner::e2e {

namespace {

std::string waitAndRead(const std::string& evento, const std::string& path) {
    if (TvIpcWaitEvento(evento.c_str()) == 0) {
        throw std::runtime_error("the wait for the event failed");
    }
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

Ospite::Ospite(std::string evento, std::string transitPath)
    : m_evento(std::move(evento)), m_transitPath(std::move(transitPath)) {}

void Ospite::startWaiting() {
    std::packaged_task<std::string()> wait(
        [evento = m_evento, path = m_transitPath] { return waitAndRead(evento, path); });
    m_answer = wait.get_future();
    // Nothing can end a wait that hangs; it must not hold the test up.
    std::thread(std::move(wait)).detach();
}

bool Ospite::isTold() const {
    return m_answer.valid() && m_answer.wait_for(std::chrono::seconds{0}) == std::future_status::ready;
}

std::string Ospite::answer() {
    if (!m_answer.valid()) {
        startWaiting();
    }
    if (m_answer.wait_for(Deadline) != std::future_status::ready) {
        throw std::runtime_error("the host is not told of an answer");
    }
    return m_answer.get();
}

bool Ospite::signal() const {
    return TvIpcSetEvento(m_evento.c_str()) != 0;
}

} // namespace planner::e2e
