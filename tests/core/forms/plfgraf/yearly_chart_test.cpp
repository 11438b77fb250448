// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfgraf_fixture.h"

#include <algorithm>

namespace planner::test {

using testing::ElementsAre;

namespace {

constexpr std::size_t Mesi = 12;

class YearlyChart : public PlfgrafTest {
protected:
    const Grafico& chart() {
        form.VisualizzaGraficoAnnuale();
        return form.MSCharta();
    }
    std::vector<double> months() { return firstRow(chart()); }
    double topFor(std::string_view ore) {
        setHours({rigaGrafico("RB", "20060315", ore)});
        return chart().asseY.Maximum;
    }
};

} // namespace

TEST_F(YearlyChart, TakesTheLastRecordOfEachMonthInTableOrder) {
    setHours({rigaGrafico("RB", "20061231", "0007:30"), rigaGrafico("RB", "20060131", "0002:00"),
              rigaGrafico("RB", "20060101", "0001:00"), rigaGrafico("RB", "20060202", "0000:15")});
    EXPECT_EQ(months(), zerosBut(Mesi, {{1, 1}, {2, 0.25}, {12, 7.5}}));
}

TEST_F(YearlyChart, TakesRecordsOfEveryStaffMemberAndAddsNothingUp) {
    setHours({rigaGrafico("RB", "20060301", "0007:00"), rigaGrafico("BI", "20060302", "0005:00"),
              rigaGrafico("ZZ", "20060303", "0002:00")});
    EXPECT_EQ(months(), zerosBut(Mesi, {{3, 2}}));
}

TEST_F(YearlyChart, LeavesOutOtherYears) {
    setHours({rigaGrafico("RB", "20050301", "0007:00"), rigaGrafico("RB", "anno0301", "0007:00"),
              rigaGrafico("RB", "    0301", "0007:00"), rigaGrafico("RB", "20060401", "0003:00")});
    EXPECT_EQ(months(), zerosBut(Mesi, {{4, 3}}));
}

TEST_F(YearlyChart, DoesNotLookAtTheDay) {
    setHours({rigaGrafico("RB", "200603xx", "0007:00")});
    EXPECT_EQ(months(), zerosBut(Mesi, {{3, 7}}));
}

TEST_F(YearlyChart, IsTwelveSeriesOfOneRow) {
    const Grafico& grafico = chart();
    EXPECT_THAT(grafico.etichette, ElementsAre(""));
    std::vector<std::string> names;
    for (const SerieGrafico& serie : grafico.serie) {
        names.push_back(serie.etichetta);
    }
    EXPECT_THAT(names, ElementsAre("Gen", "Feb", "Mar", "Apr", "Mag", "Giu", "Lug", "Ago", "Set", "Ott",
                                   "Nov", "Dic"));
    EXPECT_EQ(grafico.numValori(), Mesi);
    EXPECT_THAT(grafico.voci,
                ElementsAre("gennaio 2006", "febbraio 2006", "marzo 2006", "aprile 2006", "maggio 2006",
                            "giugno 2006", "luglio 2006", "agosto 2006", "settembre 2006", "ottobre 2006",
                            "novembre 2006", "dicembre 2006"));
}

TEST_F(YearlyChart, NamesTheShownYear) {
    EXPECT_EQ(chart().asseX, "Anno 2006");
    show(1753, 1, 1);
    EXPECT_EQ(chart().asseX, "Anno 1753");
    EXPECT_EQ(chart().voci.at(0), "gennaio 1753");
    EXPECT_EQ(chart().asseY.titolo, "Ore");
}

TEST_F(YearlyChart, SeriesHaveTwelveDifferentColours) {
    std::vector<Rgb> colours;
    for (const SerieGrafico& serie : chart().serie) {
        EXPECT_EQ(std::count(colours.begin(), colours.end(), serie.colore), 0);
        colours.push_back(serie.colore);
    }
    EXPECT_TRUE(std::equal(colours.begin(), colours.end(), ColoriMesi.begin(), ColoriMesi.end()));
}

TEST_F(YearlyChart, HasAFramedTitleAShadowedPlotAndABlackGrid) {
    const Grafico& grafico = chart();
    EXPECT_TRUE(grafico.titoloIncorniciato);
    EXPECT_TRUE(grafico.areaIncorniciata);
    EXPECT_TRUE(samePen(grafico.asseY.PennaMajor, Nero, 4));
    EXPECT_TRUE(samePen(grafico.asseY.PennaMinor, Blu, 2));
    EXPECT_EQ(grafico.fontTitoliAssi.famiglia, "MS Sans Serif");
    EXPECT_EQ(grafico.fontTitoliAssi.punti, 12);
    EXPECT_TRUE(grafico.fontTitoliAssi.grassetto);
}

TEST_F(YearlyChart, WithoutRecordsOfTheYearHasTwelveZerosAndATitle) {
    setHours({rigaGrafico("RB", "20050301", "0007:00")});
    EXPECT_EQ(months(), std::vector<double>(Mesi));
    EXPECT_EQ(form.MSCharta().asseY.Maximum, 10);
    EXPECT_EQ(form.MSCharta().TitleText, "Planner Annuale");
}

TEST_F(YearlyChart, WithoutAnyRecordHasNoTitle) {
    setHours({rigaGrafico("RB", "20060301", "0007:00")});
    EXPECT_EQ(chart().TitleText, "Planner Annuale");
    setHours({});
    EXPECT_EQ(months(), std::vector<double>(Mesi));
    EXPECT_EQ(form.MSCharta().asseY.Maximum, 10);
    EXPECT_EQ(form.MSCharta().TitleText, "");
    EXPECT_TRUE(form.MSCharta().titoloIncorniciato);
}

TEST_F(YearlyChart, TopIsThePowerOfTenAboveTheMaximum) {
    EXPECT_EQ(topFor("0007:30"), 10);
    EXPECT_EQ(topFor("0009:30"), 10);
    EXPECT_EQ(topFor("0010:00"), 100);
    EXPECT_EQ(topFor("0091:00"), 1000);
    EXPECT_EQ(topFor("0160:00"), 1000);
    EXPECT_EQ(topFor("9090:00"), 10'000);
}

TEST_F(YearlyChart, AlwaysHasTenDivisions) {
    for (const std::string_view ore : {"0000:00", "0009:30", "0160:00"}) {
        topFor(ore);
        EXPECT_EQ(form.MSCharta().asseY.MajorDivision, 10);
        EXPECT_EQ(form.MSCharta().asseY.MinorDivision, 1);
    }
}

TEST_F(YearlyChart, AReplacedValueStillSetsTheTop) {
    setHours({rigaGrafico("RB", "20060301", "0012:00"), rigaGrafico("RB", "20060302", "0001:00")});
    EXPECT_EQ(months(), zerosBut(Mesi, {{3, 1}}));
    EXPECT_EQ(form.MSCharta().asseY.Maximum, 100);
}

TEST_F(YearlyChart, TenThousandHoursOverflowAfterTheDataWasShown) {
    topFor("0009:00");
    setHours({rigaGrafico("RB", "20060401", "1000000")});
    EXPECT_THROW(form.VisualizzaGraficoAnnuale(), OverflowError);
    EXPECT_EQ(firstRow(form.MSCharta()), zerosBut(Mesi, {{4, 10'000}}));
    EXPECT_EQ(form.MSCharta().asseY.Maximum, 10) << "the one before";
    setHours({rigaGrafico("RB", "20060401", "9091:00")});
    EXPECT_THROW(form.VisualizzaGraficoAnnuale(), OverflowError);
}

TEST_F(YearlyChart, AMonthOutsideTheYearIsASubscriptError) {
    for (const std::string_view month : {"00", "13", "99", "-1"}) {
        setHours({rigaGrafico("RB", "2006" + std::string(month) + "01", "0001:00")});
        EXPECT_THROW(form.VisualizzaGraficoAnnuale(), SubscriptError) << month;
    }
}

TEST_F(YearlyChart, AMonthThatIsNoNumberIsATypeMismatch) {
    for (const std::string_view month : {"xx", "  ", "1x", "x1"}) {
        setHours({rigaGrafico("RB", "2006" + std::string(month) + "01", "0001:00")});
        EXPECT_THROW(form.VisualizzaGraficoAnnuale(), TypeMismatchError) << "[" << month << "]";
    }
}

TEST_F(YearlyChart, BadMonthsOfOtherYearsDoNoHarm) {
    setHours({rigaGrafico("RB", "20051301", "0001:00"), rigaGrafico("RB", "2005xx01", "0001:00")});
    EXPECT_EQ(months(), std::vector<double>(Mesi));
}

TEST_F(YearlyChart, AFailedScanKeepsTheDataAndTheTitleThatWereShown) {
    topFor("0009:00");
    show(2007, 1, 1);
    setHours({rigaGrafico("RB", "20071301", "0002:00")});
    EXPECT_THROW(form.VisualizzaGraficoAnnuale(), SubscriptError);
    EXPECT_EQ(firstRow(form.MSCharta()), zerosBut(Mesi, {{3, 9}}));
    EXPECT_EQ(form.MSCharta().asseX, "Anno 2006");
}

TEST_F(YearlyChart, AFailedFirstScanLeavesAnEmptyVisibleChart) {
    setHours({rigaGrafico("RB", "20061301", "0002:00")});
    EXPECT_THROW(form.VisualizzaGraficoAnnuale(), SubscriptError);
    EXPECT_EQ(form.visibile(), &form.MSCharta());
    EXPECT_EQ(form.MSCharta().TitleText, "");
    EXPECT_EQ(form.MSCharta().numValori(), 0u);
}

TEST_F(YearlyChart, GarbledHoursAreZeroAndImpossibleOnesOverflow) {
    setHours({rigaGrafico("RB", "20060301", "???????")});
    EXPECT_EQ(months(), std::vector<double>(Mesi));
    setHours({rigaGrafico("RB", "20060301", "9e99900")});
    EXPECT_THROW(form.VisualizzaGraficoAnnuale(), OverflowError);
}

TEST_F(YearlyChart, TheTablesLastRecordLiesBeyondTheFileAndDoesNotCount) {
    setHours({});
    archivi.RigheGrafici.back() = rigaGrafico("RB", "20060315", "0005:00");
    EXPECT_EQ(months(), std::vector<double>(Mesi));
    EXPECT_EQ(form.MSCharta().TitleText, "");
}

TEST_F(YearlyChart, ItsHeadingSaysWhichYear) {
    form.VisualizzaGraficoAnnuale();
    EXPECT_EQ(form.MSCharta().intestazione, "Ore dell'anno 2006");
}

TEST_F(YearlyChart, AnErrorNamesFileRecordAndMonth) {
    setHours({rigaGrafico("RB", "20051301", "0001:00"), rigaGrafico("RB", "20061301", "0001:00")});
    EXPECT_EQ(errorOf([&] { form.VisualizzaGraficoAnnuale(); }),
              "wgrafici, record 2: il mese \"13\" è fuori dall'anno");
    setHours({rigaGrafico("RB", "2006xx01", "0001:00")});
    EXPECT_EQ(errorOf([&] { form.VisualizzaGraficoAnnuale(); }),
              "wgrafici, record 1: il mese \"xx\" non è un numero");
}

} // namespace planner::test
