// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <ostream>
#include <string>
#include <vector>

namespace planner::e2e {

/// Watches what happens to the files of some folders, in the order in which it happens.
class Osservatore {
public:
    enum class Kind { Created, Modified, ClosedAfterWriting, Deleted };
    struct Fatto {
        Kind kind;
        std::string file; // name without folder

        friend bool operator==(const Fatto&, const Fatto&) = default;
    };

    explicit Osservatore(const std::vector<std::string>& folders);
    ~Osservatore();
    Osservatore(const Osservatore&) = delete;
    Osservatore& operator=(const Osservatore&) = delete;

    /// Waits until `last` happens, and returns all that has happened up to it; throws at the deadline.
    std::vector<Fatto> until(const Fatto& last);

private:
    void readMore(std::chrono::steady_clock::time_point end);

    int m_descriptor;
    std::vector<Fatto> m_seen; // not handed out yet
};

/// For the messages of failed expectations.
std::ostream& operator<<(std::ostream& out, const Osservatore::Fatto& fatto);

} // namespace planner::e2e
