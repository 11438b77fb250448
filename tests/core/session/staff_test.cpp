// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/staff.h"
#include "session/tipi_impegno.h"
#include "support/planner_bench.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

class StaffTest : public testing::Test {
protected:
    StaffTest() {
        bench.putCollaboratori({collaboratore("BI", "Bianchi Rosa"), collaboratore("7 ", "Verdi Ugo"),
                                collaboratore(" 8", "Neri Ada"), collaboratore("BI", "Un altro")});
        bench.sessione.PathArchivi = PlannerBench::Cartella;
        EXPECT_TRUE(bench.motore.LeggiCollab());
    }

    PlannerBench bench;
};

TEST_F(StaffTest, ACodeWithBlanksAroundItMatchesTheRecord) {
    EXPECT_EQ(bench.motore.IndCollaboratore(" 7").valore, 1);
    EXPECT_EQ(bench.motore.IndCollaboratore("7 ").valore, 1);
    EXPECT_EQ(bench.motore.IndCollaboratore("7").valore, 1);
    EXPECT_EQ(bench.motore.IndCollaboratore("  7   ").valore, 1);
    EXPECT_EQ(bench.motore.IndCollaboratore("8 ").valore, 2);
    EXPECT_EQ(bench.motore.EstraiCollaboratore(" 7"), "Verdi Ugo");
}

TEST_F(StaffTest, AnUnknownCodeGivesTheLastIndexAndTwoBlanks) {
    for (const std::string_view codice : {"XX", "77", "BIX", "b", "bi", "\xFF\xFF"}) {
        EXPECT_EQ(bench.motore.IndCollaboratore(codice).valore, 4) << codice;
        EXPECT_EQ(bench.motore.EstraiCollaboratore(codice), "  ") << codice;
    }
}

TEST_F(StaffTest, ABlankCodeIsTheBlankElementBeyondTheStaff) {
    EXPECT_EQ(bench.motore.IndCollaboratore("  ").valore, 4);
    EXPECT_EQ(bench.motore.IndCollaboratore("").valore, 4);
    EXPECT_EQ(bench.motore.EstraiCollaboratore("  "), "");
}

TEST_F(StaffTest, OfEqualCodesTheFirstCounts) {
    EXPECT_EQ(bench.motore.IndCollaboratore("BI").valore, 0);
    EXPECT_EQ(bench.motore.EstraiCollaboratore("BI"), "Bianchi Rosa");
}

TEST_F(StaffTest, TheNameHasNoBlanksAtItsEnd) {
    bench.putCollaboratori({collaboratore("RB", "  Rossi  Bruno  ")});
    bench.motore.LeggiCollab();
    EXPECT_EQ(bench.motore.EstraiCollaboratore("RB"), "  Rossi  Bruno");
}

TEST_F(StaffTest, ThePartialRecordAtTheFilesEndIsTheLastElement) {
    bench.put(FileCollaboratori, bytesOf(collaboratore("BI", "Bianchi Rosa")) + "RBRossi");
    bench.motore.LeggiCollab();
    EXPECT_EQ(bench.sessione.archivi.NumCollab, 1);
    EXPECT_EQ(bench.motore.IndCollaboratore("RB").valore, 1);
    EXPECT_EQ(bench.motore.EstraiCollaboratore("RB"), "Rossi");
}

TEST(IndiceCodiciTest, AnEmptyTableGivesItsFirstIndex) {
    EXPECT_EQ(IndiceCodici().IndCollaboratore("RB").valore, 0);
    EXPECT_EQ(IndiceCodici().trova("RB").valore, -1);
}

TEST(IndiceCodiciTest, FindsWhatAWalkThroughTheTableFinds) {
    std::vector<Collaboratore> staff;
    for (int first = 0; first < 256; first += 5) {
        for (int second = 0; second < 256; second += 7) {
            const std::string code{static_cast<char>(first), static_cast<char>(second)};
            staff.push_back(collaboratore(code, "x"));
        }
    }
    const IndiceCodici index(staff);
    for (const Collaboratore& wanted : staff) {
        const auto found = std::find_if(staff.begin(), staff.end(), [&](const Collaboratore& one) {
            return one.codice.trimmed() == wanted.codice.trimmed();
        });
        EXPECT_EQ(index.IndCollaboratore(wanted.codice.view()).valore, found - staff.begin());
    }
}

TEST(IndiceCodiciTest, ServesAsManyStaffMembersAs16BitsCount) {
    std::vector<Collaboratore> staff(32768);
    for (std::size_t i = 0; i < 32767; ++i) {
        staff[i].codice.assign(std::string{static_cast<char>(i / 256 + 128), static_cast<char>(i % 256)});
    }
    const IndiceCodici index(staff);
    EXPECT_EQ(index.IndCollaboratore(staff[32766].codice.view()).valore, 32766);
    EXPECT_EQ(index.IndCollaboratore("??").valore, 32767);
}

TEST(EvalImagedisplayTest, EachKeyHasItsPicture) {
    const std::vector<std::pair<std::string_view, int>> table{
        {"1234", 1}, {"123", 2}, {"12", 3}, {"124", 4},  {"134", 5}, {"13", 6},  {"14", 7}, {"1", 8},
        {"2", 9},    {"3", 10},  {"4", 11}, {"234", 12}, {"23", 13}, {"24", 14}, {"34", 15}};
    for (const auto& [key, picture] : table) {
        EXPECT_EQ(Eval_imagedisplay(key), picture) << key;
        EXPECT_EQ(chiaveImmagine(picture), key);
    }
    EXPECT_EQ(ChiaviImmagini.size(), table.size());
}

TEST(EvalImagedisplayTest, TheFourDigitsNameTheKindsOfEntries) {
    const std::vector<std::pair<char, std::string_view>> table{
        {'1', "note riservate"}, {'2', "impegni vari"}, {'3', "scadenze"}, {'4', "pratiche"}};
    ASSERT_EQ(TipiImpegno.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(std::make_pair(TipiImpegno[i].cifra, TipiImpegno[i].nome), table[i]);
    }
    EXPECT_EQ(ImmaginePresenza, 16);
}

TEST(EvalImagedisplayTest, ASetOfKindsHasThePictureOfItsKey) {
    for (unsigned kinds = 0; kinds < 16; ++kinds) {
        std::string key;
        for (unsigned digit = 0; digit < 4; ++digit) {
            key += (kinds >> digit & 1u) != 0 ? std::string(1, static_cast<char>('1' + digit)) : "";
        }
        EXPECT_EQ(immagineTipi(kinds), Eval_imagedisplay(key)) << key;
    }
    EXPECT_EQ(immagineTipi(16), 0);
}

TEST(EvalImagedisplayTest, TheEmptyKeyHasNoPicture) {
    EXPECT_EQ(Eval_imagedisplay(""), 0);
}

TEST(EvalImagedisplayTest, DigitsMustBeAscending) {
    EXPECT_EQ(Eval_imagedisplay("21"), 0);
    EXPECT_EQ(Eval_imagedisplay("4321"), 0);
}

TEST(EvalImagedisplayTest, AnythingElseHasNoPicture) {
    for (const std::string_view key : {" 1", "1 ", "11", "5", "12345", "a"}) {
        EXPECT_EQ(Eval_imagedisplay(key), 0) << key;
    }
    EXPECT_EQ(chiaveImmagine(0), "");
    EXPECT_EQ(chiaveImmagine(-1), "");
    EXPECT_EQ(chiaveImmagine(16), "");
}

} // namespace
} // namespace planner::test
