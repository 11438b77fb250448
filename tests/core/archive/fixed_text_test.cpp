// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/fixed_text.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace planner::test {
namespace {

using namespace std::string_view_literals;

TEST(FixedTextTest, IsBlankAtFirst) {
    EXPECT_EQ(FixedText<3>().view(), "   ");
}

TEST(FixedTextTest, AShorterTextIsPaddedWithBlanksOnTheRight) {
    EXPECT_EQ(FixedText<4>("ab").view(), "ab  ");
    EXPECT_EQ(FixedText<4>("").view(), "    ");
}

TEST(FixedTextTest, ALongerTextIsCut) {
    EXPECT_EQ(FixedText<2>("abc").view(), "ab");
}

TEST(FixedTextTest, AssigningLeavesNothingOfTheTextBefore) {
    FixedText<4> field("abcd");
    field.assign("x");
    EXPECT_EQ(field.view(), "x   ");
}

TEST(FixedTextTest, KeepsEveryByte) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text{'a', static_cast<char>(byte), 'b'};
        EXPECT_EQ(FixedText<3>(text).text(), text) << byte;
    }
}

TEST(FixedTextTest, TakesAsManyBytesAsCharactersSoThatRecordsHaveNoGaps) {
    EXPECT_EQ(sizeof(FixedText<1>), 1u);
    EXPECT_EQ(sizeof(FixedText<60>), 60u);
    EXPECT_EQ(alignof(FixedText<60>), 1u);
    EXPECT_TRUE(std::is_trivially_copyable_v<FixedText<60>>);
}

TEST(FixedTextTest, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(FixedText<4>(" 7").trimmed(), "7");
    EXPECT_EQ(FixedText<4>(" 7").trimmedRight(), " 7");
    EXPECT_EQ(FixedText<4>("\t7\0"sv).trimmed(), "\t7\0"sv);
}

TEST(TrimTest, TakesTheBlanksAtTheEndsAndNoneInside) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trimRight("  a b  "), "  a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trimRight("   "), "");
    EXPECT_EQ(trim(""), "");
}

TEST(SliceTest, IsShorterOrEmptyWhereTheTextEnds) {
    EXPECT_EQ(slice("abcdef", 1, 3), "bcd");
    EXPECT_EQ(slice("abcdef", 4, 8), "ef");
    EXPECT_EQ(slice("abcdef", 6, 1), "");
    EXPECT_EQ(slice("", 0, 1), "");
    EXPECT_EQ(lastChars("abc", 2), "bc");
    EXPECT_EQ(lastChars("a", 2), "a");
    EXPECT_EQ(lastChars("", 1), "");
}

} // namespace
} // namespace planner::test
