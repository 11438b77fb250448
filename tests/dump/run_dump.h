// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace planner::test {

/// A folder of its own that goes with the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// What a run of planner-dump left behind.
struct DumpRun {
    int exitCode; // -1 when it did not end by itself
    std::string out;
    std::string err;

    /// The printed object; throws when it is no JSON.
    nlohmann::ordered_json json() const { return nlohmann::ordered_json::parse(out); }
};

/// Runs planner-dump with the arguments and waits for its end.
DumpRun runDump(const std::vector<std::string>& arguments);

/// The bytes of a file; throws when there is none.
std::string readFile(const std::filesystem::path& path);

} // namespace planner::test
