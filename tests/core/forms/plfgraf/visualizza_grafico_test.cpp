// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/visualizza_grafico.h"
#include "ports/runtime_errors.h"
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::int16_t Nessuno = -1;

/// Charts from archives that the engine reads.
class VisualizzaGrafico : public testing::Test {
protected:
    VisualizzaGrafico() {
        bench.putGrafici(
            {rigaGrafico("BI", "20060315", "0007:30"), rigaGrafico("RB", "20060315", "0004:00")});
    }
    bool choose(std::string_view tipo, std::int16_t collab) {
        bench.init(tipo, "20060315");
        bench.motore.LeggiDatiPerGrafici();
        return visualizzaGrafico(form, bench.controlli.tipoVisibile, {collab}, bench.messaggi);
    }

    PlannerBench bench;
    plfgraf form{bench.sessione.archivi, bench.controlli.calendario};
};

} // namespace

TEST_F(VisualizzaGrafico, OfTheMonthlyPlannerIsTheSelectedPersonsMonth) {
    EXPECT_TRUE(choose("M", 0));
    ASSERT_EQ(form.visibile(), &form.MSChartm());
    EXPECT_EQ(form.MSChartm().serie.at(0).etichetta, "Bianchi Rosa");
    EXPECT_EQ(form.MSChartm().serie.at(0).valori.at(14), 7.5);
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(VisualizzaGrafico, OfTheMonthlyPlannerAsksForASelectedPerson) {
    for (const std::int16_t collab : {Nessuno, std::int16_t{INT16_MIN}}) {
        bench.messaggi.shown.clear();
        EXPECT_FALSE(choose("M", collab));
        EXPECT_EQ(form.visibile(), nullptr);
        EXPECT_THAT(bench.messaggi.shown,
                    ElementsAre(Message{MessageIcon::Information, "Planner",
                                        "Selezionare un collaboratore prima di visualizzare il grafico."}));
    }
}

TEST_F(VisualizzaGrafico, OfTheDailyPlannerNamesTheSecondPersonWhoeverIsSelected) {
    for (const std::int16_t collab : {Nessuno, std::int16_t{0}, std::int16_t{2}}) {
        EXPECT_TRUE(choose("G", collab));
        ASSERT_EQ(form.visibile(), &form.MSChartg());
        EXPECT_EQ(form.MSChartg().serie.at(0).etichetta, "Rossi Bruno");
        EXPECT_THAT(form.MSChartg().serie.at(0).valori, ElementsAre(7.5, 4, 0));
    }
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(VisualizzaGrafico, OfTheYearlyPlannerNeedsNoSelection) {
    EXPECT_TRUE(choose("A", Nessuno));
    ASSERT_EQ(form.visibile(), &form.MSCharta());
    EXPECT_EQ(form.MSCharta().serie.at(2).valori.at(0), 4);
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(VisualizzaGrafico, WithoutAKindOfPlannerIsNone) {
    EXPECT_FALSE(visualizzaGrafico(form, std::nullopt, {0}, bench.messaggi));
    EXPECT_EQ(form.visibile(), nullptr);
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(VisualizzaGrafico, PassesRunTimeErrorsOn) {
    bench.putGrafici({rigaGrafico("BI", "20061332", "0007:30")});
    EXPECT_THROW(choose("A", 0), SubscriptError);
    EXPECT_THROW(choose("M", 99), SubscriptError);
    bench.putCollaboratori({collaboratore("BI", "Bianchi Rosa")});
    EXPECT_TRUE(choose("G", 0)) << "entry 1 is the blank one";
}

TEST_F(VisualizzaGrafico, WithoutAFileSaysSoAndShowsNoHours) {
    bench.files.remove(PlannerBench::path(FileGrafici));
    EXPECT_TRUE(choose("A", Nessuno));
    EXPECT_EQ(form.MSCharta().TitleText, "");
    EXPECT_EQ(form.MSCharta().serie.at(2).valori.at(0), 0);
    EXPECT_THAT(bench.messaggi.shown, ElementsAre(Message{MessageIcon::Information, "Planner",
                                                          "Errore sul File :C:\\arch\\wgrafici"}));
}

TEST_F(VisualizzaGrafico, AFileThatEndsWithPartOfARecordGivesItsWholeOnes) {
    std::string bytes = bytesOf(rigaGrafico("BI", "20060315", "0007:30"));
    bench.put(FileGrafici, bytes + bytes.substr(0, 20));
    EXPECT_TRUE(choose("M", 0));
    EXPECT_EQ(form.MSChartm().serie.at(0).valori.at(14), 7.5);
}

} // namespace planner::test
