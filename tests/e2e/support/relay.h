// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <thread>

namespace planner::e2e {

/// A display that is lost after a number of bytes: it passes on what one program and the display say to each
/// other, until the display has said that much.
class Relay {
public:
    /// `display` as in ":0".
    Relay(const std::string& display, std::size_t bytes);
    /// Waits for the program's end, or for the loss.
    ~Relay();
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;

    /// For DISPLAY.
    std::string display() const;

private:
    int m_socket;
    int m_number = 0;
    std::thread m_thread;
};

} // namespace planner::e2e
