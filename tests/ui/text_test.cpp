// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "ui/kit/text.h"

#include <gtest/gtest.h>

namespace planner {

TEST(TextTest, EachOfThe256BytesBecomesTheCharacterOfTheCodePage) {
    for (int byte = 0; byte < 256; ++byte) {
        const char bytes[] = {static_cast<char>(byte)};
        const QString text = fromCp1252({bytes, 1});
        ASSERT_EQ(text.size(), 1) << byte;
        EXPECT_EQ(text[0].unicode(), Cp1252Characters.at(static_cast<std::size_t>(byte))) << byte;
    }
}

TEST(TextTest, AccentsAndEuroOfTheCodePageAreReadable) {
    EXPECT_EQ(fromCp1252("Nicol\xF2 \x80"), QStringLiteral("Nicolò €"));
}

TEST(TextTest, TheProgramsOwnTextsAreUtf8) {
    EXPECT_EQ(fromUtf8("è già"), QStringLiteral("è già"));
}

} // namespace planner
