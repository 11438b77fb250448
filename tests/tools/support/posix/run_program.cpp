// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "tools/support/run_program.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace planner::toolstest {

namespace {

constexpr std::chrono::seconds Deadline{60};

struct Pipe {
    Pipe() {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("cannot make a pipe");
        }
    }
    ~Pipe() {
        ::close(ends[0]);
        closeWriteEnd();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    void closeWriteEnd() {
        if (ends[1] >= 0) {
            ::close(ends[1]);
            ends[1] = -1;
        }
    }
    std::array<int, 2> ends{-1, -1};
};

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

std::vector<std::string> fullEnvironment(const std::map<std::string, std::string>& additions) {
    std::vector<std::string> result;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text = *entry;
        if (!additions.contains(text.substr(0, text.find('=')))) {
            result.push_back(text);
        }
    }
    for (const auto& [name, value] : additions) {
        result.push_back(std::string(name).append("=").append(value));
    }
    return result;
}

pid_t spawn(const Run& what, const Pipe& output, const Pipe& errors) {
    std::vector<std::string> arguments{what.program};
    arguments.insert(arguments.end(), what.arguments.begin(), what.arguments.end());
    std::vector<std::string> environment = fullEnvironment(what.environment);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output.ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.ends[1], STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    pid_t pid = -1;
    const int error = ::posix_spawn(&pid, what.program.c_str(), &actions, &attributes,
                                    pointers(arguments).data(), pointers(environment).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        throw std::runtime_error("cannot start " + what.program);
    }
    return pid;
}

/// Appends what has come; false at the end of the stream.
bool drain(int descriptor, std::string& text) {
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
    if (count > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return count > 0;
}

/// Reads both streams to their ends; false when the deadline came first.
bool collect(const Run& what, pid_t pid, std::array<pollfd, 2> streams, RunResult& result) {
    const auto end = std::chrono::steady_clock::now() + Deadline;
    std::string interruptAfter = what.interruptAfter;
    while (streams[0].fd >= 0 || streams[1].fd >= 0) {
        const auto rest =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (rest.count() <= 0 ||
            ::poll(streams.data(), streams.size(), static_cast<int>(rest.count())) == 0) {
            return false;
        }
        for (pollfd& stream : streams) {
            std::string& text = &stream == &streams[0] ? result.output : result.errors;
            if (stream.fd >= 0 && stream.revents != 0 && !drain(stream.fd, text)) {
                stream.fd = -1;
            }
        }
        if (!interruptAfter.empty() && result.output.find(interruptAfter) != std::string::npos) {
            ::kill(pid, SIGTERM);
            interruptAfter.clear();
        }
    }
    return true;
}

} // namespace

RunResult run(const Run& what) {
    Pipe output;
    Pipe errors;
    const pid_t pid = spawn(what, output, errors);
    output.closeWriteEnd();
    errors.closeWriteEnd();
    RunResult result;
    result.inTime =
        collect(what, pid, {pollfd{output.ends[0], POLLIN, 0}, pollfd{errors.ends[0], POLLIN, 0}}, result);
    if (!result.inTime) {
        ::kill(-pid, SIGKILL);
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

} // namespace planner::toolstest
