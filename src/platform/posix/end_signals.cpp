// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/end_signals.h"

#include <csignal>
#include <sys/signalfd.h>

namespace planner {

namespace {

bool isIgnored(int signal) {
    struct sigaction action {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

sigset_t endSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        if (!isIgnored(signal)) {
            sigaddset(&set, signal);
        }
    }
    return set;
}

} // namespace

FileDescriptor holdEndSignals() {
    const sigset_t set = endSignals();
    FileDescriptor descriptor(::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
    if (descriptor.get() >= 0) {
        ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    }
    return descriptor;
}

void failBeyondFileLimit() {
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace planner
