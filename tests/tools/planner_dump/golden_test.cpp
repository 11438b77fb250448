// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <gtest/gtest.h>
#include <ostream>

namespace planner::test {

namespace {

struct GoldenCase {
    const char* kind;
    const char* file;
    std::vector<std::string> arguments;
};

void PrintTo(const GoldenCase& golden, std::ostream* out) {
    *out << golden.file;
}

class GoldenDump : public testing::TestWithParam<GoldenCase> {};

} // namespace

TEST_P(GoldenDump, IsExactlyTheRecordedOne) {
    SmallOffice office;
    office.richiesta = request(GetParam().kind);
    office.write();
    std::vector<std::string> arguments{office.transitPath(), "--oggi", "20251120"};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    const DumpRun run = runDump(arguments);
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const std::string golden = fileBytes(std::filesystem::path(DUMP_DATA_FOLDER) / GetParam().file);
    EXPECT_EQ(nlohmann::json::diff(nlohmann::json::parse(golden), nlohmann::json::parse(run.out)),
              nlohmann::json::array());
    EXPECT_TRUE(run.out == golden) << "same contents, written otherwise";
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, GoldenDump,
    testing::Values(GoldenCase{"M", "mensile.json", {}}, GoldenCase{"G", "giornaliero.json", {}},
                    GoldenCase{"A", "annuale.json", {}}, GoldenCase{"M", "grafico.json", {"--grafico", "0"}}),
    [](const auto& golden) { return std::filesystem::path(golden.param.file).stem().string(); });

} // namespace planner::test
