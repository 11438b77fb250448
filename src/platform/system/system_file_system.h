// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/file_system.h"

namespace planner {

/// The file operations on the operating system's own files. Paths are UTF-8 where the system wants
/// characters.
class SystemFileSystem : public FileSystem {
public:
    bool fileExists(const std::string& path) const override;
    bool isMissing(const std::string& path) const override;
    bool deleteFile(const std::string& path) override;
    std::unique_ptr<InputFile> openForReading(const std::string& path) const override;
    std::size_t readStart(const std::string& path, std::span<char> out) override;
    void writeStart(const std::string& path, std::span<const char> bytes) override;

    /// Reads from the start of an existing file, locked or not, and never makes one; returns the bytes read.
    /// Throws FileError.
    static std::size_t peekStart(const std::string& path, std::span<char> out);
};

} // namespace planner
