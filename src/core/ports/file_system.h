// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace planner {

/// A file opened for reading from its start.
class InputFile {
public:
    virtual ~InputFile() = default;
    /// Bytes in the file when it was opened.
    virtual std::uint64_t length() const = 0;
    /// Reads from the start as far as the file goes and leaves the rest of `out` alone; returns the bytes
    /// read. Throws FileError.
    virtual std::size_t read(std::span<char> out) = 0;
};

/// The file operations that the planner needs. In every path "\" and "/" both separate folders.
class FileSystem {
public:
    virtual ~FileSystem() = default;
    /// True for an existing path that is no folder; any error counts as not existing.
    virtual bool fileExists(const std::string& path) const = 0;
    /// True when there is certainly no file at the path, or a folder; false also when that cannot be told.
    virtual bool isMissing(const std::string& path) const = 0;
    /// Deletes the file; false when there was none or it cannot be deleted.
    virtual bool deleteFile(const std::string& path) = 0;
    /// Opens an existing file. Throws FileError when it is missing, no file, locked or unreadable.
    virtual std::unique_ptr<InputFile> openForReading(const std::string& path) const = 0;
    /// Reads from the file's start, making an empty file when there is none; returns the bytes read.
    /// Throws FileError.
    virtual std::size_t readStart(const std::string& path, std::span<char> out) = 0;
    /// Writes at the file's start in one call and sees the bytes safe before it returns; the rest of the
    /// file stays as it is. Throws FileError.
    virtual void writeStart(const std::string& path, std::span<const char> bytes) = 0;
};

} // namespace planner
