// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ports/runtime_errors.h"
#include "session/calendar_rules.h"
#include "support/planner_bench.h"

#include <gtest/gtest.h>
#include <set>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

TEST(ConvertiDurataTest, NoDurationIsNoSlot) {
    EXPECT_EQ(ConvertiDurata("00:00"), 0);
    EXPECT_EQ(ConvertiDurata("0000000"), 0);
    EXPECT_EQ(ConvertiDurata(""), 0);
    EXPECT_EQ(ConvertiDurata("       "), 0);
}

TEST(ConvertiDurataTest, TenHoursAre40Slots) {
    EXPECT_EQ(ConvertiDurata("10:00"), 40);
    EXPECT_EQ(ConvertiDurata("0001000"), 40);
}

TEST(ConvertiDurataTest, FiftyNineMinutesAre4Slots) {
    EXPECT_EQ(ConvertiDurata("00:59"), 4);
    EXPECT_EQ(ConvertiDurata("0000059"), 4);
}

TEST(ConvertiDurataTest, TheHoursEndAtTheFirstCharacterThatIsNoNumber) {
    EXPECT_EQ(ConvertiDurata("01:30"), 6);
}

TEST(ConvertiDurataTest, RoundsToTheNearestSlot) {
    const std::vector<std::pair<std::string_view, int>> table{
        {"0000007", 0}, {"0000008", 1}, {"0000022", 1}, {"0000023", 2}, {"0000037", 2}, {"0000038", 3},
    };
    for (const auto& [text, slots] : table) {
        EXPECT_EQ(ConvertiDurata(text), slots) << text;
    }
}

TEST(ConvertiDurataTest, PartsOfAnHourRoundToTheEvenMinute) {
    EXPECT_EQ(ConvertiDurata("0.12500"), 1); // 7.5 minutes count as 8
    EXPECT_EQ(ConvertiDurata("0.37500"), 1); // 22.5 minutes count as 22
}

TEST(ConvertiDurataTest, MoreMinutesThan16BitsHoldAreAnOverflow) {
    EXPECT_EQ(ConvertiDurata("0054607"), 2184); // 32,767 minutes
    EXPECT_THROW(ConvertiDurata("0054608"), OverflowError);
    EXPECT_THROW(ConvertiDurata("0054700"), OverflowError);
    EXPECT_THROW(ConvertiDurata("9999999"), OverflowError);
    EXPECT_THROW(ConvertiDurata("1e99900"), OverflowError);
}

TEST(CheckAnnoBisestileTest, FollowsTheGregorianRule) {
    EXPECT_FALSE(CheckAnnoBisestile(1900));
    EXPECT_TRUE(CheckAnnoBisestile(2000));
    EXPECT_TRUE(CheckAnnoBisestile(2004));
    EXPECT_FALSE(CheckAnnoBisestile(2006));
    EXPECT_FALSE(CheckAnnoBisestile(2100));
    EXPECT_TRUE(CheckAnnoBisestile(2400));
}

TEST(GiorniMeseTest, LengthsAreTextsAndFebruaryFollowsTheYear) {
    const TabellaGiorniMese common{"31", "28", "31", "30", "31", "30", "31", "31", "30", "31", "30", "31"};
    const TabellaGiorniMese leap{"31", "29", "31", "30", "31", "30", "31", "31", "30", "31", "30", "31"};
    EXPECT_EQ(giorniMese(2006), common);
    EXPECT_EQ(giorniMese(2004), leap);
    EXPECT_EQ(giorniMese(1900), common);
    EXPECT_EQ(lunghezzaMese(leap, 2), 29);
    EXPECT_EQ(lunghezzaMese(leap, 12), 31);
    EXPECT_THROW(lunghezzaMese(leap, 0), SubscriptError);
    EXPECT_THROW(lunghezzaMese(leap, 13), SubscriptError);
}

