// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/program_texts.h"
#include "session/versione.h"

#include <gmock/gmock.h>
#include <regex>

namespace planner::test {
namespace {

using testing::HasSubstr;
using testing::Optional;
using testing::StartsWith;

TEST(ProgramTextsTest, HelpNamesEveryPartOfTheCommandLine) {
    EXPECT_THAT(testoChiesto("--help"), Optional(StartsWith("Uso: planner TRANSITO FLAG EVENTO\n")));
    for (const char* part : {"  TRANSITO ", "  FLAG ", "  EVENTO ", "  --help ", "  --version "}) {
        EXPECT_THAT(testoChiesto("--help"), Optional(HasSubstr(part)));
    }
}

TEST(ProgramTextsTest, TheVersionIsThreeNumbers) {
    EXPECT_THAT(testoChiesto("--version"), Optional("planner " + std::string(versione()) + "\n"));
    EXPECT_TRUE(std::regex_match(std::string(versione()), std::regex("[0-9]+\\.[0-9]+\\.[0-9]+")));
}

TEST(ProgramTextsTest, AnyOtherLineIsTheHosts) {
    for (const char* line : {"", "--helpp", "--help ", "--help 1 EV", "/a/--version 1 EV", "-h", "--HELP"}) {
        EXPECT_EQ(testoChiesto(line), std::nullopt) << line;
    }
}

} // namespace
} // namespace planner::test
