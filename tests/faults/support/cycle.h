// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/processo.h"
#include "support/temp_folder.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace planner::faults {

/// How host and planner find each other, and who is there first.
enum class Modo { HostWaits, HostComesLater, Polling };
inline constexpr Modo Modi[] = {Modo::HostWaits, Modo::HostComesLater, Modo::Polling};
std::string nameOf(Modo modo);

/// A system call of the planner that touches the office, and which one of its name it is, from 1.
struct Chiamata {
    std::string name;
    int number;
};

/// What happens to a system call, in strace's words: "error=EIO" instead of what it does, "signal=KILL"
/// before.
struct Guasto {
    Chiamata call;
    std::string what;
    bool fromThenOn = false; // and to all later ones of its name

    std::string text() const;
};

/// The exit codes of those who have met; nothing for one that did not end, and was killed.
struct Fine {
    std::optional<int> planner;
    std::optional<int> host;
};

/// An archive folder and an event, on which a host and a planner meet one cycle after the other: the planner
/// starts, answers a first request with "D" and a second one with "E", and ends.
class Ufficio {
public:
    explicit Ufficio(Modo modo);

    /// The planner's system calls that touch the office, in a cycle without a fault.
    std::vector<Chiamata> calls() const;

    Fine cycle() const;
    Fine cycleWith(const Guasto& guasto) const;
    /// The planner is killed so long after its start.
    Fine cycleKilledAfter(std::chrono::microseconds time) const;

    /// What the cycle's end breaks of the promises to the host, "" for nothing; runs another cycle, which
    /// must be as if nothing had happened. `persistent`: the fault would have gone on.
    std::string brokenBy(const Fine& fine, bool persistent = false) const;

private:
    std::string event() const;
    std::vector<std::string> planner() const;
    std::vector<std::string> observed(std::vector<std::string> options) const;
    bool eventIsThere() const;
    void putFirstRequest() const;
    std::unique_ptr<e2e::Processo> startHost() const;
    std::unique_ptr<e2e::Processo> hostFor(e2e::Processo& planner) const;
    std::unique_ptr<e2e::Processo> waitingHost() const;
    Fine endsOf(e2e::Processo& planner, e2e::Processo& host, std::chrono::milliseconds limit) const;
    bool deathIsNoticed(const std::optional<int>& planner) const;
    Fine meet(const std::vector<std::string>& planner, std::chrono::milliseconds limit,
              std::optional<std::chrono::microseconds> kill = {}) const;
    std::string brokenByEnds(const Fine& fine, bool persistent) const;
    std::string brokenInFiles() const;

    Modo m_modo;
    test::TempFolder m_archive;
    test::TempFolder m_run;
    std::string m_transit = m_archive.path("TRANSIT.DAT");
    std::string m_eventFolder = m_run.path("tavterm-ipc");
    e2e::Environment m_environment;
};

} // namespace planner::faults
