// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/file_system.h"

namespace planner {

/// The file operations on a POSIX system.
class PosixFileSystem : public FileSystem {
public:
    bool fileExists(const std::string& path) const override;
    bool isMissing(const std::string& path) const override;
    bool deleteFile(const std::string& path) override;
    std::unique_ptr<InputFile> openForReading(const std::string& path) const override;
    std::size_t readStart(const std::string& path, std::span<char> out) override;
    void writeStart(const std::string& path, std::span<const char> bytes) override;
};

/// The path as the file system wants it: every "\" is a "/".
std::string nativePath(std::string path);

} // namespace planner
