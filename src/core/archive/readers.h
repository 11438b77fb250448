// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/tables.h"
#include "ports/file_system.h"

#include <string>
#include <string_view>

namespace planner {

inline constexpr std::string_view FileRighe = "\\wrighipl";
inline constexpr std::string_view FileAnnuale = "\\wplanner";
inline constexpr std::string_view FileCollaboratori = "\\wcollab";
inline constexpr std::string_view FileGrafici = "\\wgrafici";

/// The readers take whole files into the tables and check no content. Each throws FileError when its file
/// is missing, locked, unreadable or empty, and OverflowError when it has more records than 16 bits count.
/// What could not be measured leaves its table as it was; what fails later keeps the records read so far.
/// `path` is the full path of the file; "\" and "/" both separate folders.
void readRighePlanner(const FileSystem& files, const std::string& path, Archivi& archivi);
void readCollaboratori(const FileSystem& files, const std::string& path, Archivi& archivi);
void readRigheGrafici(const FileSystem& files, const std::string& path, Archivi& archivi);

/// The same for the year's twelve months; the table is emptied first, so that a missing or short file
/// leaves blank months.
void readPlannerAnnuale(const FileSystem& files, const std::string& path, Archivi& archivi);

} // namespace planner
