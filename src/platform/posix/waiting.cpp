// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/waiting.h"

#include "platform/posix/end_signals.h"

#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <sys/signalfd.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace planner {

namespace {

int descriptor(Waitable waitable) {
    return static_cast<int>(waitable);
}

int checked(int result) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return result;
}

} // namespace

std::optional<std::size_t> waitForFirst(std::span<const Waitable> waited,
                                        std::optional<std::chrono::milliseconds> limit) {
    std::vector<pollfd> watched;
    for (const Waitable each : waited) {
        watched.push_back({descriptor(each), POLLIN, 0}); // poll() passes over -1
    }
    int count = 0;
    do {
        count = ::poll(watched.data(), watched.size(), limit ? static_cast<int>(limit->count()) : -1);
    } while (count < 0 && errno == EINTR);
    checked(count);
    for (std::size_t place = 0; place < watched.size(); ++place) {
        if (watched[place].revents != 0) {
            return place;
        }
    }
    return std::nullopt;
}

WakeUp::WakeUp() : m_handle(checked(::eventfd(0, EFD_CLOEXEC))) {}

WakeUp::~WakeUp() {
    ::close(descriptor(m_handle));
}

void WakeUp::wake() const {
    ::eventfd_write(descriptor(m_handle), 1);
}

EndWishes::EndWishes() : m_handle(checked(holdEndSignals().release())) {}

EndWishes::~EndWishes() {
    ::close(descriptor(m_handle));
}

int EndWishes::take() const {
    signalfd_siginfo info{};
    return ::read(descriptor(m_handle), &info, sizeof info) == sizeof info ? static_cast<int>(info.ssi_signo)
                                                                           : 0;
}

FolderWatch::FolderWatch(const std::string& folder)
    : m_handle(checked(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))) {
    if (::inotify_add_watch(descriptor(m_handle), folder.c_str(), IN_DELETE | IN_MOVED_FROM) < 0) {
        const int error = errno;
        ::close(descriptor(m_handle));
        throw std::system_error(error, std::generic_category());
    }
}

FolderWatch::~FolderWatch() {
    ::close(descriptor(m_handle));
}

void FolderWatch::forget() const {
    std::array<char, 4096> news{};
    while (::read(descriptor(m_handle), news.data(), news.size()) > 0) {
    }
}

} // namespace planner
