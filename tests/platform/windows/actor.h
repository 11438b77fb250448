// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "actor_messages.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string_view>

namespace planner::ipctest {

// How long anything that must happen may take: far more than it needs, so that only a hang exceeds it.
constexpr std::chrono::seconds DEADLINE{20};

// How long something that must not happen is watched for, and the same for what would happen within a second.
constexpr std::chrono::milliseconds GRACE{25};
constexpr std::chrono::milliseconds LONG_GRACE{1000};

// A process that makes the calls it is told to, so that a test reads as a dialogue between actors.
class Actor {
public:
    Actor();
    // Kills the process.
    ~Actor();
    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;

    // Each makes the call in the actor's process and gives its result; -1 when it hangs or the process
    // has gone.
    int create(std::string_view name) { return call(Call::Create, name); }
    int set(std::string_view name) { return call(Call::Set, name); }
    int wait(std::string_view name) { return call(Call::Wait, name); }
    int remove(std::string_view name) { return call(Call::Remove, name); }

    // A wait in two steps: begin it, look whether it sleeps, get its result as above.
    void beginWait(std::string_view name) { send(Call::Wait, name); }
    int result();

    // What errno was after the call whose result came last: set to 0 before each call.
    int error() const { return m_error; }

    // Whether the wait begun has no result within a time: a short one, or longer than a death takes to be
    // noticed.
    bool isWaiting() { return stays(GRACE); }
    bool staysWaiting() { return stays(LONG_GRACE); }
    bool sleeps() { return stays(GRACE); }

    // Ends the process in the ordinary way, without removing anything.
    void end();
    void kill();

private:
    int call(Call what, std::string_view name);
    void send(Call what, std::string_view name);
    bool stays(std::chrono::milliseconds time);
    bool hasReply(std::chrono::milliseconds timeout) const;
    std::optional<Reply> receive();
    void closeOrders();

    void* m_process = nullptr;
    void* m_orders = nullptr;
    void* m_replies = nullptr;
    int m_error = 0;
    bool m_begun = false; // the call whose result has not come yet
};

// Waits until `condition` holds, by the deadline; for what gives no event to wait for.
bool comesTrue(const std::function<bool()>& condition);

} // namespace planner::ipctest
