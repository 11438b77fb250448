// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "actor.h"

#include <array>
#include <stdexcept>
#include <string>
#include <thread>
#include <windows.h>

namespace planner::ipctest {
namespace {

std::wstring actorProgram() {
    std::array<wchar_t, 1024> path{};
    ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const std::wstring own(path.data());
    return own.substr(0, own.rfind(L'\\') + 1) + L"event-actor.exe";
}

struct Pipe {
    HANDLE reader = nullptr;
    HANDLE writer = nullptr;

    Pipe() {
        if (::CreatePipe(&reader, &writer, nullptr, 0) == 0) {
            throw std::runtime_error("no pipe");
        }
    }
};

HANDLE start(HANDLE input, HANDLE output) {
    ::SetHandleInformation(input, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    ::SetHandleInformation(output, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input;
    startup.hStdOutput = output;
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process{};
    const std::wstring program = actorProgram();
    if (::CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                         &process) == 0) {
        throw std::runtime_error("no actor");
    }
    ::CloseHandle(process.hThread);
    return process.hProcess;
}

} // namespace

Actor::Actor() {
    const Pipe orders;
    const Pipe replies;
    m_process = start(orders.reader, replies.writer);
    ::CloseHandle(orders.reader);
    ::CloseHandle(replies.writer);
    m_orders = orders.writer;
    m_replies = replies.reader;
}

Actor::~Actor() {
    kill();
    closeOrders();
    ::CloseHandle(m_replies);
    ::CloseHandle(m_process);
}

void Actor::closeOrders() {
    if (m_orders != nullptr) {
        ::CloseHandle(m_orders);
        m_orders = nullptr;
    }
}

void Actor::send(Call what, std::string_view name) {
    const Order order{what, static_cast<std::uint32_t>(name.size())};
    std::string message(reinterpret_cast<const char*>(&order), sizeof order);
    message += name;
    DWORD written = 0;
    ::WriteFile(m_orders, message.data(), static_cast<DWORD>(message.size()), &written, nullptr);
    m_begun = receive().has_value();
}

bool Actor::hasReply(std::chrono::milliseconds timeout) const {
    const auto until = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        DWORD available = 0;
        const bool open = ::PeekNamedPipe(m_replies, nullptr, 0, nullptr, &available, nullptr) != 0;
        if (available >= sizeof(Reply) || !open || std::chrono::steady_clock::now() >= until) {
            return available >= sizeof(Reply);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

std::optional<Reply> Actor::receive() {
    Reply reply{};
    DWORD count = 0;
    if (!hasReply(DEADLINE) || ::ReadFile(m_replies, &reply, sizeof reply, &count, nullptr) == 0 ||
        count != sizeof reply) {
        return std::nullopt;
    }
    return reply;
}

int Actor::result() {
    const auto reply = m_begun ? receive() : std::nullopt;
    m_begun = false;
    if (!reply) {
        return -1;
    }
    m_error = reply->error;
    return reply->result;
}

int Actor::call(Call what, std::string_view name) {
    send(what, name);
    return result();
}

bool Actor::stays(std::chrono::milliseconds time) {
    return m_begun && !hasReply(time);
}

void Actor::end() {
    closeOrders();
    ::WaitForSingleObject(m_process, static_cast<DWORD>(std::chrono::milliseconds(DEADLINE).count()));
}

void Actor::kill() {
    ::TerminateProcess(m_process, 1);
    ::WaitForSingleObject(m_process, static_cast<DWORD>(std::chrono::milliseconds(DEADLINE).count()));
}

bool comesTrue(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + DEADLINE;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

} // namespace planner::ipctest
