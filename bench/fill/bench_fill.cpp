// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// Compares reading and filling the monthly grid with a plain pass over the same bytes, in one run and in
// turns; and shows how the work grows with the records and a look-up with the staff.
#include "fill_work.h"
#include "plain_pass.h"
#include "report.h"
#include "support/benchmark.h"

#include <random>
#include <stdexcept>
#include <string>

namespace {

using namespace planner::bench;

constexpr int MaxRecords = 32767;
constexpr int Staff = 500;
constexpr int MaxStaff = 32767;

void requireEqual(std::int64_t a, std::int64_t b, const char* what) {
    if (a != b) {
        throw std::runtime_error(std::string("the two works differ in ") + what);
    }
}

/// The counters' share of the plain pass's sum: what the fill must have counted too.
std::int64_t sumOfCounters(const std::string& bytes) {
    std::int64_t dates = 0;
    for (std::size_t at = 8; at < bytes.size(); at += sizeof(planner::RigaPlanner)) {
        dates += ShownYear + ShownMonth + (bytes[at] - '0') * 10 + (bytes[at + 1] - '0');
    }
    return plainPass(bytes) - dates;
}

FillRatio compareFill(Padding padding, const char* name, int repetitions) {
    const ArchiveFolder folder(MaxRecords, Staff, padding);
    FillWork work(folder);
    work.readAndFill();
    requireEqual(work.sumOfTotals(), sumOfCounters(folder.recordBytes()), "the sum of the counters");
    const auto times =
        measureInTurns({[&] { work.readAndFill(); }, [&] { work.read(); }, [&] { work.clear(); },
                        [&] { work.fill(); }, [&] { keep(plainPass(folder.recordBytes())); }},
                       repetitions);
    work.check();
    return {name, times.at(0), times.at(1), times.at(2), times.at(3), times.at(4)};
}

std::vector<RecordStep> growRecords(int repetitions) {
    std::vector<RecordStep> steps;
    for (const int records : {1000, 4096, 16384, MaxRecords}) {
        const ArchiveFolder folder(records, Staff, Padding::Zeros);
        FillWork work(folder);
        const auto times = measureInTurns(
            {[&] { work.readAndFill(); }, [&] { keep(plainPass(folder.recordBytes())); }}, repetitions);
        work.check();
        steps.push_back({records, times.at(0), times.at(1)});
    }
    return steps;
}

/// Codes of the staff and codes that nobody has, by turns.
std::vector<std::string> codesToLookUp(int staff) {
    std::mt19937 random(2);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    std::vector<std::string> codes;
    for (int i = 0; i < 4096; ++i) {
        codes.push_back(staffCode(below(staff)));
        codes.push_back(staffCode(MaxStaff + below(StaffCodes - MaxStaff)));
    }
    return codes;
}

std::vector<StaffStep> growStaff(int repetitions) {
    std::vector<StaffStep> steps;
    for (const int staff : {10, 100, Staff, 5000, MaxStaff}) {
        const std::vector<std::string> codes = codesToLookUp(staff);
        const ArchiveFolder folder(1, staff, Padding::Zeros);
        const FillWork work(folder);
        auto times = measureInTurns({[&] {
                                        for (const std::string& code : codes) {
                                            keep(work.lookUp(code));
                                        }
                                    }},
                                    repetitions);
        for (double& time : times.front()) {
            time /= static_cast<double>(codes.size());
        }
        steps.push_back({staff, times.front()});
    }
    return steps;
}

Results measureAll(int repetitions) {
    Results results;
    results.records = MaxRecords;
    results.staff = Staff;
    results.ratios = {compareFill(Padding::Zeros, "zero-padded", repetitions),
                      compareFill(Padding::Blanks, "blank-padded", repetitions)};
    results.recordSteps = growRecords(repetitions);
    results.staffSteps = growStaff(repetitions);
    return results;
}

} // namespace

int main(int argc, char** argv) {
    int repetitions = 25;
    return benchmark(argc, argv, {{"--repetitions", &repetitions}}, [&] {
        const Results results = measureAll(repetitions);
        printTables(results);
        return toJson(results);
    });
}
