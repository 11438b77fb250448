// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/processo.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace planner::e2e {

namespace {

using Clock = std::chrono::steady_clock;

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

std::vector<std::string> assignments(const Environment& environment) {
    std::vector<std::string> texts;
    for (const auto& [name, value] : environment) {
        texts.push_back(name + "=" + value);
    }
    return texts;
}

/// True when the descriptor becomes ready by the given moment.
bool becomesReady(int descriptor, Clock::time_point end) {
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    pollfd waited{descriptor, POLLIN, 0};
    return ::poll(&waited, 1, static_cast<int>(std::max<std::int64_t>(rest.count(), 0))) == 1;
}

pid_t spawn(std::vector<std::string> words, const Environment& environment, int output, Errors errors) {
    // The kernel ends the program with the test, also when the test is killed.
    words.insert(words.begin(), {"setpriv", "--pdeathsig", "KILL", "--"});
    std::vector<std::string> settings = assignments(environment);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    if (errors == Errors::Dropped) {
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    } else if (errors == Errors::InOutput) {
        posix_spawn_file_actions_adddup2(&actions, output, STDERR_FILENO);
    }
    pid_t pid = -1;
    const int error = ::posix_spawnp(&pid, words.front().c_str(), &actions, nullptr, pointers(words).data(),
                                     pointers(settings).data());
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        throw std::runtime_error("cannot start " + words.back());
    }
    return pid;
}

} // namespace

Environment plainEnvironment() {
    Environment environment{
        {"LANG", "C"},
        {"TZ", "XXX-" + std::to_string(HoursEast.count())},
        {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}, // or a bus would be started, and stay
    };
    for (const char* name : {"PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (const char* value = std::getenv(name)) {
            environment[name] = value;
        }
    }
    return environment;
}

void adoptOrphans() {
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

Processo::Processo(pid_t pid)
    : m_program("process " + std::to_string(pid)), m_pid(pid),
      m_pidDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0))) {}

Processo::Processo(std::vector<std::string> words, const Environment& environment, Errors errors)
    : m_program(words.front()) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("cannot make a pipe");
    }
    m_output = ends[0];
    m_pid = spawn(std::move(words), environment, ends[1], errors);
    ::close(ends[1]);
    m_pidDescriptor = static_cast<int>(::syscall(SYS_pidfd_open, m_pid, 0));
}

Processo::~Processo() {
    kill();
    ::close(m_pidDescriptor);
    ::close(m_output);
}

std::optional<int> Processo::exitCode(std::chrono::milliseconds within) {
    if (!m_exitCode && becomesReady(m_pidDescriptor, Clock::now() + within)) {
        int status = 0;
        ::waitpid(m_pid, &status, 0);
        m_exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    return m_exitCode;
}

bool Processo::readMore(Clock::time_point end) {
    if (!becomesReady(m_output, end)) {
        throw std::runtime_error(m_program + " writes nothing more");
    }
    std::array<char, 65536> buffer;
    const ssize_t count = ::read(m_output, buffer.data(), buffer.size());
    if (count > 0) {
        m_read.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return count > 0;
}

std::string Processo::readLine() {
    const auto end = Clock::now() + Deadline;
    std::size_t newline = m_read.find('\n');
    while (newline == std::string::npos) {
        if (!readMore(end)) {
            throw std::runtime_error(m_program + " ended before the expected line");
        }
        newline = m_read.find('\n');
    }
    std::string line = m_read.substr(0, newline);
    m_read.erase(0, newline + 1);
    return line;
}

std::string Processo::readToEnd() {
    const auto end = Clock::now() + Deadline;
    while (readMore(end)) {
    }
    return std::exchange(m_read, {});
}

void Processo::kill() {
    if (!m_exitCode) {
        ::kill(m_pid, SIGKILL);
        exitCode();
    }
}

void Processo::terminate() {
    if (!m_exitCode) {
        ::kill(m_pid, SIGTERM);
        exitCode();
    }
    kill();
}

Esito runTool(const std::vector<std::string>& words, const Environment& environment) {
    Processo tool(words, environment, Errors::Dropped);
    std::string output = tool.readToEnd();
    const auto code = tool.exitCode();
    if (!code) {
        throw std::runtime_error(words.front() + " does not end");
    }
    return {*code, std::move(output)};
}

} // namespace planner::e2e
