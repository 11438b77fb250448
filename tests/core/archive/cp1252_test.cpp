// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"

#include <gtest/gtest.h>
#include <set>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

std::string byteText(int byte) {
    return {static_cast<char>(byte)};
}

TEST(Cp1252Test, EachByteIsACharacterOfItsOwn) {
    std::set<std::string> seen;
    for (int byte = 0; byte < 256; ++byte) {
        seen.insert(utf8FromCp1252(byteText(byte)));
    }
    EXPECT_EQ(seen.size(), 256u);
}

TEST(Cp1252Test, TheLowerHalfIsAscii) {
    for (int byte = 0; byte < 0x80; ++byte) {
        EXPECT_EQ(utf8FromCp1252(byteText(byte)), byteText(byte));
    }
}

TEST(Cp1252Test, TheUpperQuarterIsLatin1) {
    for (int byte = 0xA0; byte < 0x100; ++byte) {
        EXPECT_EQ(Cp1252Characters.at(static_cast<std::size_t>(byte)), byte);
    }
}

TEST(Cp1252Test, TheBytesBetweenAreTheCodePagesOwn) {
    const std::vector<std::pair<int, char16_t>> table{
        {0x80, u'\u20AC'}, {0x82, u'\u201A'}, {0x83, u'\u0192'}, {0x84, u'\u201E'}, {0x85, u'\u2026'},
        {0x86, u'\u2020'}, {0x87, u'\u2021'}, {0x88, u'\u02C6'}, {0x89, u'\u2030'}, {0x8A, u'\u0160'},
        {0x8B, u'\u2039'}, {0x8C, u'\u0152'}, {0x8E, u'\u017D'}, {0x91, u'\u2018'}, {0x92, u'\u2019'},
        {0x93, u'\u201C'}, {0x94, u'\u201D'}, {0x95, u'\u2022'}, {0x96, u'\u2013'}, {0x97, u'\u2014'},
        {0x98, u'\u02DC'}, {0x99, u'\u2122'}, {0x9A, u'\u0161'}, {0x9B, u'\u203A'}, {0x9C, u'\u0153'},
        {0x9E, u'\u017E'}, {0x9F, u'\u0178'},
    };
    for (const auto& [byte, character] : table) {
        EXPECT_EQ(Cp1252Characters.at(static_cast<std::size_t>(byte)), character) << byte;
    }
}

TEST(Cp1252Test, TheFiveUndefinedBytesAreTheControlCharactersOfTheSameNumber) {
    for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(Cp1252Characters.at(static_cast<std::size_t>(byte)), byte);
    }
}

TEST(Cp1252Test, ItalianTextIsReadable) {
    EXPECT_EQ(utf8FromCp1252("Libert\xE0 \x80 5"), "Libert\u00E0 \u20AC 5");
    EXPECT_EQ(utf8FromCp1252(""), "");
}

} // namespace
} // namespace planner::test