TEST(NomiMesiTest, AreTheTwelveItalianNames) {
    const std::array<std::string_view, 12> names{"Gennaio",   "Febbraio", "Marzo",    "Aprile",
                                                 "Maggio",    "Giugno",   "Luglio",   "Agosto",
                                                 "Settembre", "Ottobre",  "Novembre", "Dicembre"};
    EXPECT_EQ(NomiMesi, names);
    EXPECT_EQ(nomeMese(1), "Gennaio");
    EXPECT_EQ(nomeMese(12), "Dicembre");
    EXPECT_THROW(nomeMese(0), SubscriptError);
    EXPECT_THROW(nomeMese(13), SubscriptError);
    EXPECT_EQ(meseInFrase(1), "gennaio");
    EXPECT_EQ(meseInFrase(12), "dicembre");
    EXPECT_THROW(meseInFrase(0), SubscriptError);
}

class CheckGiornoFestivoTest : public testing::Test {
protected:
    /// Days are counted from 0; the cell is black before.
    bool check(int giorno, int mese) {
        griglia.setCaption(0, 1, Ruolo::lettera, "L");
        return CheckGiornoFestivo(griglia, 0, 1, giorno, mese);
    }

    Griglia griglia{2, 3, 1, Colore::bianco};
};

TEST_F(CheckGiornoFestivoTest, TheFirstIsAHolidayInJanuaryAndNotInFebruary) {
    EXPECT_TRUE(check(0, 1));
    EXPECT_FALSE(check(0, 2));
}

TEST_F(CheckGiornoFestivoTest, The25thIsAHolidayInAprilAndDecemberOnly) {
    for (int mese = 1; mese <= 12; ++mese) {
        EXPECT_EQ(check(24, mese), mese == 4 || mese == 12) << mese;
    }
}

TEST_F(CheckGiornoFestivoTest, TheYearHasExactlyTheseTenHolidays) {
    const std::set<std::pair<int, int>> holidays{// month and day, the day from 0
                                                 {1, 0},   {5, 0}, {11, 0}, {12, 7}, {12, 24},
                                                 {12, 25}, {1, 5}, {4, 24}, {6, 1},  {8, 14}};
    for (int mese = 1; mese <= 12; ++mese) {
        for (int giorno = 0; giorno < 31; ++giorno) {
            EXPECT_EQ(check(giorno, mese), holidays.contains({mese, giorno})) << mese << " " << giorno;
        }
    }
    EXPECT_EQ(Festivi.size(), holidays.size());
}

TEST_F(CheckGiornoFestivoTest, AHitColoursTheCellPureRedAndNothingElse) {
    check(0, 1);
    EXPECT_EQ(rgb(griglia.CellForeColor(0, 1)), (Rgb{255, 0, 0}));
    EXPECT_EQ(griglia.cella(0, 2), Cella{});
    EXPECT_EQ(griglia.cella(1, 1), Cella{});
}

TEST_F(CheckGiornoFestivoTest, NoHitChangesNothing) {
    check(1, 1);
    EXPECT_EQ(griglia.CellForeColor(0, 1), Colore::nero);
}

TEST(DayofweekTest, AMonthThatBeginsOnASundayGives1) {
    EXPECT_EQ(primoGiornoSettimana(2006, 10), 1);
    EXPECT_EQ(primoGiornoSettimana(2006, 5), 2);
    EXPECT_EQ(primoGiornoSettimana(2006, 7), 7);
}

TEST(DayofweekTest, LooksAtTheFirstOfTheShownMonthWhateverTheDay) {
    PlannerBench bench;
    bench.controlli.calendario.setValue(*makeDate(2006, 10, 31));
    EXPECT_EQ(bench.motore.Dayofweek(), 1);
    bench.controlli.calendario.setValue(*makeDate(2006, 3, 15));
    EXPECT_EQ(bench.motore.Dayofweek(), 4);
}

TEST(DayofweekTest, TheMonthStartsInItsWeekdaysMondayFirstColumn) {
    EXPECT_EQ(colonnaPrimoGiorno(2006, 1), 7);
    // Months whose first days are a Monday, a Tuesday and so on to a Saturday.
    const std::array months{5, 8, 2, 6, 9, 4};
    for (int column = 1; column <= 6; ++column) {
        EXPECT_EQ(colonnaPrimoGiorno(2006, months.at(static_cast<std::size_t>(column - 1))), column);
    }
}

} // namespace
} // namespace planner::test
