// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/relay.h"

#include <algorithm>
#include <array>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace planner::e2e {

namespace {

constexpr int DisplayPort = 6000; // of display 0

/// Passes on what there is, up to `atMost` bytes; how many, 0 at the end.
std::size_t pass(int from, int to, std::size_t atMost) {
    std::array<char, 65536> buffer;
    const ssize_t count = ::read(from, buffer.data(), std::min(buffer.size(), atMost));
    return count > 0 && ::send(to, buffer.data(), static_cast<std::size_t>(count), MSG_NOSIGNAL) == count
               ? static_cast<std::size_t>(count)
               : 0;
}

void relay(int program, int display, std::size_t bytes) {
    bool goesOn = true;
    while (goesOn && bytes > 0) {
        std::array<pollfd, 2> watched{{{program, POLLIN, 0}, {display, POLLIN, 0}}};
        ::poll(watched.data(), watched.size(), -1);
        if (watched[0].revents != 0) {
            goesOn = pass(program, display, std::string::npos) > 0;
        }
        if (watched[1].revents != 0) {
            const std::size_t count = pass(display, program, bytes);
            goesOn = goesOn && count > 0;
            bytes -= count;
        }
    }
}

int connectTo(const std::string& display) {
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{AF_UNIX, {}};
    ("/tmp/.X11-unix/X" + display.substr(1)).copy(address.sun_path, sizeof address.sun_path - 1);
    ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    return socket;
}

/// The number of the display that it listens as.
int listenOn(int socket) {
    constexpr int first = 200;
    constexpr int last = 400;
    for (int number = first; number < last; ++number) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<in_port_t>(DisplayPort + number));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
            ::listen(socket, 1) == 0) {
            return number;
        }
    }
    throw std::runtime_error("no number is free for a display");
}

} // namespace

Relay::Relay(const std::string& display, std::size_t bytes)
    : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)), m_number(listenOn(m_socket)),
      m_thread([this, display, bytes] {
          const int program = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
          ::shutdown(m_socket, SHUT_RDWR); // one program, once
          const int server = connectTo(display);
          relay(program, server, bytes);
          ::close(server);
          ::close(program);
      }) {}

Relay::~Relay() {
    ::shutdown(m_socket, SHUT_RDWR); // for a program that never came
    m_thread.join();
    ::close(m_socket);
}

std::string Relay::display() const {
    return "127.0.0.1:" + std::to_string(m_number);
}

} // namespace planner::e2e
