// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "report.h"

#include "support/benchmark.h"

#include <algorithm>
#include <cstdio>

namespace planner::bench {
namespace {

Json timesJson(const Times& times) {
    return Json::Members{{"min", minimum(times)},
                         {"median", median(times)},
                         {"repetitions", Json::list(times, [](double time) { return time; })}};
}

Json comparisonJson(const Comparison& each) {
    return Json::Members{{"placement", each.placement},
                         {"library", timesJson(each.library)},
                         {"futex", timesJson(each.futex)},
                         {"ratio", ratioOfMinima(each)}};
}

} // namespace

double ratioOfMinima(const Comparison& comparison) {
    const double futex = minimum(comparison.futex);
    return futex > 0.0 ? minimum(comparison.library) / futex : 0.0;
}

bool isReached(const std::vector<Comparison>& comparisons) {
    return std::all_of(comparisons.begin(), comparisons.end(), [](const Comparison& comparison) {
        const double ratio = ratioOfMinima(comparison);
        return ratio > 0.0 && ratio <= RatioToReach;
    });
}

void printTable(const std::vector<Comparison>& comparisons) {
    std::printf("event round trip, microseconds\n");
    std::printf("%-16s %12s %12s %12s %12s %7s\n", "placement", "library min", "median", "futex min",
                "median", "ratio");
    for (const Comparison& each : comparisons) {
        std::printf("%-16s %12.2f %12.2f %12.2f %12.2f %7.2f\n", each.placement.c_str(),
                    minimum(each.library), median(each.library), minimum(each.futex), median(each.futex),
                    ratioOfMinima(each));
    }
    std::printf("to reach: ratio <= %.1f: %s\n", RatioToReach, reachedOrMissed(isReached(comparisons)));
}

Json toJson(const std::vector<Comparison>& comparisons, int rounds) {
    return Json::Members{{"benchmark", "event-round-trip"},
                         {"unit", "us"},
                         {"rounds", rounds},
                         {"reach", RatioToReach},
                         {"reached", isReached(comparisons)},
                         {"results", Json::list(comparisons, comparisonJson)}};
}

} // namespace planner::bench
