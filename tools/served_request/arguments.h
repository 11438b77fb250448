// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/dates.h"

#include <cstdio>
#include <optional>
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
    explicit ArgumentReader(std::span<const std::string> arguments) : m_rest(arguments) {}

    bool done() const { return m_rest.empty(); }
    /// There must be one.
    std::string_view next();
    /// The value that belongs to an option; throws UsageError with `missing` when there is none.
    std::string_view valueOf(const char* missing);

private:
    std::span<const std::string> m_rest;
};

/// What every such tool may be asked.
struct CommonOptions {
    bool help = false;
    std::string transitPath; // as the host's command line would give it
    std::optional<Data> oggi;
};

/// Reads an argument that every such tool knows: an option, or the transit file, by the rules of the
/// planner's own command line, so that it means the same file. Throws UsageError for any other.
void readCommonArgument(CommonOptions& options, std::string_view argument, ArgumentReader& reader);

/// Throws UsageError unless help is wanted or there is a transit file.
void requireTransitFile(const CommonOptions& options);

/// Reads the arguments that follow the program's name. `readOwn` takes an option of the tool's own, and
/// returns false for any other argument. Throws UsageError.
template <typename Options, typename ReadOwn>
Options readArguments(std::span<const std::string> arguments, ReadOwn readOwn) {
    Options options;
    ArgumentReader reader(arguments);
    while (!reader.done()) {
        const std::string_view argument = reader.next();
        if (!readOwn(options, argument, reader)) {
            readCommonArgument(options, argument, reader);
        }
    }
    requireTransitFile(options);
    return options;
}

/// False when not all could be written.
bool print(std::FILE* stream, const std::string& text);

} // namespace planner
