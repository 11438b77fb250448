// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/child_process.h"

#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

extern "C" { // this header of some C libraries does not say so itself
#include <sys/pidfd.h>
}

namespace planner {

namespace {

/// Signals may be held back here; the child must not inherit that.
class SpawnAttributes {
public:
    SpawnAttributes() {
        sigset_t none;
        sigemptyset(&none);
        ::posix_spawnattr_init(&m_attributes);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK);
    }
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;

    const posix_spawnattr_t* get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes;
};

pid_t start(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> texts{program.string()};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    pid_t pid = -1;
    const int error = ::posix_spawn(&pid, texts.front().c_str(), nullptr, SpawnAttributes().get(),
                                    pointers.data(), environ);
    if (error != 0) {
        throw std::system_error(error, std::generic_category());
    }
    return pid;
}

} // namespace

ChildProcess::ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
    const pid_t pid = start(program, arguments);
    m_handle = ::pidfd_open(pid, 0);
    if (m_handle < 0) {
        const int cause = errno;
        ::kill(pid, SIGKILL);
        ::waitpid(pid, nullptr, 0);
        throw std::system_error(cause, std::generic_category());
    }
}

ChildProcess::~ChildProcess() {
    ::close(static_cast<int>(m_handle));
}

const std::optional<ProcessEnd>& ChildProcess::end() {
    siginfo_t info{};
    if (!m_end && ::waitid(P_PIDFD, static_cast<id_t>(m_handle), &info, WEXITED | WNOHANG) == 0 &&
        info.si_pid != 0) {
        m_end = {info.si_status, info.si_code != CLD_EXITED};
    }
    return m_end;
}

bool ChildProcess::askToEnd() const {
    return ::pidfd_send_signal(static_cast<int>(m_handle), SIGTERM, nullptr, 0) == 0;
}

void ChildProcess::kill() const {
    ::pidfd_send_signal(static_cast<int>(m_handle), SIGKILL, nullptr, 0);
}

} // namespace planner
