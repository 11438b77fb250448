// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/watch.h"

#include "planner_host/errors.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/signalfd.h>

namespace planner {

Interruzioni::Interruzioni() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaddset(&signals, signal);
    }
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    m_handle = FileDescriptor(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
}

void Interruzioni::check() const {
    signalfd_siginfo info{};
    if (::read(m_handle.get(), &info, sizeof info) == sizeof info) {
        const int signal = static_cast<int>(info.ssi_signo);
        throw HostError(128 + signal, "interrotto dal segnale " + std::to_string(signal));
    }
}

Sveglia attendi(int descriptor, int fine, const Interruzioni& interruzioni,
                std::optional<std::chrono::milliseconds> limit) {
    std::array<pollfd, 3> watched{pollfd{descriptor, POLLIN, 0},
                                  pollfd{fine, POLLIN, 0}, // poll() passes over -1
                                  pollfd{interruzioni.descriptor(), POLLIN, 0}};
    int count = 0;
    do {
        count = ::poll(watched.data(), watched.size(), limit ? static_cast<int>(limit->count()) : -1);
    } while (count < 0 && errno == EINTR);
    interruzioni.check();
    if (watched[0].revents != 0) {
        return Sveglia::Pronto;
    }
    return watched[1].revents != 0 ? Sveglia::PlannerFinito : Sveglia::TempoScaduto;
}

} // namespace planner
