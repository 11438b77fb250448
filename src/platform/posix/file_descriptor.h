// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>

namespace planner {

/// An open file; closes itself. Every failure throws FileError.
class FileDescriptor {
public:
    /// Takes over an open one, of any kind; -1 for none.
    explicit FileDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
    /// Opens without ever blocking, whatever stands at the path.
    FileDescriptor(const std::string& path, int flags);
    ~FileDescriptor();
    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;

    /// -1 when it holds none.
    int get() const { return m_descriptor; }
    /// Gives it up to the caller, who closes it.
    int release() { return std::exchange(m_descriptor, -1); }

    /// Bytes in the file; refuses what is no regular file.
    std::uint64_t regularFileLength() const;
    /// Throws when another process keeps the file locked against readers.
    void refuseIfLocked() const;
    /// Reads on until `out` is full or the file ends; returns the bytes read.
    std::size_t readAll(std::span<char> out) const;
    /// Writes all bytes at the file's start, in one call.
    void writeAllAtStart(std::span<const char> bytes) const;
    /// After a write that stopped halfway: the start as it was, and the length. Nothing more can be done when
    /// that fails as well.
    void putBack(std::span<const char> start, std::uint64_t length) const;
    void syncAndClose();

private:
    int m_descriptor;
};

} // namespace planner
