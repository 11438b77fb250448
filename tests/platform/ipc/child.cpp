// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "child.h"

#include "support/end_child.h"

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace planner::ipctest {
namespace {

[[noreturn]] void runBody(const std::function<int()>& body) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    int code = 125;
    try {
        code = body();
    } catch (...) {
        code = 126;
    }
    test::endChild(code);
}

// The letter after the closing bracket of the thread's name.
bool isThreadAsleep(const std::filesystem::path& thread) {
    std::ifstream file(thread / "stat");
    std::string line;
    std::getline(file, line);
    const std::size_t bracket = line.rfind(')');
    return bracket != std::string::npos && bracket + 2 < line.size() && line.at(bracket + 2) == 'S';
}

bool isAsleep(pid_t pid, int threads) {
    std::error_code gone;
    int asleep = 0;
    for (const auto& thread :
         std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task", gone)) {
        if (!isThreadAsleep(thread.path())) {
            return false;
        }
        ++asleep;
    }
    return asleep >= threads;
}

} // namespace

Child::Child(const std::function<int()>& body) {
    std::fflush(stdout); // or a child that ends in the ordinary way would write it once more
    m_pid = fork();
    if (m_pid < 0) {
        throw std::runtime_error("cannot fork");
    }
    if (m_pid == 0) {
        runBody(body);
    }
}

Child::~Child() {
    kill();
}

bool Child::endsInTime() const {
    const int descriptor = static_cast<int>(syscall(SYS_pidfd_open, m_pid, 0));
    if (descriptor < 0) {
        return false;
    }
    pollfd waited{descriptor, POLLIN, 0};
    const int ready = poll(&waited, 1, static_cast<int>(std::chrono::milliseconds(DEADLINE).count()));
    close(descriptor);
    return ready == 1;
}

void Child::reap() {
    waitpid(m_pid, &m_status, 0);
    m_reaped = true;
}

std::optional<int> Child::exitCode() {
    if (!m_reaped) {
        if (!endsInTime()) {
            return std::nullopt;
        }
        reap();
    }
    return WIFEXITED(m_status) ? std::optional<int>(WEXITSTATUS(m_status)) : std::nullopt;
}

void Child::kill() {
    if (!m_reaped) {
        ::kill(m_pid, SIGKILL);
        reap();
    }
}

void Child::stop() {
    ::kill(m_pid, SIGSTOP);
    waitpid(m_pid, &m_status, WUNTRACED);
}

void Child::goOn() const {
    ::kill(m_pid, SIGCONT);
}

bool Child::fallsAsleep(int threads) const {
    // Twice, for one thread may have woken another between the two looks.
    return comesTrue([&] { return isAsleep(m_pid, threads) && isAsleep(m_pid, threads); });
}

bool comesTrue(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + DEADLINE;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
}

int openDescriptors() {
    int count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        ++count;
    }
    return count;
}

} // namespace planner::ipctest
