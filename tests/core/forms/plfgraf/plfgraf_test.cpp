// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfgraf_fixture.h"

namespace planner::test {

namespace {

class ChartWindow : public PlfgrafTest {
protected:
    void buildAll() {
        form.VisualizzaGraficoMensile({1});
        form.VisualizzaGraficoGiornaliero({1});
        form.VisualizzaGraficoAnnuale();
    }
};

constexpr int Istogramma = 0;
constexpr int Linee = 1;
constexpr int Torta = 2;

} // namespace

TEST_F(ChartWindow, ShowsNothingBeforeAChartWasBuilt) {
    EXPECT_EQ(form.visibile(), nullptr);
}

TEST_F(ChartWindow, ShowsOnlyTheChartJustBuilt) {
    form.VisualizzaGraficoMensile({1});
    EXPECT_EQ(form.visibile(), &form.MSChartm());
    form.VisualizzaGraficoGiornaliero({1});
    EXPECT_EQ(form.visibile(), &form.MSChartg());
    form.VisualizzaGraficoAnnuale();
    EXPECT_EQ(form.visibile(), &form.MSCharta());
    EXPECT_FALSE(form.MSChartm().Visible);
    EXPECT_FALSE(form.MSChartg().Visible);
    form.VisualizzaGraficoMensile({0});
    EXPECT_EQ(form.visibile(), &form.MSChartm());
    EXPECT_FALSE(form.MSCharta().Visible);
}

TEST_F(ChartWindow, OptionsHaveTheirCaptions) {
    EXPECT_THAT(OpzioniTipoGrafico, testing::ElementsAre("Istogramma", "Linee", "Torta"));
    EXPECT_EQ(form.OptTipoGrafico(), Istogramma);
}

TEST_F(ChartWindow, LinesAndPieBothGiveThePie) {
    form.VisualizzaGraficoMensile({1});
    for (const int option : {Linee, Torta}) {
        form.OptTipoGrafico_Click(option);
        EXPECT_EQ(form.OptTipoGrafico(), option);
        EXPECT_EQ(form.MSChartm().tipo, TipoGrafico::Torta);
        form.OptTipoGrafico_Click(Istogramma);
        EXPECT_EQ(form.OptTipoGrafico(), Istogramma);
        EXPECT_EQ(form.MSChartm().tipo, TipoGrafico::Istogramma);
    }
}

TEST_F(ChartWindow, AnotherIndexSelectsNothing) {
    form.VisualizzaGraficoMensile({1});
    form.OptTipoGrafico_Click(Torta);
    for (const int index : {-1, 3, INT_MAX, INT_MIN}) {
        form.OptTipoGrafico_Click(index);
        EXPECT_EQ(form.OptTipoGrafico(), Torta);
        EXPECT_EQ(form.MSChartm().tipo, TipoGrafico::Torta);
    }
}

TEST_F(ChartWindow, AClickChangesTheVisibleChartOnly) {
    buildAll();
    form.OptTipoGrafico_Click(Torta);
    EXPECT_EQ(form.MSCharta().tipo, TipoGrafico::Torta);
    EXPECT_EQ(form.MSChartm().tipo, TipoGrafico::Istogramma);
    EXPECT_EQ(form.MSChartg().tipo, TipoGrafico::Istogramma);
}

TEST_F(ChartWindow, TheKindStaysOnEachChartAcrossBuilds) {
    form.VisualizzaGraficoMensile({1});
    form.OptTipoGrafico_Click(Torta);
    form.VisualizzaGraficoGiornaliero({1});
    EXPECT_EQ(form.MSChartg().tipo, TipoGrafico::Istogramma);
    form.VisualizzaGraficoMensile({0});
    EXPECT_EQ(form.MSChartm().tipo, TipoGrafico::Torta);
}

TEST_F(ChartWindow, AClickBeforeAnyChartOnlySelects) {
    form.OptTipoGrafico_Click(Torta);
    EXPECT_EQ(form.OptTipoGrafico(), Torta);
    form.VisualizzaGraficoMensile({1});
    EXPECT_EQ(form.MSChartm().tipo, TipoGrafico::Istogramma);
}

TEST_F(ChartWindow, AChartWithoutSeriesKeepsItsKind) {
    setHours({rigaGrafico("RB", "20060332", "0001:00")});
    EXPECT_THROW(form.VisualizzaGraficoMensile({1}), SubscriptError);
    form.OptTipoGrafico_Click(Torta);
    EXPECT_EQ(form.MSChartm().tipo, TipoGrafico::Istogramma);
}

TEST_F(ChartWindow, OnlyEscapeCloses) {
    EXPECT_TRUE(plfgraf::Form_KeyDown(27));
    for (const int key : {0, 13, 32, 26, 28, 115, -27}) {
        EXPECT_FALSE(plfgraf::Form_KeyDown(key)) << key;
    }
}

TEST_F(ChartWindow, ChartsFillTheWindowButForTheirMargins) {
    form.Form_Resize({10'000, 8'000});
    const Rettangolo expected{250, 150, 9'500, 7'300};
    EXPECT_EQ(form.posizioneGrafici(), expected);
}

TEST_F(ChartWindow, TheFrameStandsInTheUpperRightCornerOfTheCharts) {
    form.setDimensioniFrame({1'600, 1'200});
    form.Form_Resize({10'000, 8'000});
    EXPECT_EQ(form.posizioneFrameTipo_Grafico(), (Rettangolo{9'500 - 1'600 - 500, 250, 1'600, 1'200}));
}

TEST_F(ChartWindow, AWindowTooLowForChartsLeavesAllAsItWas) {
    form.setDimensioniFrame({1'600, 1'200});
    form.Form_Resize({10'000, 8'000});
    const Rettangolo charts = form.posizioneGrafici();
    const Rettangolo frame = form.posizioneFrameTipo_Grafico();
    for (const int height : {700, 699, 0, -1, INT_MIN}) {
        form.Form_Resize({5'000, height});
        EXPECT_EQ(form.posizioneGrafici(), charts) << height;
        EXPECT_EQ(form.posizioneFrameTipo_Grafico(), frame) << height;
    }
    form.Form_Resize({5'000, 701});
    EXPECT_EQ(form.posizioneGrafici(), (Rettangolo{250, 150, 4'500, 1}));
}

TEST_F(ChartWindow, AWindowTooNarrowForChartsGivesThemNoWidth) {
    form.Form_Resize({400, 8'000});
    EXPECT_EQ(form.posizioneGrafici().Width, 0);
    form.Form_Resize({INT_MIN, 8'000});
    EXPECT_EQ(form.posizioneGrafici().Width, 0);
}

TEST_F(ChartWindow, IsLaidOutBeforeItsFirstResize) {
    EXPECT_EQ(form.posizioneGrafici(),
              (Rettangolo{250, 150, plfgraf::Progetto.width - 500, plfgraf::Progetto.height - 700}));
}

} // namespace planner::test
