// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/planner_process.h"

#include "planner_host/errors.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>

extern "C" { // this header of some C libraries does not say so itself
#include <sys/pidfd.h>
}

namespace planner {

namespace {

constexpr std::chrono::milliseconds TempoPerFinire{5000};

std::string causeText(int error) {
    switch (error) {
    case ENOENT:
        return "il file non c'è";
    case EACCES:
        return "il file non si può eseguire";
    default:
        return std::generic_category().message(error);
    }
}

/// The host keeps the signals that interrupt it blocked; the planner must not inherit that.
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

} // namespace

PlannerProcess::PlannerProcess(const std::filesystem::path& programma,
                               const std::vector<std::string>& argomenti) {
    std::vector<std::string> texts{programma.string()};
    texts.insert(texts.end(), argomenti.begin(), argomenti.end());
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    const int error = ::posix_spawn(&m_pid, texts.front().c_str(), nullptr, SpawnAttributes().get(),
                                    pointers.data(), environ);
    if (error != 0) {
        throw HostError(CodiceUscita::PlannerFallito,
                        "impossibile avviare il planner " + texts.front() + ": " + causeText(error));
    }
    m_handle = FileDescriptor(::pidfd_open(m_pid, 0));
    if (m_handle.get() < 0) {
        const int cause = errno;
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
        throw HostError(CodiceUscita::PlannerFallito,
                        "impossibile seguire il planner avviato: " + causeText(cause));
    }
}

PlannerProcess::~PlannerProcess() {
    terminate();
}

bool PlannerProcess::waitForEnd(std::chrono::milliseconds limit) {
    if (m_ended) {
        return true;
    }
    const auto until = std::chrono::steady_clock::now() + limit;
    int ready = 0;
    do {
        const auto rest =
            std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
        pollfd watched{m_handle.get(), POLLIN, 0};
        ready = ::poll(&watched, 1, static_cast<int>(std::max(rest, std::chrono::milliseconds{0}).count()));
    } while (ready < 0 && errno == EINTR);
    if (ready > 0) {
        reap();
    }
    return m_ended;
}

void PlannerProcess::reap() {
    siginfo_t info{};
    if (::waitid(P_PIDFD, static_cast<id_t>(m_handle.get()), &info, WEXITED) == 0) {
        m_ended = true;
        m_signalled = info.si_code != CLD_EXITED;
        m_status = info.si_status;
    }
}

void PlannerProcess::terminate() {
    if (waitForEnd(std::chrono::milliseconds{0})) {
        return;
    }
    ::pidfd_send_signal(m_handle.get(), SIGTERM, nullptr, 0);
    if (!waitForEnd(TempoPerFinire)) {
        ::pidfd_send_signal(m_handle.get(), SIGKILL, nullptr, 0);
        waitForEnd(TempoPerFinire);
    }
}

std::string PlannerProcess::descriviFine() const {
    return m_signalled ? "chiuso dal segnale " + std::to_string(m_status)
                       : "codice d'uscita " + std::to_string(m_status);
}

} // namespace planner
