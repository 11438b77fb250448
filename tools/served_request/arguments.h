// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/dates.h"

#include <cstdio>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace planner {

/// The arguments cannot be understood. `what()` says why, Italian, UTF-8.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// How the tools end.
inline constexpr int ExitDone = 0;
inline constexpr int ExitFailed = 1; // something could not be read or written
inline constexpr int ExitUsage = 2;

/// Takes the arguments one by one.
class ArgumentReader {
public:
    explicit ArgumentReader(std::span<const char* const> arguments) : m_rest(arguments) {}

    bool done() const { return m_rest.empty(); }
    /// There must be one.
    std::string_view next();
    /// The value that belongs to an option; throws UsageError with `missing` when there is none.
    std::string_view valueOf(const char* missing);

private:
    std::span<const char* const> m_rest;
};

/// The day that follows --oggi, as yyyymmdd. Throws UsageError.
Data readToday(ArgumentReader& reader);

/// Sets the path of the transit file by the rules of the planner's own command line, so that it means the
/// same file. Throws UsageError when it is set already.
void setTransitPath(std::string& transitPath, std::string_view argument);

/// False when not all could be written.
bool print(std::FILE* stream, const std::string& text);

} // namespace planner
