// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/command_line.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace planner::test {
namespace {

struct Example {
    std::string line, path, folder, flag, event;
};

void expectParts(const Example& example) {
    const RigaComando parts = parseCommandLine(example.line);
    EXPECT_EQ(parts.PathTransito, example.path) << example.line;
    EXPECT_EQ(folderOf(parts.PathTransito), example.folder) << example.line;
    EXPECT_EQ(parts.FlagAvvio, example.flag) << example.line;
    EXPECT_EQ(parts.NomeEvento, example.event) << example.line;
}

TEST(CommandLineTest, PathFlagAndEvent) {
    expectParts({"C:\\arch\\trans.dat 1 EV", "C:\\arch\\trans.dat", "C:\\arch\\", "1", "EV"});
    expectParts({"/srv/arch/trans.dat 1 EV", "/srv/arch/trans.dat", "/srv/arch/", "1", "EV"});
}

TEST(CommandLineTest, ALineWithoutBlankHasAnEmptyEventName) {
    const RigaComando parts = parseCommandLine("C:\\arch\\trans.dat");
    EXPECT_EQ(parts.NomeEvento, "");
    EXPECT_FALSE(parts.polling());
    EXPECT_EQ(parts.FlagAvvio, "t");
    EXPECT_EQ(parts.PathTransito, "C:\\arch\\trans.d");
}

TEST(CommandLineTest, ANetworkPathKeepsItsLeadingSeparatorsAndLosesTheInnerDoubledOne) {
    expectParts({"\\\\server\\share\\\\dir\\trans.dat 1 EV", "\\\\server\\share\\dir\\trans.dat",
                 "\\\\server\\share\\dir\\", "1", "EV"});
    expectParts({"//server//share/trans.dat 1 EV", "//server/share/trans.dat", "//server/share/", "1", "EV"});
}

TEST(CommandLineTest, AMixedPathKeepsTheBackslashAndTheLastSlashEndsTheFolder) {
    expectParts({"C:/arch\\/x.dat 1 EV", "C:/arch\\x.dat", "C:/", "1", "EV"});
}

TEST(CommandLineTest, TheReplacementsRunOneAfterTheOtherOverTheWholePath) {
    const std::vector<std::pair<std::string, std::string>> table{
        {"a\\\\b", "a\\b"},     {"a//b", "a/b"},    {"a\\/b", "a\\b"},  {"a/\\b", "a\\b"},  {"a///b", "a//b"},
        {"a\\\\\\b", "a\\\\b"}, {"a\\//b", "a\\b"}, {"a//\\b", "a\\b"}, {"a/\\/b", "a\\b"},
    };
    for (const auto& [given, path] : table) {
        EXPECT_EQ(parseCommandLine("x" + given + " 1 EV").PathTransito, "x" + path) << given;
    }
}

TEST(CommandLineTest, NoeventInAnyLetterCaseSelectsPolling) {
    for (const char* name : {"NOEVENT", "noevent", "NoEvent", "nOEVENT"}) {
        EXPECT_TRUE(parseCommandLine(std::string("C:\\x.dat 1 ") + name).polling()) << name;
    }
    for (const char* name : {"NOEVENTS", "NOEVEN", "", "EV", "N0EVENT", "XNOEVENT", "NOEVENT\x01"}) {
        RigaComando parts;
        parts.NomeEvento = name;
        EXPECT_FALSE(parts.polling()) << name;
    }
}

TEST(CommandLineTest, BlanksAroundTheLineAreLeftAside) {
    expectParts({"   C:\\x.dat 0 NOEVENT   ", "C:\\x.dat", "C:\\", "0", "NOEVENT"});
}

TEST(CommandLineTest, APathMayHoldBlanks) {
    expectParts(
        {"C:\\my arch\\trans file.dat 1 EV", "C:\\my arch\\trans file.dat", "C:\\my arch\\", "1", "EV"});
}

TEST(CommandLineTest, AnyCharacterMaySeparateTheFlag) {
    expectParts({"C:\\x.dat,1 EV", "C:\\x.dat", "C:\\", "1", "EV"});
}

TEST(CommandLineTest, ASecondBlankBeforeTheEventBelongsToTheRest) {
    expectParts({"C:\\x.dat 1  EV", "C:\\x.dat ", "C:\\", " ", "EV"});
}

TEST(CommandLineTest, APathWithoutFolderIsInTheCurrentOne) {
    expectParts({"trans.dat 1 EV", "trans.dat", ".\\", "1", "EV"});
}

TEST(CommandLineTest, LinesThatAreTooShortLeaveEmptyParts) {
    for (const char* line : {"", " ", "    "}) {
        expectParts({line, "", ".\\", "", ""});
    }
    expectParts({"x", "", ".\\", "x", ""});
    expectParts({"x y", "", ".\\", "x", "y"});
    expectParts({" 1 EV", "", ".\\", "1", "EV"});
}

TEST(CommandLineTest, NamesMayBeAnyBytes) {
    expectParts({"C:\\citt\xE0\\x.dat 1 \xE8\x01", "C:\\citt\xE0\\x.dat", "C:\\citt\xE0\\", "1", "\xE8\x01"});
}

} // namespace
} // namespace planner::test
