// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/request_dates.h"
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RequestDatesTest : public testing::Test {
protected:
    DateRichiesta read(std::string_view giorno, std::string_view start, std::string_view end,
                       std::optional<TipoPlanner> tipo = TipoPlanner::Mensile) {
        return readRequestDates(tipo, {giorno, start, end}, *makeDate(2010, 7, 20), messaggi);
    }
    std::string shownInYear(std::string_view giorno, std::string_view start, std::string_view end) {
        return formatDate(read(giorno, start, end, TipoPlanner::Annuale).mostrata);
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> texts;
        for (const Message& message : messaggi.shown) {
            EXPECT_EQ(message.icon, MessageIcon::Critical);
            EXPECT_EQ(message.title, "Planner");
            texts.push_back(message.text);
        }
        return texts;
    }

    Journal journal;
    RecordingMessages messaggi{journal};
};

TEST_F(RequestDatesTest, TheIncomingDayIsShown) {
    EXPECT_EQ(formatDate(read("20060610", "20060101", "20061231").mostrata), "20060610");
}

TEST_F(RequestDatesTest, WithoutAnIncomingDayTheStartDateIsShown) {
    for (const std::string_view none : {"00000000", "        ", "", "0000    ", "  00  00", "0"}) {
        EXPECT_EQ(formatDate(read(none, "20060315", "20061231").mostrata), "20060315") << none;
    }
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(RequestDatesTest, WithoutDayAndStartTheFirstDayOfTheEndsYearIsShown) {
    EXPECT_EQ(formatDate(read("00000000", "00000000", "20060614").mostrata), "20060101");
}

TEST_F(RequestDatesTest, WithoutAnyDateTodayIsShown) {
    EXPECT_EQ(formatDate(read("00000000", "        ", "0000    ").mostrata), "20100720");
    EXPECT_THAT(texts(), IsEmpty());
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
    EXPECT_THAT(texts(),
                ElementsAre("Richiesta non valida: il giorno da mostrare \"20060231\" non è una data; "
                            "la data iniziale \"20061301\" non è una data; "
                            "la data finale \"abcdefgh\" non è una data."));
}

TEST_F(RequestDatesTest, AnImpossibleDayAndAnEndBeforeTheStartAreSaidTogether) {
    read("2006", "20060315", "20060314");
    EXPECT_THAT(texts(), ElementsAre("Richiesta non valida: il giorno da mostrare \"2006\" non è una data; "
                                     "la data finale viene prima della data iniziale."));
}

TEST_F(RequestDatesTest, OfAnUnknownKindNoDateIsSaidToBeImpossible) {
    EXPECT_EQ(formatDate(read("20060231", "20061301", "abcdefgh", std::nullopt).mostrata), "20100720");
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(RequestDatesTest, BytesOfTheRequestAreShownAsTheirCharacters) {
    read("\xE0\xFF", "20060101", "20061231");
    EXPECT_THAT(texts(), ElementsAre("Richiesta non valida: il giorno da mostrare \"àÿ\" non è una data."));
}

TEST_F(RequestDatesTest, AnEndBeforeTheStartIsSaidAndCountsAsMissing) {
    const DateRichiesta dates = read("00000000", "20060315", "20060314");
    EXPECT_EQ(formatDate(dates.periodo.inizio), "20060315");
    EXPECT_EQ(formatDate(dates.periodo.fine), "20061231");
    EXPECT_EQ(texts().size(), 1u);
}

TEST_F(RequestDatesTest, APeriodOfOneDayIsAPeriod) {
    EXPECT_EQ(formatDate(read("00000000", "20060315", "20060315").periodo.fine), "20060315");
    EXPECT_THAT(texts(), IsEmpty());
}

} // namespace
} // namespace planner::test
