// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace planner::ipctest {

// What one event must do, said in the plainest way: processes are numbers, nothing runs at the same time.
class EventModel {
public:
    static constexpr std::size_t PROCESSES = 8;

    // What a call must return: done, or failed with this error number; a wait that goes on gives nothing.
    struct Result {
        int done;
        int error;
        bool operator==(const Result&) const = default;
    };

    Result create(std::size_t who);
    Result set(std::size_t who);
    Result remove(std::size_t who);
    std::optional<Result> wait(std::size_t who);
    // The process ends without a word, and another one that knows nothing takes its number.
    void kill(std::size_t who);

    // After each step: how many of the waiting hosts a signal must release, whether the owner's wait must be
    // released, whether all waiting hosts must be told of a death, and which of them are such that one must
    // be told of an owner that left its signal. Whoever was released is reported back.
    bool releasesOneHost() const;
    bool releasesOwner() const;
    bool tellsDeath() const { return m_deathToTell; }
    std::vector<std::size_t> hostsLeftWithASignal() const;
    void released(std::size_t who);
    void deathTold();
    void leftSignalTold(std::size_t who);

    bool isWaiting(std::size_t who) const { return m_processes.at(who).waiting; }
    bool isOwner(std::size_t who) const { return m_owner == who; }
    std::vector<std::size_t> waitingHosts() const;
    std::optional<std::size_t> owner() const { return m_owner; }

private:
    // What stands under the name. A process keeps the one that it has opened.
    struct Object {
        bool pendingToHost = false;
        bool pendingToOwner = false;
        bool retired = false;
        bool leftByOwner = false;          // what the owner had not taken when it removed the event
        std::optional<std::size_t> lastOf; // who has removed it with a signal pending
    };
    struct Process {
        std::shared_ptr<Object> opened;
        int refusal = 0;
        bool met = false;
        bool waiting = false;
    };

    static bool isLeftWithASignal(const Process& process);
    void open(Process& process, bool make);
    void retire();
    void reopenWaiting();
    Result refuse(Process& process, int error);

    std::array<Process, PROCESSES> m_processes;
    std::shared_ptr<Object> m_object;
    std::optional<std::size_t> m_owner;
    bool m_deathToTell = false;
};

} // namespace planner::ipctest
