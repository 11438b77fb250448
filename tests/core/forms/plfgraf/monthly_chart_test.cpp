// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfgraf_fixture.h"

namespace planner::test {

namespace {

constexpr std::size_t Giorni = 31;

class MonthlyChart : public PlfgrafTest {
protected:
    /// The chart of Rossi Bruno, whose hours the records hold.
    const Grafico& chart() {
        form.VisualizzaGraficoMensile({1});
        return form.MSChartm();
    }
    const std::vector<double>& days() { return chart().serie.at(0).valori; }
    double top() { return chart().asseY.Maximum; }
};

} // namespace

TEST_F(MonthlyChart, ShowsTheHoursOfEachDay) {
    setHours({rigaGrafico("RB", "20060301", "0007:30"), rigaGrafico("RB", "20060315", "0008:15"),
              rigaGrafico("RB", "20060331", "0000:45")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{1, 7.5}, {15, 8.25}, {31, 0.75}}));
}

TEST_F(MonthlyChart, LeavesOutOtherPeopleMonthsAndYears) {
    setHours({rigaGrafico("BI", "20060315", "0001:00"), rigaGrafico("rb", "20060315", "0001:00"),
              rigaGrafico("RB", "20060415", "0001:00"), rigaGrafico("RB", "20050315", "0001:00"),
              rigaGrafico("RB", "20060316", "0002:00")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{16, 2}}));
}

TEST_F(MonthlyChart, ComparesCodesByteForByte) {
    setHours({rigaGrafico("7 ", "20060315", "0004:00"), rigaGrafico(" 7", "20060316", "0004:00")});
    form.VisualizzaGraficoMensile({2});
    EXPECT_EQ(form.MSChartm().serie.at(0).valori, zerosBut(Giorni, {{15, 4}}));
}

TEST_F(MonthlyChart, LabelsItsRowsAndAxes) {
    const Grafico& grafico = chart();
    ASSERT_EQ(grafico.etichette.size(), Giorni);
    EXPECT_EQ(grafico.etichette.front(), "1");
    EXPECT_EQ(grafico.etichette.back(), "31");
    EXPECT_EQ(grafico.TitleText, "Planner Mensile");
    EXPECT_EQ(grafico.asseX, "Giorni");
    EXPECT_EQ(grafico.asseY.titolo, "Ore");
    ASSERT_EQ(grafico.serie.size(), 1u);
    EXPECT_EQ(grafico.serie[0].etichetta, "Rossi Bruno");
}

TEST_F(MonthlyChart, HasAFramedTitleAShadowedPlotAndNavyBars) {
    const Grafico& grafico = chart();
    EXPECT_TRUE(grafico.titoloIncorniciato);
    EXPECT_TRUE(grafico.areaIncorniciata);
    EXPECT_EQ(grafico.serie.at(0).colore, BluMarino);
    EXPECT_EQ(grafico.tipo, TipoGrafico::Istogramma);
    EXPECT_TRUE(samePen(grafico.asseY.PennaMajor, Rosso, 4));
    EXPECT_TRUE(samePen(grafico.asseY.PennaMinor, Blu, 2));
    EXPECT_EQ(grafico.asseY.MinorDivision, 1);
}

TEST_F(MonthlyChart, OfAMonthWithoutHoursHas31ZerosAndNoScale) {
    setHours({rigaGrafico("RB", "20060215", "0008:00")});
    const Grafico& grafico = chart();
    EXPECT_EQ(grafico.serie.at(0).valori, std::vector<double>(Giorni));
    EXPECT_EQ(grafico.asseY.Maximum, 0);
    EXPECT_EQ(grafico.asseY.MajorDivision, 0);
}

TEST_F(MonthlyChart, WithoutAnyTableIsTheSame) {
    archivi.RigheGrafici.clear();
    archivi.NumGrafici = 0;
    EXPECT_EQ(days(), std::vector<double>(Giorni));
    EXPECT_EQ(form.MSChartm().TitleText, "Planner Mensile");
}

TEST_F(MonthlyChart, OfAShortMonthStillHas31Rows) {
    show(2006, 2, 1);
    setHours({rigaGrafico("RB", "20060228", "0008:00"), rigaGrafico("RB", "20060230", "0009:00")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{28, 8}, {30, 9}}));
    EXPECT_EQ(form.MSChartm().etichette.size(), Giorni);
}

