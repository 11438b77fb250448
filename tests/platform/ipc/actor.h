// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "child.h"

#include <string>
#include <string_view>

namespace planner::ipctest {

enum class Call : char {
    Create = 'C',
    Set = 'S',
    Wait = 'W',
    Remove = 'R',
    CountDescriptors = 'D',
    BeginWatch = 'B',
    LastSignalTaken = 'T',
    OtherSideAlive = 'O',
    End = 'E'
};

// One end of a local connection; closes it.
class Socket {
public:
    explicit Socket(int descriptor) : m_descriptor(descriptor) {}
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    ~Socket() { close(); }

    int get() const { return m_descriptor; }
    void close();

private:
    int m_descriptor;
};

// A process that makes the calls it is told to, so that a test reads as a dialogue between actors.
class Actor {
public:
    Actor();

    // Each makes the call in the actor's process and gives its result; -1 when it hangs or the process
    // has gone.
    int create(std::string_view name) { return call(Call::Create, name); }
    int set(std::string_view name) { return call(Call::Set, name); }
    int wait(std::string_view name) { return call(Call::Wait, name); }
    int remove(std::string_view name) { return call(Call::Remove, name); }
    int descriptors() { return call(Call::CountDescriptors, {}); }

    // A watch over an event of the actor's own, kept until the process ends.
    int beginWatch(std::string_view name) { return call(Call::BeginWatch, name); }
    int lastSignalTaken() { return call(Call::LastSignalTaken, {}); }
    int otherSideAlive() { return call(Call::OtherSideAlive, {}); }

    // A wait in two steps: begin it, look whether it sleeps, get its result as above.
    void beginWait(std::string_view name) { send(Call::Wait, name); }
    int result() { return receive(DEADLINE); }

    // What errno was after the call whose result came last: set to 0 before each call.
    int error() const { return m_error; }

    // Whether the wait begun sleeps and is not released within the grace time.
    bool isWaiting();
    // The same for longer than a death takes to be noticed.
    bool staysWaiting();
    // The same without the grace time: whether it has come to sleep, still without a result.
    bool sleeps();

    // Ends the process in the ordinary way, without removing anything.
    void end();
    void kill() { m_child.kill(); }
    void stop() { m_child.stop(); }
    void goOn() { m_child.goOn(); }

private:
    int call(Call what, std::string_view name);
    void send(Call what, std::string_view name);
    int receive(std::chrono::milliseconds timeout);
    bool hasResult(std::chrono::milliseconds timeout);

    struct Ends;
    explicit Actor(const Ends& ends);

    Socket m_socket;
    Child m_child;
    int m_error = 0;
};

} // namespace planner::ipctest
