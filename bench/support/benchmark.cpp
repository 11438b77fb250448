// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/benchmark.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

namespace planner::bench {

namespace {

bool setCount(const Count& count, std::string_view text) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *count.value);
    return error == std::errc{} && end == text.data() + text.size() && *count.value >= 1;
}

/// Sets one option; false when there is none of that key or the value is none for it.
bool setOption(std::string_view key, std::string_view value, const std::vector<Count>& counts,
               std::string& json) {
    if (key == "--json") {
        json = value;
        return !value.empty();
    }
    const auto count =
        std::find_if(counts.begin(), counts.end(), [key](const Count& each) { return each.key == key; });
    return count != counts.end() && setCount(*count, value);
}

bool setOptions(const std::vector<std::string_view>& arguments, const std::vector<Count>& counts,
                std::string& json) {
    if (arguments.size() % 2 != 0) {
        return false;
    }
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        if (!setOption(arguments[i], arguments[i + 1], counts, json)) {
            return false;
        }
    }
    return true;
}

void printUsage(const std::string& name, const std::vector<Count>& counts) {
    std::string options;
    for (const Count& each : counts) {
        options += " [" + std::string(each.key) + " N]";
    }
    std::fprintf(stderr, "usage: %s%s [--json FILE]\n", name.c_str(), options.c_str());
}

} // namespace

int benchmark(int argc, char* const argv[], const std::vector<Count>& counts,
              const std::function<Json()>& measure) {
    const std::string name = std::filesystem::path(argv[0]).filename().string();
    std::string json;
    if (!setOptions({argv + 1, argv + argc}, counts, json)) {
        printUsage(name, counts);
        return 2;
    }
    try {
        const Json figures = measure();
        if (json.empty() || writeFile(figures, json)) {
            return 0;
        }
        std::fprintf(stderr, "%s: cannot write %s\n", name.c_str(), json.c_str());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", name.c_str(), error.what());
    }
    return 1;
}

} // namespace planner::bench
