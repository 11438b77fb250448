// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "report.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace planner::bench {

namespace {

constexpr double NsPerMs = 1e6;

const char* yesNo(bool yes) {
    return yes ? "reached" : "missed";
}

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
                yesNo(results.worstRatio() <= RatioToReach), RatioToAimAt,
                yesNo(results.worstRatio() <= RatioToAimAt));
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

/// Writes `"key": {...}` for a list of times.
void writeTimes(std::ostream& out, const char* key, const Times& times) {
    out << "\"" << key << "\": {\"min\": " << minimum(times) << ", \"median\": " << median(times) << "}";
}

void writeRatio(std::ostream& out, const FillRatio& each) {
    out << "    {\"counters\": \"" << each.counters << "\", \"ratio\": " << each.ratio() << ",\n     ";
    writeTimes(out, "readAndFill", each.readAndFill);
    out << ",\n     ";
    writeTimes(out, "read", each.read);
    out << ",\n     ";
    writeTimes(out, "clear", each.clear);
    out << ",\n     ";
    writeTimes(out, "fill", each.fill);
    out << ",\n     ";
    writeTimes(out, "plainPass", each.plainPass);
    out << "}";
}

void writeRecordStep(std::ostream& out, const RecordStep& each) {
    out << "    {\"records\": " << each.records << ", ";
    writeTimes(out, "readAndFill", each.readAndFill);
    out << ", ";
    writeTimes(out, "plainPass", each.plainPass);
    out << "}";
}

void writeStaffStep(std::ostream& out, const StaffStep& each) {
    out << "    {\"staff\": " << each.staff << ", ";
    writeTimes(out, "lookUp", each.lookUp);
    out << "}";
}

/// Writes `"key": [...]`, one line or more for each element.
template <typename List, typename Write>
void writeList(std::ostream& out, const char* key, const List& list, Write write) {
    out << "  \"" << key << "\": [";
    const char* separator = "\n";
    for (const auto& each : list) {
        out << separator;
        write(out, each);
        separator = ",\n";
    }
    out << "\n  ]";
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

bool writeJson(const Results& results, const std::string& path) {
    std::ofstream out(path);
    out << "{\n  \"benchmark\": \"read-and-fill\",\n  \"unit\": \"ns\",\n  \"records\": " << results.records
        << ",\n  \"staff\": " << results.staff << ",\n  \"reach\": " << RatioToReach
        << ",\n  \"aim\": " << RatioToAimAt
        << ",\n  \"reached\": " << (results.worstRatio() <= RatioToReach ? "true" : "false") << ",\n";
    writeList(out, "results", results.ratios, writeRatio);
    out << ",\n";
    writeList(out, "asRecordsGrow", results.recordSteps, writeRecordStep);
    out << ",\n";
    writeList(out, "asStaffGrows", results.staffSteps, writeStaffStep);
    out << "\n}\n";
    return static_cast<bool>(out.flush());
}

} // namespace planner::bench
