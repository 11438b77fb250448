// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace planner::test {

/// A new folder on the disk that goes with the object, with all that is in it.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& folder() const { return m_folder; }
    /// The full path of `name` in the folder, with "/"; the folder's own path without a name.
    std::string path(std::string_view name = {}) const;

    void write(std::string_view name, std::string_view bytes) const;
    std::string read(std::string_view name) const;
    bool exists(std::string_view name) const;
    /// A file of zero bytes that takes no room on the disk, however long.
    void writeSparse(std::string_view name, std::uint64_t length) const;
    void makeFolder(std::string_view name) const;

private:
    std::filesystem::path m_folder;
};

/// The bytes of a file; empty when it cannot be read.
std::string fileBytes(const std::filesystem::path& path);

} // namespace planner::test
