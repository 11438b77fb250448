// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// Compares the round trip of an event through the library with that of a bare futex, both between
// two processes, in one run and in turns, so that whatever else the machine does meets both alike.
#include "futex_pair.h"
#include "library_pair.h"
#include "report.h"
#include "support/benchmark.h"

#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace planner::bench;

struct Options {
    int rounds = 5000;
    int repetitions = 9;
};

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

} // namespace

int main(int argc, char** argv) {
    Options options;
    return benchmark(argc, argv, {{"--rounds", &options.rounds}, {"--repetitions", &options.repetitions}},
                     [&] {
                         const std::vector<Comparison> comparisons = compareAll(options);
                         printTable(comparisons);
                         return toJson(comparisons, options.rounds);
                     });
}
