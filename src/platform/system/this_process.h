// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace planner {

/// What the program was given, without its own name, in UTF-8 where the system has characters.
std::vector<std::string> programArguments(int argc, char** argv);
/// From here on standard output and error take bytes as they are, and a terminal takes them for UTF-8.
void keepStreamsPlain();
/// The number by which the system tells this process from others.
long long processNumber();
/// The folder that this program stands in; empty when that cannot be told.
std::filesystem::path programFolder();
/// False when the surroundings name no screen for a program with windows.
bool screenIsNamed();

/// Makes an empty file where none is; the error std::errc::file_exists otherwise.
std::error_code createNewFile(const std::filesystem::path& path);
/// Makes a new folder of the user's own, among the temporary ones, with a name that begins so. Throws
/// std::filesystem::filesystem_error.
std::filesystem::path makeTemporaryFolder(const std::string& beginning);

} // namespace planner
