// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "options.h"

#include <charconv>
#include <string_view>

namespace planner::bench {

namespace {

std::optional<int> toCount(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool complete = error == std::errc{} && end == text.data() + text.size();
    return complete && value >= 1 ? std::optional(value) : std::nullopt;
}

bool setOption(Options& options, std::string_view key, std::string_view value) {
    if (key == "--json") {
        options.json = value;
        return !value.empty();
    }
    const std::optional<int> count = toCount(value);
    options.repetitions = count.value_or(0);
    return key == "--repetitions" && count;
}

} // namespace

std::optional<Options> parseOptions(std::span<const char* const> arguments) {
    Options options;
    if (arguments.size() % 2 != 0) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        if (!setOption(options, arguments[i], arguments[i + 1])) {
            return std::nullopt;
        }
    }
    return options;
}

} // namespace planner::bench
