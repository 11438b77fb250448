// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ports/runtime_errors.h"
#include "session/tipi_impegno.h"
#include "support/builders.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

/// The picture key of the kinds that the counters hold.
std::string_view chiaveTipi(const ValoriContatori& valori) {
    return chiaveImmagine(immagineTipi(tipiPresenti(valori)));
}

TabellaTotali::Riga totalsOf(const RigaPlanner& riga) {
    TabellaTotali totals(0);
    totals.aggiungi({0}, valoriContatori(riga));
    return totals.righe().at(0);
}

TEST(TotalsTest, EachCounterAddsUpInItsCategory) {
    // Counter n holds the n-th power of two, so that each sum tells its parts.
    const auto record = riga("RB", "20060315",
                             {{1, "1"},
                              {2, "2"},
                              {3, "4"},
                              {4, "8"},
                              {5, "16"},
                              {6, "32"},
                              {7, "64"},
                              {8, "128"},
                              {9, "256"},
                              {10, "512"},
                              {11, "1024"}});
    EXPECT_EQ(totalsOf(record), (TabellaTotali::Riga{16 + 1, 32 + 2, 128, 64, 256 + 4, 512 + 8, 1024}));
}

TEST(TotalsTest, CategoriesHaveTheirNamesAndCounters) {
    const std::vector<std::tuple<std::string_view, int, int>> table{
        {"scadenze", 5, 1},       {"pratiche", 6, 2},          {"impegni vari", 8, 0},
        {"note riservate", 7, 0}, {"scadenze concluse", 9, 3}, {"pratiche concluse", 10, 4},
        {"altro", 11, 0}};
    ASSERT_EQ(CategorieTotali.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto& [nome, contatori] = CategorieTotali[i];
        EXPECT_EQ(std::make_tuple(nome, int{contatori[0]}, int{contatori[1]}), table[i]);
    }
}

TEST(TotalsTest, OneCounterAtATime) {
    const std::vector<std::size_t> categoryOf{0, 1, 4, 5, 0, 1, 3, 2, 4, 5, 6}; // of counters 1 to 11
    for (std::size_t counter = 1; counter <= 11; ++counter) {
        TabellaTotali::Riga expected{};
        expected.at(categoryOf[counter - 1]) = 7;
        EXPECT_EQ(totalsOf(riga("RB", "20060315", {{counter, "00007"}})), expected) << counter;
    }
}

TEST(TotalsTest, CountersAreNumericValues) {
    EXPECT_EQ(totalsOf(riga("RB", "20060315", {{1, "  3"}, {5, "4abc"}, {2, "abc"}, {8, "-2"}})),
              (TabellaTotali::Riga{7, 0, -2, 0, 0, 0, 0}));
    EXPECT_EQ(totalsOf(riga("RB", "20060315", {{8, "2.5"}, {7, "3.5"}})),
              (TabellaTotali::Riga{0, 0, 2, 4, 0, 0, 0}));
}

TEST(TotalsTest, ANewTableIsAllZeroWithIndicesUpToItsBound) {
    const TabellaTotali totals(3);
    EXPECT_EQ(totals.upperBound(), 3);
    for (int index = 0; index <= 3; ++index) {
        for (int category = 0; category <= 6; ++category) {
            EXPECT_EQ(totals.at({index}, static_cast<Totale>(category)), 0);
        }
    }
}

TEST(TotalsTest, BeyondTheTableNothingIsAddedAndNothingStands) {
    TabellaTotali totals(1);
    const auto values = valoriContatori(riga("RB", "20060315", {{1, "00007"}}));
    for (const int index : {2, -1, 32767}) {
        totals.aggiungi({index}, values);
        EXPECT_EQ(totals.at({index}, Totale::scadenze), 0) << index;
        EXPECT_FALSE(totals.contiene({index})) << index;
    }
    EXPECT_EQ(totals.righe(), TabellaTotali(1).righe());
    EXPECT_TRUE(totals.contiene({1}));
}

TEST(TotalsTest, ACategoryThatIsNoneIsASubscriptError) {
    const TabellaTotali totals(1);
    EXPECT_THROW(totals.at({0}, static_cast<Totale>(7)), SubscriptError);
    EXPECT_THROW(totals.at({0}, static_cast<Totale>(UINT8_MAX)), SubscriptError);
}

TEST(TotalsTest, ARecordThatOverflowsOneTotalChangesNone) {
    TabellaTotali totals(0);
    totals.aggiungi({0}, valoriContatori(riga("RB", "20060315", {{1, "00005"}, {11, "32000"}})));
    const auto before = totals.righe();
    EXPECT_THROW(totals.aggiungi({0}, valoriContatori(riga("RB", "20060315", {{1, "00001"}, {11, "00768"}}))),
                 OverflowError);
    EXPECT_EQ(totals.righe(), before);
    totals.aggiungi({0}, valoriContatori(riga("RB", "20060315", {{11, "00767"}})));
    EXPECT_EQ(totals.at({0}, Totale::altro), 32767);
}

TEST(TotalsTest, TheSumOfTwoCountersOverflowsToo) {
    EXPECT_THROW(totalsOf(riga("RB", "20060315", {{1, "20000"}, {5, "20000"}})), OverflowError);
    EXPECT_THROW(totalsOf(riga("RB", "20060315", {{11, "99999"}})), OverflowError);
    EXPECT_THROW(totalsOf(riga("RB", "20060315", {{11, "1e999"}})), OverflowError);
}

TEST(ChiaveTipiTest, NamesTheKindsThatTheCountersHold) {
    const std::vector<std::pair<std::size_t, std::string_view>> table{{1, "3"}, {2, "4"}, {3, ""},  {4, ""},
                                                                      {5, "3"}, {6, "4"}, {7, "1"}, {8, "2"},
                                                                      {9, ""},  {10, ""}, {11, ""}};
    for (const auto& [counter, key] : table) {
        EXPECT_EQ(chiaveTipi(valoriContatori(riga("RB", "20060315", {{counter, "1"}}))), key) << counter;
    }
}

TEST(ChiaveTipiTest, AllSixteenCombinationsGiveAscendingDigits) {
    const std::array<std::size_t, 4> counters{7, 8, 5, 6}; // of digits 1 to 4
    for (unsigned set = 0; set < 16; ++set) {
        ValoriContatori values{};
        std::string key;
        for (unsigned digit = 0; digit < 4; ++digit) {
            if ((set >> digit & 1u) != 0) {
                values.at(counters.at(digit)) = 1;
                key += static_cast<char>('1' + digit);
            }
        }
        EXPECT_EQ(chiaveTipi(values), key);
    }
}

TEST(ChiaveTipiTest, NegativeCountersCountAsPresent) {
    EXPECT_EQ(chiaveTipi(valoriContatori(riga("RB", "20060315", {{7, "-1"}}))), "1");
    EXPECT_EQ(chiaveTipi(valoriContatori(riga("RB", "20060315", {{1, "2"}, {5, "-2"}}))), "3");
}

TEST(ValoriContatoriTest, IndexZeroIsAlwaysZero) {
    const ValoriContatori values = valoriContatori(recordOf<RigaPlanner>(std::string(89, '9')));
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values[1], 99999);
    EXPECT_EQ(values[11], 99999);
}

} // namespace
} // namespace planner::test
