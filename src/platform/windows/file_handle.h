// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace planner {

/// How a file is opened: an existing one for reading, or any for both, made when there is none.
enum class FileUse { read, readAndWrite };

/// An open file; closes itself. Every failure throws FileError.
class FileHandle {
public:
    FileHandle(const std::string& path, FileUse use);
    ~FileHandle();
    FileHandle(FileHandle&& other) noexcept;
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    FileHandle& operator=(FileHandle&&) = delete;

    /// Bytes in the file.
    std::uint64_t length() const;
    /// Reads on until `out` is full or the file ends; returns the bytes read.
    std::size_t readAll(std::span<char> out) const;
    /// Writes all bytes at the file's start, in one call.
    void writeAllAtStart(std::span<const char> bytes) const;
    /// After a write that stopped halfway: the start as it was, and the length. Nothing more can be done when
    /// that fails as well.
    void putBack(std::span<const char> start, std::uint64_t length) const;
    void syncAndClose();

private:
    void* m_handle;
};

} // namespace planner
