// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "report.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace planner::bench {
namespace {

double minimum(const std::vector<double>& values) {
    return values.empty() ? 0.0 : *std::min_element(values.begin(), values.end());
}

double median(std::vector<double> values) {
    if (values.empty()) {
        return 0.0;
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void writeValues(std::ostream& out, const char* key, const std::vector<double>& values) {
    out << "      \"" << key << "\": {\"min\": " << minimum(values) << ", \"median\": " << median(values)
        << ", \"repetitions\": [";
    const char* separator = "";
    for (const double value : values) {
        out << separator << value;
        separator = ", ";
    }
    out << "]}";
}

void writeComparison(std::ostream& out, const Comparison& comparison) {
    out << "    {\n      \"placement\": \"" << comparison.placement << "\",\n";
    writeValues(out, "library", comparison.library);
    out << ",\n";
    writeValues(out, "futex", comparison.futex);
    out << ",\n      \"ratio\": " << ratioOfMinima(comparison) << "\n    }";
}

} // namespace

double ratioOfMinima(const Comparison& comparison) {
    const double futex = minimum(comparison.futex);
    return futex > 0.0 ? minimum(comparison.library) / futex : 0.0;
}

bool isReached(const std::vector<Comparison>& comparisons) {
    return std::all_of(comparisons.begin(), comparisons.end(), [](const Comparison& comparison) {
        const double ratio = ratioOfMinima(comparison);
        return ratio > 0.0 && ratio <= RATIO_TO_REACH;
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
    std::printf("to reach: ratio <= %.1f: %s\n", RATIO_TO_REACH,
                isReached(comparisons) ? "reached" : "missed");
}

bool writeJson(const std::vector<Comparison>& comparisons, int rounds, const std::string& path) {
    std::ofstream out(path);
    out << "{\n  \"benchmark\": \"event-round-trip\",\n  \"unit\": \"us\",\n  \"rounds\": " << rounds
        << ",\n  \"reach\": " << RATIO_TO_REACH
        << ",\n  \"reached\": " << (isReached(comparisons) ? "true" : "false") << ",\n  \"results\": [\n";
    const char* separator = "";
    for (const Comparison& each : comparisons) {
        out << separator;
        writeComparison(out, each);
        separator = ",\n";
    }
    out << "\n  ]\n}\n";
    return static_cast<bool>(out.flush());
}

} // namespace planner::bench