TEST_F(MonthlyChart, NamesDaysInSentences) {
    show(2006, 2, 1);
    const std::vector<std::string>& voci = chart().voci;
    ASSERT_EQ(voci.size(), Giorni);
    EXPECT_EQ(voci[0], "1 febbraio");
    EXPECT_EQ(voci[27], "28 febbraio");
    EXPECT_EQ(voci[28], "giorno 29");
    EXPECT_EQ(voci[30], "giorno 31");
}

TEST_F(MonthlyChart, NamesTheLeapDay) {
    show(2004, 2, 1);
    EXPECT_EQ(chart().voci.at(28), "29 febbraio");
    EXPECT_EQ(chart().voci.at(29), "giorno 30");
}

TEST_F(MonthlyChart, ScaleIsATenthAboveTheGreatestValueInWholeHours) {
    setHours({rigaGrafico("RB", "20060301", "0007:30"), rigaGrafico("RB", "20060302", "0003:00")});
    EXPECT_EQ(top(), 8);
    EXPECT_EQ(form.MSChartm().asseY.MajorDivision, 8);
    setHours({rigaGrafico("RB", "20060301", "0010:00")});
    EXPECT_EQ(top(), 11);
    EXPECT_EQ(form.MSChartm().asseY.MajorDivision, 11);
    setHours({rigaGrafico("RB", "20060301", "1000000")});
    EXPECT_EQ(top(), 11'000);
}

TEST_F(MonthlyChart, DivisionsBeyondSixteenBitsOverflow) {
    setHours({rigaGrafico("RB", "20060301", "2978900")}); // 32767.9
    EXPECT_EQ(top(), 32'767);
    setHours({rigaGrafico("RB", "20060302", "2979000")}); // 32769
    EXPECT_THROW(form.VisualizzaGraficoMensile({1}), OverflowError);
    EXPECT_EQ(form.MSChartm().serie.at(0).valori.at(1), 29'790) << "the data was there already";
    EXPECT_EQ(form.MSChartm().asseY.Maximum, 32'769);
    EXPECT_EQ(form.MSChartm().asseY.MajorDivision, 32'767) << "the one before";
}

TEST_F(MonthlyChart, NegativeHoursDoNotMoveTheScale) {
    setHours({rigaGrafico("RB", "20060301", "-003:00")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{1, -3}}));
    EXPECT_EQ(top(), 0);
}

TEST_F(MonthlyChart, TheLaterOfTwoRecordsOfADayWins) {
    setHours({rigaGrafico("RB", "20060310", "0005:00"), rigaGrafico("RB", "20060310", "0002:30")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{10, 2.5}}));
    EXPECT_EQ(top(), 5) << "the replaced value still sets the scale";
}

TEST_F(MonthlyChart, LegendIsCutAt30Characters) {
    setStaff({collaboratore("BI", ""), collaboratore("RB", "De Gregoris Massimiliano Maria Sforza")});
    EXPECT_EQ(chart().serie.at(0).etichetta, "De Gregoris Massimiliano Maria");
    setStaff({collaboratore("BI", ""), collaboratore("RB", std::string(50, 'x'))});
    EXPECT_EQ(chart().serie.at(0).etichetta, std::string(30, 'x'));
}

TEST_F(MonthlyChart, LegendLosesTheBlanksBeforeTheCut) {
    setStaff({collaboratore("BI", ""), collaboratore("RB", "Pubblici Massimiliano Marco   Sforza")});
    EXPECT_EQ(chart().serie.at(0).etichetta, "Pubblici Massimiliano Marco");
}

TEST_F(MonthlyChart, MonthAndYearAreReadAsNumbers) {
    setHours({rigaGrafico("RB", "2006 301", "0001:00"), rigaGrafico("RB", "20063x02", "0002:00"),
              rigaGrafico("RB", "2006xx03", "0003:00"), rigaGrafico("RB", "anno0304", "0004:00"),
              rigaGrafico("RB", "2006  05", "0005:00"), rigaGrafico("RB", "20061306", "0005:00")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{1, 1}, {2, 2}}));
}

TEST_F(MonthlyChart, ADayWithABlankCounts) {
    setHours({rigaGrafico("RB", "200603 4", "0001:00"), rigaGrafico("RB", "2006035 ", "0002:00")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{4, 1}, {5, 2}}));
}

TEST_F(MonthlyChart, ADayThatIsNoNumberIsATypeMismatch) {
    for (const std::string_view day : {"xx", "  ", "1x", "x1", "--", "1e"}) {
        setHours({rigaGrafico("RB", "200603" + std::string(day), "0001:00")});
        EXPECT_THROW(form.VisualizzaGraficoMensile({1}), TypeMismatchError) << "[" << day << "]";
    }
}

TEST_F(MonthlyChart, ADayOutsideTheMonthIsASubscriptError) {
    for (const std::string_view day : {"00", "32", "99", "-1"}) {
        setHours({rigaGrafico("RB", "200603" + std::string(day), "0001:00")});
        EXPECT_THROW(form.VisualizzaGraficoMensile({1}), SubscriptError) << day;
    }
}

TEST_F(MonthlyChart, BadDaysOfRecordsThatDoNotCountDoNoHarm) {
    setHours({rigaGrafico("BI", "200603xx", "0001:00"), rigaGrafico("RB", "20060499", "0001:00"),
              rigaGrafico("RB", "20060302", "0001:00")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{2, 1}}));
}

