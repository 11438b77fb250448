// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/request_dates.h"
#include "support/planner_bench.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

class RequestDatesTest : public testing::Test {
protected:
    static DateRichiesta read(std::string_view giorno, std::string_view start, std::string_view end,
                              std::optional<TipoPlanner> tipo = TipoPlanner::Mensile) {
        return readRequestDates(tipo, {giorno, start, end}, *makeDate(2010, 7, 20));
    }
    static std::string shownInYear(std::string_view giorno, std::string_view start, std::string_view end) {
        return formatDate(read(giorno, start, end, TipoPlanner::Annuale).mostrata);
    }
};

TEST_F(RequestDatesTest, TheIncomingDayIsShown) {
    EXPECT_EQ(formatDate(read("20060610", "20060101", "20061231").mostrata), "20060610");
}

TEST_F(RequestDatesTest, WithoutAnIncomingDayTheStartDateIsShown) {
    for (const std::string_view none : {"00000000", "        ", "", "0000    ", "  00  00", "0"}) {
        const DateRichiesta dates = read(none, "20060315", "20061231");
        EXPECT_EQ(formatDate(dates.mostrata), "20060315") << none;
        EXPECT_EQ(dates.guaio, "") << none;
    }
}

TEST_F(RequestDatesTest, WithoutDayAndStartTheFirstDayOfTheEndsYearIsShown) {
    EXPECT_EQ(formatDate(read("00000000", "00000000", "20060614").mostrata), "20060101");
}

TEST_F(RequestDatesTest, WithoutAnyDateTodayIsShown) {
    const DateRichiesta dates = read("00000000", "        ", "0000    ");
    EXPECT_EQ(formatDate(dates.mostrata), "20100720");
    EXPECT_EQ(dates.guaio, "");
}

TEST_F(RequestDatesTest, TheYearlyPlannerShowsTheDayInTheYearOfTheStart) {
    EXPECT_EQ(shownInYear("20060605", "20070101", "20071231"), "20070605");
    EXPECT_EQ(shownInYear("20060605", "20050301", "00000000"), "20050605");
    EXPECT_EQ(shownInYear("20060605", "00000000", "20071231"), "20070605");
    EXPECT_EQ(shownInYear("20060605", "00000000", "00000000"), "20060605");
    EXPECT_EQ(shownInYear("00000000", "00000000", "00000000"), "20100720");
    EXPECT_EQ(shownInYear("00000000", "20070315", "20071231"), "20070315");
}

TEST_F(RequestDatesTest, TheYearlyPlannerShows28FebruaryWhereTheYearLacksThe29th) {
    EXPECT_EQ(shownInYear("20080229", "20070101", "20071231"), "20070228");
    EXPECT_EQ(shownInYear("20080229", "20040101", "20041231"), "20040229");
}

TEST_F(RequestDatesTest, OnlyTheYearlyPlannerMovesTheDayIntoTheStartsYear) {
    for (const TipoPlanner tipo : {TipoPlanner::Mensile, TipoPlanner::Giornaliero}) {
        EXPECT_EQ(formatDate(read("20060605", "20070101", "20071231", tipo).mostrata), "20060605");
    }
}

TEST_F(RequestDatesTest, ThePeriodIsTheRequests) {
    const DateRichiesta dates = read("00000000", "20060315", "20070614");
    EXPECT_EQ(formatDate(dates.periodo.inizio), "20060315");
    EXPECT_EQ(formatDate(dates.periodo.fine), "20070614");
}

TEST_F(RequestDatesTest, AMissingEndIsTheLastDayOfTheStartsYear) {
    EXPECT_EQ(formatDate(read("00000000", "20060315", "00000000").periodo.fine), "20061231");
    EXPECT_EQ(formatDate(read("20081111", "20060315", "        ").periodo.fine), "20061231");
}

TEST_F(RequestDatesTest, AMissingStartIsTheFirstDayOfTheEndsYear) {
    EXPECT_EQ(formatDate(read("00000000", "00000000", "20070614").periodo.inizio), "20070101");
}

TEST_F(RequestDatesTest, WithoutStartAndEndThePeriodIsTheShownDaysYear) {
    DateRichiesta dates = read("20060610", "00000000", "00000000");
    EXPECT_EQ(formatDate(dates.periodo.inizio), "20060101");
    EXPECT_EQ(formatDate(dates.periodo.fine), "20061231");
    dates = read("00000000", "00000000", "00000000");
    EXPECT_EQ(formatDate(dates.periodo.inizio), "20100101");
    EXPECT_EQ(formatDate(dates.periodo.fine), "20101231");
}

TEST_F(RequestDatesTest, ImpossibleDatesAreSaidTogetherAndCountAsMissing) {
    const DateRichiesta dates = read("20060231", "20061301", "abcdefgh");
    EXPECT_EQ(formatDate(dates.mostrata), "20100720");
    EXPECT_EQ(formatDate(dates.periodo.inizio), "20100101");
    EXPECT_EQ(formatDate(dates.periodo.fine), "20101231");
    EXPECT_EQ(dates.guaio, "Richiesta non valida: il giorno da mostrare \"20060231\" non è una data; "
                           "la data iniziale \"20061301\" non è una data; "
                           "la data finale \"abcdefgh\" non è una data.");
}

TEST_F(RequestDatesTest, AnImpossibleDayAndAnEndBeforeTheStartAreSaidTogether) {
    EXPECT_EQ(read("2006", "20060315", "20060314").guaio,
              "Richiesta non valida: il giorno da mostrare \"2006\" non è una data; "
              "la data finale viene prima della data iniziale.");
}

TEST_F(RequestDatesTest, OfAnUnknownKindNoDateIsSaidToBeImpossible) {
    const DateRichiesta dates = read("20060231", "20061301", "abcdefgh", std::nullopt);
    EXPECT_EQ(formatDate(dates.mostrata), "20100720");
    EXPECT_EQ(dates.guaio, "");
}

TEST_F(RequestDatesTest, BytesOfTheRequestAreShownAsTheirCharacters) {
    EXPECT_EQ(read("\xE0\xFF", "20060101", "20061231").guaio,
              "Richiesta non valida: il giorno da mostrare \"àÿ\" non è una data.");
}

TEST_F(RequestDatesTest, AnEndBeforeTheStartIsSaidAndCountsAsMissing) {
    const DateRichiesta dates = read("00000000", "20060315", "20060314");
    EXPECT_EQ(formatDate(dates.periodo.inizio), "20060315");
    EXPECT_EQ(formatDate(dates.periodo.fine), "20061231");
    EXPECT_EQ(dates.guaio, "Richiesta non valida: la data finale viene prima della data iniziale.");
}

TEST_F(RequestDatesTest, APeriodOfOneDayIsAPeriod) {
    const DateRichiesta dates = read("00000000", "20060315", "20060315");
    EXPECT_EQ(formatDate(dates.periodo.fine), "20060315");
    EXPECT_EQ(dates.guaio, "");
}

TEST(ImpossibleDatesTest, AreSaidWhenTheDayThatIsShownInsteadStands) {
    PlannerBench bench;
    std::string collab;
    std::string valret;
    bench.messaggi.onShow = [&] { bench.motore.chiusura(collab, valret); };
    bench.init("M", "20060231", "20060610");
    EXPECT_EQ(bench.messaggi.shown,
              (std::vector<Message>{{MessageIcon::Critical, "Planner",
                                     "Richiesta non valida: il giorno da mostrare \"20060231\" non è una "
                                     "data."}}));
    EXPECT_EQ(valret, "20060610  E") << "the answer if the program is ended in the message";
}

} // namespace
} // namespace planner::test
