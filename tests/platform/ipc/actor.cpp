// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "actor.h"

#include "TavTermIPC.h"
#include "platform/ipc/event_watch.h"

#include <array>
#include <cerrno>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace planner::ipctest {
namespace {

// A name of any length that a test uses, and the letter of the call before it.
constexpr std::size_t MESSAGE_SIZE = 70000;

struct Reply {
    int result;
    int error;
};

using Watch = std::unique_ptr<EventWatch>;

int make(Call what, const char* name, Watch& watch) {
    switch (what) {
    case Call::Create:
        return TvIpcCreazioneEvento(name);
    case Call::Set:
        return TvIpcSetEvento(name);
    case Call::Wait:
        return TvIpcWaitEvento(name);
    case Call::Remove:
        return TvIpcRimozioneEvento(name);
    case Call::CountDescriptors:
        return openDescriptors();
    case Call::BeginWatch:
        watch = std::make_unique<EventWatch>(name);
        return 1;
    case Call::LastSignalTaken:
        return watch->lastSignalTaken() ? 1 : 0;
    case Call::OtherSideAlive:
        return watch->otherSideAlive() ? 1 : 0;
    case Call::End:
        break;
    }
    return -1;
}

int serve(int socket) {
    Watch watch;
    std::string message;
    for (;;) {
        message.resize(MESSAGE_SIZE);
        const ssize_t length = recv(socket, message.data(), message.size(), 0);
        if (length < 1 || message.front() == static_cast<char>(Call::End)) {
            return 0;
        }
        message.resize(static_cast<std::size_t>(length));
        errno = 0;
        const int result = make(static_cast<Call>(message.front()), message.c_str() + 1, watch);
        const Reply reply{result, errno};
        if (::send(socket, &reply, sizeof reply, MSG_NOSIGNAL) != static_cast<ssize_t>(sizeof reply)) {
            return 1;
        }
    }
}

} // namespace

struct Actor::Ends {
    int near = -1;
    int far = -1;

    Ends() {
        std::array<int, 2> ends{};
        if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
            throw std::runtime_error("no socket pair");
        }
        near = ends[0];
        far = ends[1];
    }
};

void Socket::close() {
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

Actor::Actor() : Actor(Ends{}) {}

Actor::Actor(const Ends& ends)
    : m_socket(ends.near), m_child([&ends] {
          ::close(ends.near);
          return serve(ends.far);
      }) {
    ::close(ends.far);
}

void Actor::send(Call what, std::string_view name) {
    const std::string message = static_cast<char>(what) + std::string(name);
    ::send(m_socket.get(), message.data(), message.size(), MSG_NOSIGNAL);
}

bool Actor::hasResult(std::chrono::milliseconds timeout) {
    pollfd waited{m_socket.get(), POLLIN, 0};
    return poll(&waited, 1, static_cast<int>(timeout.count())) == 1;
}

int Actor::receive(std::chrono::milliseconds timeout) {
    Reply reply{-1, 0};
    if (!hasResult(timeout) ||
        recv(m_socket.get(), &reply, sizeof reply, 0) != static_cast<ssize_t>(sizeof reply)) {
        return -1;
    }
    m_error = reply.error;
    return reply.result;
}

int Actor::call(Call what, std::string_view name) {
    send(what, name);
    return receive(DEADLINE);
}

bool Actor::sleeps() {
    return m_child.fallsAsleep() && !hasResult(std::chrono::milliseconds(0));
}

bool Actor::isWaiting() {
    return sleeps() && !hasResult(GRACE);
}

bool Actor::staysWaiting() {
    return sleeps() && !hasResult(LONG_GRACE);
}

void Actor::end() {
    send(Call::End, {});
    m_child.exitCode();
}

} // namespace planner::ipctest