TEST_F(MonthlyChart, GarbledHoursAreZeroAndImpossibleOnesOverflow) {
    setHours({rigaGrafico("RB", "20060301", "???????"), rigaGrafico("RB", "20060302", "0003:00")});
    EXPECT_EQ(days(), zerosBut(Giorni, {{2, 3}}));
    setHours({rigaGrafico("RB", "20060301", "9e99900")});
    EXPECT_THROW(form.VisualizzaGraficoMensile({1}), OverflowError);
}

TEST_F(MonthlyChart, AFailedScanKeepsTheDataThatWasShown) {
    setHours({rigaGrafico("RB", "20060301", "0004:00")});
    chart();
    show(2006, 4, 1);
    setHours({rigaGrafico("RB", "20060401", "0009:00"), rigaGrafico("RB", "20060432", "0009:00")});
    EXPECT_THROW(form.VisualizzaGraficoMensile({1}), SubscriptError);
    EXPECT_EQ(form.MSChartm().serie.at(0).valori, zerosBut(Giorni, {{1, 4}}));
    EXPECT_EQ(form.MSChartm().voci.at(0), "1 marzo");
    EXPECT_EQ(form.MSChartm().asseY.Maximum, 4);
}

TEST_F(MonthlyChart, AFailedFirstScanLeavesAnEmptyVisibleChart) {
    setHours({rigaGrafico("RB", "20060332", "0009:00")});
    EXPECT_THROW(form.VisualizzaGraficoMensile({1}), SubscriptError);
    EXPECT_EQ(form.visibile(), &form.MSChartm());
    EXPECT_TRUE(form.MSChartm().areaIncorniciata);
    EXPECT_EQ(form.MSChartm().TitleText, "");
    EXPECT_EQ(form.MSChartm().numValori(), 0u);
}

TEST_F(MonthlyChart, AnIndexOutsideTheStaffFailsInTheScan) {
    setHours({rigaGrafico("RB", "20060301", "0004:00")});
    chart();
    for (const std::int16_t collab : std::initializer_list<std::int16_t>{4, -1, INT16_MAX, INT16_MIN}) {
        EXPECT_THROW(form.VisualizzaGraficoMensile({collab}), SubscriptError) << collab;
    }
    EXPECT_EQ(form.MSChartm().serie.at(0).valori, zerosBut(Giorni, {{1, 4}})) << "not replaced";
}

TEST_F(MonthlyChart, WithoutRecordsAnIndexOutsideTheStaffFailsAtTheLegend) {
    setHours({rigaGrafico("RB", "20060301", "0004:00")});
    chart();
    setHours({});
    EXPECT_THROW(form.VisualizzaGraficoMensile({4}), SubscriptError);
    EXPECT_EQ(form.MSChartm().serie.at(0).valori, std::vector<double>(Giorni)) << "replaced";
    EXPECT_EQ(form.MSChartm().serie.at(0).etichetta, "Rossi Bruno") << "the one before";
}

