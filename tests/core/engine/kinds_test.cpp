// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/kinds/kind.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

Data day(std::string_view yyyymmdd) {
    return parseDate(yyyymmdd).value();
}

const PeriodoSessione Periodo{day("20051120"), day("20060410")};
const Data Mostrata = day("20060315");

std::string text(std::optional<Data> data) {
    return data ? formatDate(*data) : "stays";
}

std::string text(const PeriodoSessione& periodo) {
    return formatDate(periodo.inizio) + "-" + formatDate(periodo.fine);
}

TEST(KindsTest, EachKindIsFoundByItsName) {
    for (const TipoPlanner tipo : {TipoPlanner::Mensile, TipoPlanner::Giornaliero, TipoPlanner::Annuale}) {
        EXPECT_EQ(regole(tipo).tipo, tipo);
    }
    ControlliPlcal controlli;
    EXPECT_EQ(regoleVisibili(controlli), nullptr);
    controlli.tipoVisibile = TipoPlanner::Annuale;
    EXPECT_EQ(regoleVisibili(controlli), &annuale());
}

TEST(KindsTest, DaysThatMayBeShownAreThoseOfTheMonthsThePeriodOrTheYear) {
    EXPECT_EQ(text(mensile().limiti(Periodo, Mostrata)), "20051101-20060430");
    EXPECT_EQ(text(giornaliero().limiti(Periodo, Mostrata)), "20051120-20060410");
    EXPECT_EQ(text(annuale().limiti(Periodo, Mostrata)), "20060101-20061231");
}

TEST(KindsTest, PeriodButtonsMoveByMonthYearOrDay) {
    EXPECT_EQ(text(mensile().mossa(0, -1, Mostrata, Periodo)), "20060215");
    EXPECT_EQ(text(mensile().mossa(1, -1, Mostrata, {day("20050101"), day("20061231")})), "20050315");
    EXPECT_EQ(text(mensile().mossa(1, -1, Mostrata, Periodo)), "stays");
    EXPECT_EQ(text(mensile().mossa(0, 1, day("20060401"), Periodo)), "stays");
    EXPECT_EQ(text(giornaliero().mossa(0, 1, Mostrata, Periodo)), "20060316");
    EXPECT_EQ(text(giornaliero().mossa(0, 1, day("20060410"), Periodo)), "stays");
}

TEST(KindsTest, TheYearlyButtonsAlwaysHaveAnEffectAndLeaveTheDay) {
    EXPECT_EQ(text(annuale().mossa(0, 1, day("20061231"), Periodo)), "20061231");
}

TEST(KindsTest, AGridShowsTheOtherDaysOfItsMonthOrYear) {
    EXPECT_TRUE(mensile().mostraAnche(day("20060331"), Mostrata));
    EXPECT_FALSE(mensile().mostraAnche(day("20050315"), Mostrata));
    EXPECT_TRUE(giornaliero().mostraAnche(Mostrata, Mostrata));
    EXPECT_FALSE(giornaliero().mostraAnche(day("20060316"), Mostrata));
    EXPECT_TRUE(annuale().mostraAnche(day("20061231"), Mostrata));
    EXPECT_FALSE(annuale().mostraAnche(day("20070315"), Mostrata));
}

TEST(KindsTest, TheYearlyPlannerShowsADayOfThePeriodsYear) {
    EXPECT_EQ(text(annuale().giornoDaMostrare(day("20080229"), day("20070101"))), "20070228");
    EXPECT_EQ(text(mensile().giornoDaMostrare(day("20080229"), day("20070101"))), "20080229");
}

} // namespace
} // namespace planner::test
