// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ping_pong.h"

#include "support/measure.h"

#include <csignal>
#include <exception>
#include <sched.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace planner::bench {
namespace {

constexpr int WarmUpRounds = 200;

std::vector<int> allowedProcessors() {
    cpu_set_t set;
    CPU_ZERO(&set);
    sched_getaffinity(0, sizeof set, &set);
    std::vector<int> allowed;
    for (int cpu = 0; cpu < CPU_SETSIZE; ++cpu) {
        if (CPU_ISSET(cpu, &set)) {
            allowed.push_back(cpu);
        }
    }
    return allowed;
}

// Runs the calling process on one processor while it lives, then where it could run before.
class Pinned {
public:
    explicit Pinned(int cpu) {
        sched_getaffinity(0, sizeof m_before, &m_before);
        cpu_set_t set;
        CPU_ZERO(&set);
        CPU_SET(static_cast<unsigned>(cpu), &set);
        sched_setaffinity(0, sizeof set, &set);
    }
    Pinned(const Pinned&) = delete;
    Pinned& operator=(const Pinned&) = delete;
    ~Pinned() { sched_setaffinity(0, sizeof m_before, &m_before); }

private:
    cpu_set_t m_before{};
};

void runFarEnd(PingPong& pair, int rounds) {
    pair.openFar();
    for (int i = 0; i < rounds; ++i) {
        pair.waitFar();
        pair.signalNear();
    }
}

[[noreturn]] void farProcess(PingPong& pair, int rounds, int cpu) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const Pinned pinned(cpu);
    int code = 0;
    try {
        runFarEnd(pair, rounds);
    } catch (const std::exception&) {
        code = 1;
    }
    _exit(code);
}

void runNearRounds(PingPong& pair, int rounds) {
    for (int i = 0; i < rounds; ++i) {
        pair.signalFar();
        pair.waitNear();
    }
}

double runNearEnd(PingPong& pair, int rounds) {
    constexpr double nsPerMicrosecond = 1000;
    runNearRounds(pair, WarmUpRounds);
    return timeOnce([&] { runNearRounds(pair, rounds); }) / nsPerMicrosecond / rounds;
}

void finish(pid_t child) {
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw std::runtime_error("the far end failed");
    }
}

} // namespace

bool hasTwoProcessors() {
    return allowedProcessors().size() >= 2;
}

double measureRoundTrip(PingPong& pair, int rounds, Placement placement) {
    const std::vector<int> allowed = allowedProcessors();
    if (allowed.empty()) {
        throw std::runtime_error("no processor to run on");
    }
    const int farCpu = placement == Placement::OneProcessor ? allowed.front() : allowed.back();
    const Pinned pinned(allowed.front());
    // An end that fails leaves the other one waiting for ever: then the alarm ends this process.
    alarm(60U + static_cast<unsigned>(rounds) / 1000U);
    pair.openNear();
    const pid_t child = fork();
    if (child < 0) {
        throw std::runtime_error("no second process");
    }
    if (child == 0) {
        farProcess(pair, rounds + WarmUpRounds, farCpu);
    }
    const double mean = runNearEnd(pair, rounds);
    finish(child);
    alarm(0);
    pair.closeNear();
    return mean;
}

} // namespace planner::bench
