// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// Compares the round trip of an event through the library with that of a bare futex, both between
// two processes, in one run and in turns, so that whatever else the machine does meets both alike.
#include "futex_pair.h"
#include "library_pair.h"
#include "report.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

using namespace planner::bench;

struct Options {
    int rounds = 5000;
    int repetitions = 9;
    std::string json;
};

std::optional<int> toCount(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < 1) {
        return std::nullopt;
    }
    return value;
}

bool setOption(Options& options, std::string_view key, std::string_view value) {
    if (key == "--json") {
        options.json = value;
        return !value.empty();
    }
    const std::optional<int> count = toCount(value);
    if (!count) {
        return false;
    }
    if (key == "--rounds") {
        options.rounds = *count;
    } else if (key == "--repetitions") {
        options.repetitions = *count;
    } else {
        return false;
    }
    return true;
}

std::optional<Options> parse(const std::vector<std::string_view>& arguments) {
    Options options;
    if (arguments.size() % 2 != 0) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        if (!setOption(options, arguments.at(i), arguments.at(i + 1))) {
            return std::nullopt;
        }
    }
    return options;
}

Comparison compare(const Options& options, Placement placement, const char* title) {
    LibraryPair library("bench-ipc-" + std::to_string(getpid()));
    FutexPair futex;
    Comparison comparison{title, {}, {}};
    for (int i = 0; i < options.repetitions; ++i) {
        comparison.library.push_back(measureRoundTrip(library, options.rounds, placement));
        comparison.futex.push_back(measureRoundTrip(futex, options.rounds, placement));
    }
    return comparison;
}

std::vector<Comparison> compareAll(const Options& options) {
    std::vector<Comparison> comparisons;
    if (hasTwoProcessors()) {
        comparisons.push_back(compare(options, Placement::TwoProcessors, "two processors"));
    }
    comparisons.push_back(compare(options, Placement::OneProcessor, "one processor"));
    return comparisons;
}

int run(const Options& options) {
    const std::vector<Comparison> comparisons = compareAll(options);
    printTable(comparisons);
    if (!options.json.empty() && !writeJson(comparisons, options.rounds, options.json)) {
        std::fprintf(stderr, "bench-ipc: cannot write %s\n", options.json.c_str());
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + std::min(argc, 1), argv + argc);
    const std::optional<Options> options = parse(arguments);
    if (!options) {
        std::fprintf(stderr, "usage: bench-ipc [--rounds N] [--repetitions N] [--json FILE]\n");
        return 2;
    }
    try {
        return run(*options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench-ipc: %s\n", error.what());
        return 1;
    }
}
