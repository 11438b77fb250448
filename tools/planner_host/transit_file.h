// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/transit_request.h"

#include <filesystem>

namespace planner {

/// Writes the whole record, closed and safe on disk on return: only then may the planner be told. Throws
/// HostError with exit code 3.
void scriviTransito(const std::filesystem::path& path, const TransitRequest& richiesta);

/// Reads the record. Throws HostError with exit code 3, also for a file that is too short.
TransitRequest leggiTransito(const std::filesystem::path& path);

} // namespace planner
