// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "planner_host/check/findings.h"
#include "ports/file_system.h"
#include "session/dates.h"

#include <filesystem>
#include <string>

namespace planner {

/// Reads the transit file and the four archives of a host as the planner would, writes nothing, and returns
/// what is wrong or strange in them. `transito` is the transit file's name in the folder; `oggi` stands in
/// for the dates that the request leaves out.
Rilievi controllaCartella(const FileSystem& files, const std::filesystem::path& cartella,
                          const std::string& transito, Data oggi);

} // namespace planner
