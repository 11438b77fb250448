// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "report.h"

#include "support/benchmark.h"

#include <algorithm>
#include <cstdio>

namespace planner::bench {

namespace {

constexpr double NsPerMs = 1e6;

void printRatios(const Results& results) {
    std::printf("read and fill the monthly grid, %d records, %d staff: milliseconds, minima\n",
                results.records, results.staff);
    std::printf("%-14s %10s %8s %8s %8s %11s %7s\n", "counters", "whole work", "read", "clear", "fill",
                "plain pass", "ratio");
    for (const FillRatio& each : results.ratios) {
        std::printf("%-14s %10.3f %8.3f %8.3f %8.3f %11.3f %7.2f\n", each.counters.c_str(),
                    minimum(each.readAndFill) / NsPerMs, minimum(each.read) / NsPerMs,
                    minimum(each.clear) / NsPerMs, minimum(each.fill) / NsPerMs,
                    minimum(each.plainPass) / NsPerMs, each.ratio());
    }
    std::printf("to reach: ratio <= %.0f: %s, then <= %.0f: %s\n", RatioToReach,
                reachedOrMissed(results.worstRatio() <= RatioToReach), RatioToAimAt,
                reachedOrMissed(results.worstRatio() <= RatioToAimAt));
}

void printRecordSteps(const std::vector<RecordStep>& steps) {
    std::printf("\nas the records grow: nanoseconds per record\n");
    std::printf("%-14s %14s %14s %14s\n", "records", "read and fill", "of those added", "plain pass");
    const RecordStep* previous = nullptr;
    for (const RecordStep& step : steps) {
        const double time = minimum(step.readAndFill);
        const double added = previous == nullptr ? time / step.records
                                                 : (time - minimum(previous->readAndFill)) /
                                                       (step.records - previous->records);
        std::printf("%-14d %14.1f %14.1f %14.1f\n", step.records, time / step.records, added,
                    minimum(step.plainPass) / step.records);
        previous = &step;
    }
}

void printStaffSteps(const std::vector<StaffStep>& steps) {
    std::printf("\nas the staff grows: nanoseconds per look-up\n");
    std::printf("%-14s %14s\n", "staff", "look-up");
    for (const StaffStep& step : steps) {
        std::printf("%-14d %14.2f\n", step.staff, minimum(step.lookUp));
    }
}

Json timesJson(const Times& times) {
    return Json::Members{{"min", minimum(times)}, {"median", median(times)}};
}

Json ratioJson(const FillRatio& each) {
    return Json::Members{{"counters", each.counters},
                         {"ratio", each.ratio()},
                         {"readAndFill", timesJson(each.readAndFill)},
                         {"read", timesJson(each.read)},
                         {"clear", timesJson(each.clear)},
                         {"fill", timesJson(each.fill)},
                         {"plainPass", timesJson(each.plainPass)}};
}

Json recordStepJson(const RecordStep& each) {
    return Json::Members{{"records", each.records},
                         {"readAndFill", timesJson(each.readAndFill)},
                         {"plainPass", timesJson(each.plainPass)}};
}

Json staffStepJson(const StaffStep& each) {
    return Json::Members{{"staff", each.staff}, {"lookUp", timesJson(each.lookUp)}};
}

} // namespace

double FillRatio::ratio() const {
    const double plain = minimum(plainPass);
    return plain > 0 ? minimum(readAndFill) / plain : 0.0;
}

double Results::worstRatio() const {
    double worst = 0;
    for (const FillRatio& each : ratios) {
        worst = std::max(worst, each.ratio());
    }
    return worst;
}

void printTables(const Results& results) {
    printRatios(results);
    printRecordSteps(results.recordSteps);
    printStaffSteps(results.staffSteps);
}

Json toJson(const Results& results) {
    return Json::Members{{"benchmark", "read-and-fill"},
                         {"unit", "ns"},
                         {"records", results.records},
                         {"staff", results.staff},
                         {"reach", RatioToReach},
                         {"aim", RatioToAimAt},
                         {"reached", results.worstRatio() <= RatioToReach},
                         {"results", Json::list(results.ratios, ratioJson)},
                         {"asRecordsGrow", Json::list(results.recordSteps, recordStepJson)},
                         {"asStaffGrows", Json::list(results.staffSteps, staffStepJson)}};
}

} // namespace planner::bench
