// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfgraf_fixture.h"

namespace planner::test {

using testing::ElementsAre;

namespace {

class DailyChart : public PlfgrafTest {
protected:
    const Grafico& chart() {
        form.VisualizzaGraficoGiornaliero({1});
        return form.MSChartg();
    }
    const std::vector<double>& staff() { return chart().serie.at(0).valori; }
};

} // namespace

TEST_F(DailyChart, ShowsTheHoursOfEveryStaffMemberOnTheDay) {
    setHours({rigaGrafico("7 ", "20060315", "0003:45"), rigaGrafico("BI", "20060315", "0007:30")});
    EXPECT_THAT(staff(), ElementsAre(7.5, 0, 3.75));
}

TEST_F(DailyChart, LeavesOutOtherDaysMonthsAndYears) {
    setHours({rigaGrafico("BI", "20060314", "0007:30"), rigaGrafico("BI", "20060415", "0007:30"),
              rigaGrafico("BI", "20050315", "0007:30"), rigaGrafico("BI", "200603xx", "0007:30"),
              rigaGrafico("BI", "2006xx15", "0007:30"), rigaGrafico("BI", "anno0315", "0007:30"),
              rigaGrafico("BI", "20060332", "0007:30"), rigaGrafico("RB", "20060315", "0001:00")});
    EXPECT_THAT(staff(), ElementsAre(0, 1, 0));
}

TEST_F(DailyChart, ReadsDatesAsNumbers) {
    show(2006, 3, 5);
    setHours({rigaGrafico("BI", "2006 3 5", "0001:00"), rigaGrafico("RB", "20063 5x", "0002:00")});
    EXPECT_THAT(staff(), ElementsAre(1, 2, 0));
}

TEST_F(DailyChart, LabelsItsRowsWithTheStaffCodes) {
    const Grafico& grafico = chart();
    EXPECT_THAT(grafico.etichette, ElementsAre("BI", "RB", "7 "));
    EXPECT_THAT(grafico.voci, ElementsAre("Bianchi Rosa (BI)", "Rossi Bruno (RB)", "Verdi Ugo (7)"));
    EXPECT_EQ(grafico.TitleText, "Planner Giornaliero");
    EXPECT_EQ(grafico.asseX, "Collaboratori");
    EXPECT_EQ(grafico.asseY.titolo, "Ore");
}

TEST_F(DailyChart, NamesPeopleWithoutNameOrCodeByWhatThereIs) {
    setStaff({collaboratore("AA", ""), collaboratore("", "Neri Pio"), collaboratore("", "")});
    EXPECT_THAT(chart().voci, ElementsAre("AA", "Neri Pio", "senza nome"));
}

TEST_F(DailyChart, HasAPlainTitleAndPlotAndNavyBars) {
    const Grafico& grafico = chart();
    EXPECT_FALSE(grafico.titoloIncorniciato);
    EXPECT_FALSE(grafico.areaIncorniciata);
    EXPECT_EQ(grafico.serie.at(0).colore, BluMarino);
    EXPECT_TRUE(samePen(grafico.asseY.PennaMajor, Rosso, 4));
    EXPECT_TRUE(samePen(grafico.asseY.PennaMinor, Blu, 2));
    EXPECT_EQ(grafico.asseY.MinorDivision, 1);
}

TEST_F(DailyChart, LegendNamesTheGivenPersonThoughEverybodyIsShown) {
    setHours({rigaGrafico("BI", "20060315", "0007:30")});
    form.VisualizzaGraficoGiornaliero({2});
    EXPECT_EQ(form.MSChartg().serie.at(0).etichetta, "Verdi Ugo");
    EXPECT_THAT(form.MSChartg().serie.at(0).valori, ElementsAre(7.5, 0, 0));
}

TEST_F(DailyChart, LegendIsTheWholeName) {
    setStaff({collaboratore("BI", ""), collaboratore("RB", "De Gregoris Massimiliano Maria Sforza")});
    EXPECT_EQ(chart().serie.at(0).etichetta, "De Gregoris Massimiliano Maria Sforza");
    setStaff({collaboratore("BI", ""), collaboratore("RB", std::string(50, 'x'))});
    EXPECT_EQ(chart().serie.at(0).etichetta, std::string(50, 'x'));
}

TEST_F(DailyChart, OfADayWithoutHoursHasAZeroForEachAndNoScale) {
    setHours({rigaGrafico("BI", "20060316", "0007:30")});
    EXPECT_THAT(staff(), ElementsAre(0, 0, 0));
    EXPECT_EQ(form.MSChartg().asseY.Maximum, 0);
    EXPECT_EQ(form.MSChartg().asseY.MajorDivision, 0);
}

TEST_F(DailyChart, ScaleIsATenthAboveTheGreatestValue) {
    setHours({rigaGrafico("BI", "20060315", "0007:30"), rigaGrafico("RB", "20060315", "0010:00")});
    EXPECT_EQ(chart().asseY.Maximum, 11);
    EXPECT_EQ(form.MSChartg().asseY.MajorDivision, 11);
}

TEST_F(DailyChart, DivisionsBeyondSixteenBitsOverflow) {
    setHours({rigaGrafico("BI", "20060315", "9999900")});
    EXPECT_THROW(form.VisualizzaGraficoGiornaliero({1}), OverflowError);
}

TEST_F(DailyChart, RecordsOfUnknownCodesAreNeverShownNorRead) {
    setHours({rigaGrafico("ZZ", "20060315", "9e99900"), rigaGrafico("bi", "20060315", "0020:00"),
              rigaGrafico("RB", "20060315", "0002:00")});
    EXPECT_THAT(staff(), ElementsAre(0, 2, 0));
    EXPECT_EQ(form.MSChartg().asseY.Maximum, 2);
}

TEST_F(DailyChart, ImpossibleHoursOfAKnownCodeOverflow) {
    setHours({rigaGrafico("RB", "20060315", "9e99900")});
    EXPECT_THROW(form.VisualizzaGraficoGiornaliero({1}), OverflowError);
}

TEST_F(DailyChart, TheBlankCodeAfterTheLastPersonIsUnknown) {
    setHours({rigaGrafico("  ", "20060315", "0007:30")});
    EXPECT_THAT(staff(), ElementsAre(0, 0, 0));
}

TEST_F(DailyChart, TheLaterOfTwoRecordsOfAPersonWins) {
    setHours({rigaGrafico("RB", "20060315", "0009:00"), rigaGrafico("BI", "20060315", "0001:00"),
              rigaGrafico("RB", "20060315", "0002:00")});
    EXPECT_THAT(staff(), ElementsAre(1, 2, 0));
    EXPECT_EQ(form.MSChartg().asseY.Maximum, 9) << "the replaced value still sets the scale";
}

TEST_F(DailyChart, EqualCodesOfTheStaffAllGetTheValue) {
    setStaff({collaboratore("AA", "Uno"), collaboratore("BB", "Due"), collaboratore("AA", "Tre")});
    setHours({rigaGrafico("AA", "20060315", "0004:00")});
    EXPECT_THAT(staff(), ElementsAre(4, 0, 4));
}

TEST_F(DailyChart, TheFullestTablesAreShown) {
    setStaff(std::vector(INT16_MAX, collaboratore("AA", "Uno")));
    setHours(std::vector(INT16_MAX, rigaGrafico("AA", "20060315", "0004:00")));
    EXPECT_EQ(staff(), std::vector<double>(INT16_MAX, 4));
}

TEST_F(DailyChart, WithOnePersonTheLegendIsTheBlankLastEntrys) {
    setStaff({collaboratore("AA", "Uno")});
    setHours({rigaGrafico("AA", "20060315", "0004:00")});
    EXPECT_THAT(staff(), ElementsAre(4));
    EXPECT_EQ(form.MSChartg().serie.at(0).etichetta, "");
}

TEST_F(DailyChart, WithoutStaffTheLegendFails) {
    setStaff({});
    EXPECT_THROW(form.VisualizzaGraficoGiornaliero({1}), SubscriptError);
    EXPECT_EQ(form.visibile(), &form.MSChartg());
    EXPECT_EQ(form.MSChartg().numValori(), 0u);
}

TEST_F(DailyChart, AnIndexOutsideTheStaffFailsAfterDataAndRowLabels) {
    setHours({rigaGrafico("BI", "20060315", "0007:30")});
    for (const std::int16_t collab : std::initializer_list<std::int16_t>{4, -1, INT16_MAX, INT16_MIN}) {
        EXPECT_THROW(form.VisualizzaGraficoGiornaliero({collab}), SubscriptError) << collab;
    }
    const Grafico& grafico = form.MSChartg();
    EXPECT_THAT(grafico.serie.at(0).valori, ElementsAre(7.5, 0, 0));
    EXPECT_THAT(grafico.etichette, ElementsAre("BI", "RB", "7 "));
    EXPECT_EQ(grafico.TitleText, "Planner Giornaliero");
    EXPECT_EQ(grafico.serie.at(0).etichetta, "");
    EXPECT_EQ(grafico.asseX, "");
    EXPECT_EQ(grafico.asseY.titolo, "");
}

TEST_F(DailyChart, ANewBuildFollowsTheStaff) {
    chart();
    setStaff({collaboratore("AA", "Uno"), collaboratore("BB", "Due")});
    EXPECT_THAT(staff(), ElementsAre(0, 0));
    EXPECT_THAT(form.MSChartg().etichette, ElementsAre("AA", "BB"));
    EXPECT_EQ(form.MSChartg().voci.size(), 2u);
}

TEST_F(DailyChart, TheTablesLastRecordLiesBeyondTheFileAndDoesNotCount) {
    setHours({});
    archivi.RigheGrafici.back() = rigaGrafico("RB", "20060315", "0005:00");
    EXPECT_THAT(staff(), ElementsAre(0, 0, 0));
}

TEST_F(DailyChart, ItsHeadingSaysWhichDay) {
    form.VisualizzaGraficoGiornaliero({1});
    EXPECT_EQ(form.MSChartg().intestazione, "Ore dei collaboratori - 15 marzo 2006");
}

TEST_F(DailyChart, AnErrorNamesFileRecordAndHours) {
    setHours({rigaGrafico("RB", "20060315", "0001:00"), rigaGrafico("RB", "20060314", "9e99900"),
              rigaGrafico("BI", "20060315", "9e99900")});
    EXPECT_EQ(errorOf([&] { form.VisualizzaGraficoGiornaliero({1}); }),
              "wgrafici, record 3: le ore \"9e99900\" sono troppe");
}

} // namespace planner::test
