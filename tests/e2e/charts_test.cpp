// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"
#include "support/builders.h"

namespace planner::e2e {

namespace {

const std::string Mensile = "Planner Mensile";

struct KindOfChart {
    char tipoplanner;
    std::string title;
};

void PrintTo(const KindOfChart& kind, std::ostream* out) {
    *out << kind.tipoplanner;
}

class Charts : public ScenarioAccessibile {
protected:
    void showPlanner(const KindOfChart& kind) {
        asked = requestBytes(kind.tipoplanner);
        request(asked);
        lookAt(kind.title);
    }
    /// Picks a staff member of the monthly planner.
    void pickSomebody() {
        picked = casellaConScadenze(archivio, 3);
        pick(picked);
        answered = picked.giorno + picked.codice;
    }
    void showMonthWithSomebody() {
        showPlanner({'M', Mensile});
        pickSomebody();
    }
    Finestra openChart() const {
        finestra().press("ctrl+g");
        return chartInFront();
    }
    Finestra chartInFront() const {
        Finestra chart = window(planner(), "Planner");
        bus.waitFor(planner(), "Tipo Grafico"); // a message would have the same title
        schermo.moveMouseAway();                // the value under it stands out
        return chart;
    }
    void closeChart(const Finestra& chart) const {
        chart.press("Escape");
        EXPECT_TRUE(chart.disappears());
    }
    /// Checks that the planner is as usable as ever, by closing it.
    void checkAnswer() {
        EXPECT_FALSE(ospite.isTold());
        finestra().press("Escape");
        EXPECT_EQ(ospite.answer(), answeredWith(answered + "E", asked));
        EXPECT_EQ(planner().exitCode(), 0);
    }