TEST_F(MonthlyChart, TheBlankLastEntryOfTheStaffIsAnEntry) {
    setHours({rigaGrafico("  ", "20060301", "0004:00")});
    form.VisualizzaGraficoMensile({3});
    EXPECT_EQ(form.MSChartm().serie.at(0).valori, zerosBut(Giorni, {{1, 4}}));
    EXPECT_EQ(form.MSChartm().serie.at(0).etichetta, "");
}

TEST_F(MonthlyChart, TheTablesLastRecordLiesBeyondTheFileAndDoesNotCount) {
    setHours({rigaGrafico("RB", "20060301", "0004:00")});
    archivi.RigheGrafici.back() = rigaGrafico("RB", "20060302", "0005:00");
    EXPECT_EQ(days(), zerosBut(Giorni, {{1, 4}}));
}

TEST_F(MonthlyChart, ANewBuildReplacesEverything) {
    setHours({rigaGrafico("RB", "20060301", "0010:00"), rigaGrafico("BI", "20060402", "0002:00")});
    chart();
    show(2006, 4, 30);
    form.VisualizzaGraficoMensile({0});
    const Grafico& grafico = form.MSChartm();
    EXPECT_EQ(grafico.serie.at(0).valori, zerosBut(Giorni, {{2, 2}}));
    EXPECT_EQ(grafico.serie.at(0).etichetta, "Bianchi Rosa");
    EXPECT_EQ(grafico.voci.at(0), "1 aprile");
    EXPECT_EQ(grafico.asseY.Maximum, 2);
    EXPECT_EQ(grafico.asseY.MajorDivision, 2);
}

TEST_F(MonthlyChart, ItsHeadingSaysWhoseHoursOfWhichMonth) {
    EXPECT_EQ(chart().intestazione, "Ore di Rossi Bruno - marzo 2006");
    show(2004, 2, 29);
    setStaff({collaboratore("BI", std::string(50, 'W')), collaboratore("RB", ""), collaboratore("  ", "")});
    EXPECT_EQ(chart().intestazione, "Ore di RB - febbraio 2004");
    form.VisualizzaGraficoMensile({0});
    EXPECT_EQ(form.MSChartm().intestazione, "Ore di " + std::string(50, 'W') + " - febbraio 2004");
    form.VisualizzaGraficoMensile({2});
    EXPECT_EQ(form.MSChartm().intestazione, "Ore non assegnate - febbraio 2004");
}

TEST_F(MonthlyChart, AnErrorNamesFileRecordAndDay) {
    const RigaGrafico good = rigaGrafico("RB", "20060301", "0001:00");
    const auto fail = [&](const RigaGrafico& bad) {
        setHours({good, bad});
        return errorOf([&] { form.VisualizzaGraficoMensile({1}); });
    };
    EXPECT_EQ(fail(rigaGrafico("RB", "2006033x", "0001:00")),
              "wgrafici, record 2: il giorno \"3x\" non è un numero");
    EXPECT_EQ(fail(rigaGrafico("RB", "20060332", "0001:00")),
              "wgrafici, record 2: il giorno \"32\" è fuori dal mese");
    EXPECT_EQ(fail(rigaGrafico("RB", "20060300", "0001:00")),
              "wgrafici, record 2: il giorno \"00\" è fuori dal mese");
    EXPECT_EQ(fail(rigaGrafico("RB", std::string("200603") + '\0' + '\xF2', "0001:00")),
              "wgrafici, record 2: il giorno \"\\x00ò\" non è un numero");
    EXPECT_EQ(fail(rigaGrafico("RB", "20060301", "9e99900")),
              "wgrafici, record 2: le ore \"9e99900\" sono troppe");
}

TEST_F(MonthlyChart, ARecordsErrorKeepsItsClass) {
    setHours({rigaGrafico("RB", "2006033x", "0001:00")});
    EXPECT_THROW(form.VisualizzaGraficoMensile({1}), TypeMismatchError);
    setHours({rigaGrafico("RB", "20060332", "0001:00")});
    EXPECT_THROW(form.VisualizzaGraficoMensile({1}), SubscriptError);
}

} // namespace planner::test
