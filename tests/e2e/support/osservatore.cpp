// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/osservatore.h"

#include "e2e/support/deadline.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <poll.h>
#include <span>
#include <stdexcept>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

namespace planner::e2e {

namespace {

using Kind = Osservatore::Kind;
using Clock = std::chrono::steady_clock;

struct KindNames {
    std::uint32_t mask;
    Kind kind;
    const char* name;
};
constexpr std::array Kinds{
    KindNames{IN_CREATE, Kind::Created, "created "},
    KindNames{IN_MODIFY, Kind::Modified, "modified "},
    KindNames{IN_CLOSE_WRITE, Kind::ClosedAfterWriting, "closed "},
    KindNames{IN_DELETE, Kind::Deleted, "deleted "},
};

/// The events that the buffer holds, whose last one is complete.
std::vector<Osservatore::Fatto> parse(std::span<const char> buffer) {
    std::vector<Osservatore::Fatto> seen;
    while (!buffer.empty()) {
        inotify_event event{};
        std::copy_n(buffer.begin(), sizeof event, reinterpret_cast<char*>(&event));
        const char* name = buffer.subspan(sizeof event).data();
        for (const KindNames& known : Kinds) {
            if ((event.mask & known.mask) != 0) {
                seen.push_back({known.kind, event.len > 0 ? name : ""});
            }
        }
        buffer = buffer.subspan(sizeof event + event.len);
    }
    return seen;
}

} // namespace

Osservatore::Osservatore(const std::vector<std::string>& folders)
    : m_descriptor(::inotify_init1(IN_CLOEXEC)) {
    for (const std::string& folder : folders) {
        if (::inotify_add_watch(m_descriptor, folder.c_str(),
                                IN_CREATE | IN_MODIFY | IN_CLOSE_WRITE | IN_DELETE) < 0) {
            throw std::runtime_error("cannot watch " + folder);
        }
    }
}

Osservatore::~Osservatore() {
    ::close(m_descriptor);
}

void Osservatore::readMore(Clock::time_point end) {
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    pollfd waited{m_descriptor, POLLIN, 0};
    if (::poll(&waited, 1, static_cast<int>(std::max<std::int64_t>(rest.count(), 0))) != 1) {
        throw std::runtime_error("what was watched for does not happen");
    }
    alignas(inotify_event) std::array<char, 65536> buffer;
    const ssize_t count = ::read(m_descriptor, buffer.data(), buffer.size());
    if (count > 0) {
        const auto more = parse(std::span(buffer).first(static_cast<std::size_t>(count)));
        m_seen.insert(m_seen.end(), more.begin(), more.end());
    }
}

std::vector<Osservatore::Fatto> Osservatore::until(const Fatto& last) {
    const auto end = Clock::now() + Deadline;
    auto found = std::find(m_seen.begin(), m_seen.end(), last);
    while (found == m_seen.end()) {
        readMore(end);
        found = std::find(m_seen.begin(), m_seen.end(), last);
    }
    std::vector<Fatto> happened(m_seen.begin(), std::next(found));
    m_seen.erase(m_seen.begin(), std::next(found));
    return happened;
}

std::ostream& operator<<(std::ostream& out, const Osservatore::Fatto& fatto) {
    for (const KindNames& known : Kinds) {
        if (known.kind == fatto.kind) {
            out << known.name;
        }
    }
    return out << fatto.file;
}

} // namespace planner::e2e
