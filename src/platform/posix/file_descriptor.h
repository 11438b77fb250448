// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace planner {

/// An open file; closes itself. Every failure throws FileError.
class FileDescriptor {
public:
    /// Opens without ever blocking, whatever stands at the path.
    FileDescriptor(const std::string& path, int flags);
    ~FileDescriptor();
    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&&) = delete;

    /// Bytes in the file; refuses what is no regular file.
    std::uint64_t regularFileLength() const;
    /// Throws when another process keeps the file locked against readers.
    void refuseIfLocked() const;
    /// Reads on until `out` is full or the file ends; returns the bytes read.
    std::size_t readAll(std::span<char> out) const;
    /// Writes all bytes at the file's start, in one call.
    void writeAllAtStart(std::span<const char> bytes) const;
    void syncAndClose();

private:
    int m_descriptor;
};

} // namespace planner
