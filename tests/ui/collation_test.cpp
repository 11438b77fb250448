// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_collation.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace planner {

namespace {

struct CollationTest : testing::Test {
    QtCollation collation;

    bool before(std::string_view a, std::string_view b) {
        return collation.compare(a, b) < 0 && collation.compare(b, a) > 0;
    }
};

} // namespace

TEST_F(CollationTest, AccentedLettersStandWithTheirPlainOnes) {
    EXPECT_TRUE(before("Àlvaro", "Zeta"));
    EXPECT_TRUE(before("Alba", "Àlvaro"));
    EXPECT_TRUE(before("Nicolò", "Nicosia"));
    EXPECT_TRUE(before("Cantu", "Cantù"));
}

TEST_F(CollationTest, CaseDoesNotSeparateNames) {
    EXPECT_EQ(collation.compare("ROSSI BRUNO", "Rossi Bruno"), 0);
    EXPECT_TRUE(before("bianchi", "ROSSI"));
    EXPECT_TRUE(before("BIANCHI", "rossi"));
}

TEST_F(CollationTest, AnApostropheStandsBeforeTheLetters) {
    EXPECT_TRUE(before("D'Angelo", "Danieli"));
    EXPECT_TRUE(before("D'Angelo", "De Rossi"));
    EXPECT_TRUE(before("Conti", "D'Angelo"));
}

TEST_F(CollationTest, AShorterNameStandsFirstAndAnEmptyOneBeforeAll) {
    EXPECT_TRUE(before("Rossi", "Rossi Bruno"));
    EXPECT_TRUE(before("", "A"));
}

TEST_F(CollationTest, AStaffListStandsInItalianOrder) {
    std::vector<std::string> names{"Zeta",         "D'Angelo Anna", "Èvola Ugo", "De Rossi Pia",
                                   "alfieri Rita", "Àlvaro Pia",    "Conti",     "Evoli Anna"};
    std::stable_sort(names.begin(), names.end(),
                     [&](const auto& a, const auto& b) { return collation.compare(a, b) < 0; });
    EXPECT_THAT(names, testing::ElementsAre("alfieri Rita", "Àlvaro Pia", "Conti", "D'Angelo Anna",
                                            "De Rossi Pia", "Èvola Ugo", "Evoli Anna", "Zeta"));
}

TEST_F(CollationTest, FoldingTakesCaseAndAccentsAway) {
    EXPECT_EQ(collation.folded("NICOLÒ D'Amico"), "nicolo d'amico");
    EXPECT_EQ(collation.folded("Çelik Ñáñez Müller"), "celik nanez muller");
    EXPECT_EQ(collation.folded("plain TEXT 7"), "plain text 7");
    EXPECT_EQ(collation.folded(""), "");
}

TEST_F(CollationTest, AnAccentOfItsOwnFoldsAsTheAccentedLetterDoes) {
    EXPECT_EQ(collation.folded("Nicolo\u0300"), collation.folded("Nicolò"));
}

TEST_F(CollationTest, AsciiFoldsTheSameAloneAndAmongAccents) {
    const std::string ascii = "AZ az 09 []^_`{|}~ %1 <&>";
    EXPECT_EQ(collation.folded(ascii) + "e", collation.folded(ascii + "È"));
}

} // namespace planner