    Casella picked;
    std::string asked;
    std::string answered = "20060315  "; // without the letter
};

class EveryChart : public Charts, public testing::WithParamInterface<KindOfChart> {
protected:
    Finestra showChart() {
        showPlanner(GetParam());
        if (GetParam().tipoplanner == 'M') {
            pickSomebody();
        }
        return openChart();
    }
};

/// True when the chart, which is white, ends just before the window's right border and above its last line,
/// and is drawn upon up to there.
bool chartFillsWindow(const Immagine& picture) {
    const int right = picture.width() - 17;   // 250 twips of border
    const int bottom = picture.height() - 37; // a chart is 700 twips lower than the window, from 150 on
    const Immagine::Colour paper{255, 255, 255};
    const Immagine::Colour around = picture.at(1, 1);
    const Area atTheRight{right - picture.width() / 10, picture.height() / 3, picture.width() / 20,
                          picture.height() / 3};
    const Area atTheBottom{picture.width() / 4, bottom - 30, picture.width() / 2, 28};
    return around != paper && picture.at(right - 3, bottom - 3) == paper &&
           picture.at(right + 3, bottom - 3) == around && picture.at(right - 3, bottom + 3) == around &&
           picture.colours(atTheRight).size() > 1 && picture.colours(atTheBottom).size() > 1;
}

/// The chart below the options, whose looks hang on which of them was clicked last.
Immagine chartOnly(const Finestra& chart) {
    const Immagine picture = chart.picture();
    const int top = picture.height() / 5;
    return picture.part({0, top, picture.width(), picture.height() - top});
}

} // namespace

TEST_P(EveryChart, ComesOverThePlannerAndFillsItsWindow) {
    const Finestra chart = showChart();
    EXPECT_EQ(chart.title(), "Planner");
    EXPECT_TRUE(comesTrue([&] { return chart.isActive(); })) << "it comes in front by itself";
    EXPECT_TRUE(comesTrue([&] { return chartFillsWindow(chart.picture()); }));
    EXPECT_TRUE(finestra().isVisible());
}

TEST_P(EveryChart, IsHeardValueByValueWithTheArrows) {
    const Finestra chart = showChart();
    const auto listener = bus.listener(planner());
    chart.press("Right");
    const std::string first = listener->readLine();
    EXPECT_NE(first, "Grafico") << "the value, not the list";
    chart.press("Right");
    EXPECT_NE(listener->readLine(), first);
}

TEST_P(EveryChart, TheEscapeKeyClosesItAndThePlannerGoesOn) {
    closeChart(showChart());
    checkAnswer();
}

TEST_P(EveryChart, TheCloseCommandOfTheWindowManagerClosesItAndThePlannerGoesOn) {
    const Finestra chart = showChart();
    chart.press("alt+F4");
    EXPECT_TRUE(chart.disappears());
    checkAnswer();
}

TEST_P(EveryChart, IsABarChartOrAPieAsTheOptionsSay) {
    const Finestra chart = showChart();
    ASSERT_TRUE(comesTrue([&] { return chartFillsWindow(chart.picture()); })) << "it is painted";
    const Immagine bars = chartOnly(chart);
    const auto choose = [&](const std::string& option) {
        click(option);
        schermo.moveMouseAway();
    };
    choose("Torta");
    ASSERT_TRUE(comesTrue([&] { return chartOnly(chart) != bars; }));
    const Immagine pie = chartOnly(chart);
    choose("Istogramma");
    EXPECT_TRUE(comesTrue([&] { return chartOnly(chart) == bars; }));
    choose("Linee");
    EXPECT_TRUE(comesTrue([&] { return chartOnly(chart) == pie; })) << "there is no chart of lines";
}

TEST_P(EveryChart, FollowsTheWindowsSize) {
    const Finestra chart = showChart();
    for (const Schermo::Size& size : {Schermo::Size{800, 500}, Schermo::Size{1300, 700}}) {
        SCOPED_TRACE(size.width);
        chart.resize(size.width, size.height);
        EXPECT_TRUE(comesTrue([&] {
            const Immagine picture = chart.picture();
            return picture.width() == size.width && picture.height() == size.height &&
                   chartFillsWindow(picture);
        }));
    }
    closeChart(chart);
    checkAnswer();
}

INSTANTIATE_TEST_SUITE_P(Charts, EveryChart,
                         testing::Values(KindOfChart{'M', Mensile}, KindOfChart{'G', "Planner Giornaliero"},
                                         KindOfChart{'A', "Planner Annuale"}),
                         [](const auto& tested) { return std::string(1, tested.param.tipoplanner); });

TEST_F(Charts, ComeWithTheirButton) {
    showMonthWithSomebody();
    click("Grafici");
    closeChart(chartInFront());
    checkAnswer();
}

TEST_F(Charts, TheMonthlyOneAsksForAStaffMember) {
    showPlanner({'M', Mensile});
    finestra().press("ctrl+g");
    confirmMessage(planner(), "information",
                   "Selezionare un collaboratore prima di visualizzare il grafico.");
    // Keys are taken in their order: with this window there, the one before has had its effect.
    finestra().press("shift+F1");
    const Finestra information = window(planner(), "Informazioni");
    EXPECT_FALSE(Finestra::find(schermo, planner(), "Planner").has_value());
    information.press("Escape");
    EXPECT_TRUE(information.disappears());
    checkAnswer();
}

TEST_F(Charts, AMissingArchiveOfHoursIsSaidAndTheChartIsEmpty) {
    archivio.remove("wgrafici");
    showPlanner({'G', "Planner Giornaliero"});
    finestra().press("ctrl+g");
    confirmMessage(planner(), "information", "Errore sul File :" + archivio.path() + "/\\wgrafici");
    closeChart(chartInFront());
    checkAnswer();
}

TEST_F(Charts, TheArrowKeysReadTheHoursOfEachDay) {
    picked = casellaConScadenze(archivio, 3);
    archivio.write("wgrafici", test::bytesOf(test::rigaGrafico(picked.codice, "20060315", "0007:30")));
    showMonthWithSomebody();
    const Finestra chart = openChart();
    bus.waitFor(planner(), {"Grafico", 14, 0, "15 marzo: 7 ore e 30 minuti"});
    chart.press("Right");
    bus.waitFor(planner(), "1 marzo: nessuna ora"); // now under the chart
    for (int day = 2; day <= 15; ++day) {
        chart.press("Right");
    }
    bus.waitFor(planner(), "15 marzo: 7 ore e 30 minuti");
    chart.press("Left");
    bus.waitFor(planner(), "14 marzo: nessuna ora");
}

TEST_F(Charts, AButtonCopiesToo) {
    showMonthWithSomebody();
    openChart();
    press("Copia i valori");
    bus.waitFor(planner(), "Valori copiati.");
}

TEST_F(Charts, TheCopyKeysSayThatTheValuesAreCopied) {
    showMonthWithSomebody();
    openChart().press("ctrl+c");
    bus.waitFor(planner(), "Valori copiati.");
}

TEST_F(Charts, LeaveTheStaffListOpen) {
    showMonthWithSomebody();
    finestra().press("ctrl+l");
    const Finestra list = window(planner(), "Selezione Collaboratori");
    closeChart(openChart());
    EXPECT_TRUE(list.isVisible());
    list.press("Escape");
    EXPECT_TRUE(list.disappears());
    checkAnswer();
}

} // namespace planner::e2e
