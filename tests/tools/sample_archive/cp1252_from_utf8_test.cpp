// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "sample_archive/cp1252_from_utf8.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

TEST(Cp1252FromUtf8Test, All256BytesComeBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text{static_cast<char>(byte)};
        EXPECT_EQ(cp1252FromUtf8(utf8FromCp1252(text)), text) << byte;
    }
}

TEST(Cp1252FromUtf8Test, ItalianTextIsTaken) {
    EXPECT_EQ(cp1252FromUtf8("perch\u00E9"), "perch\xE9");
    EXPECT_EQ(cp1252FromUtf8(""), "");
}

TEST(Cp1252FromUtf8Test, CharactersThatTheCodePageLacksAreRefused) {
    EXPECT_FALSE(cp1252FromUtf8("\u0080")); // byte 0x80 is another character
    EXPECT_FALSE(cp1252FromUtf8("a\u0416"));
    EXPECT_FALSE(cp1252FromUtf8("\U0001F600"));
}

TEST(Cp1252FromUtf8Test, TextThatIsNotUtf8IsRefused) {
    for (const std::string_view text :
         {"\x80", "\xC3", "\xC3(", "\xE2\x82", "\xE2\x28\xA1", "a\xFF", "\xC3\xC3", "\xF0\x9F\x98\x80"}) {
        EXPECT_FALSE(cp1252FromUtf8(text));
    }
}

TEST(Cp1252FromUtf8Test, OverlongFormsAreRefused) {
    EXPECT_FALSE(cp1252FromUtf8("\xC1\x81"));
    EXPECT_FALSE(cp1252FromUtf8("\xC0\x80"));
    EXPECT_FALSE(cp1252FromUtf8("\xE0\x81\x81"));
}

} // namespace
} // namespace planner::test
