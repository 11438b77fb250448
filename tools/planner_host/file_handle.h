// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>
#include <utility>

namespace planner {

/// Owns a file descriptor of any kind; -1 when it holds none.
class FileHandle {
public:
    explicit FileHandle(int descriptor = -1) : m_descriptor(descriptor) {}
    ~FileHandle() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    FileHandle(FileHandle&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    int get() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace planner
