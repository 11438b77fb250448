// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "measures.h"
#include "painted.h"
#include "ui/kit/appearance.h"
#include "ui/kit/fitted_label.h"
#include "ui/plcal/legend_bar.h"
#include "window_bench.h"

#include <QHeaderView>
#include <QTest>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

const QRgb Bar = qtColor(Colore::riepilogo).rgb();

/// What of the whole office is in sight at once: bars in the header, tips of the names, the legend.
struct GlanceTest : testing::Test {
    WindowBench bench;

    GlanceTest() {
        bench.base.putRighe(
            {riga("RB", "20060315", {{1, "00004"}, {6, "00001"}}), riga("BI", "20060316", {{1, "00002"}}),
             conOrario(riga("BI", "20060315", {{8, "00001"}}), "09", "30", "0000130"), RigaPlanner{}});
    }

    QHeaderView& days() { return *bench.view().horizontalHeader(); }
    QHeaderView& names() { return *bench.view().verticalHeader(); }
    QPoint inColumn(int column) {
        return {days().sectionViewportPosition(column - 1) + days().sectionSize(column - 1) / 2, 5};
    }
    FittedLabel& status() { return bench.widget<FittedLabel>("stato"); }
    LegendBar& legend() { return bench.widget<LegendBar>("legenda"); }

    /// How many pixels high the bar of a column is.
    double barHeight(int column) {
        const Painted header(*days().viewport());
        double height = 0;
        for (int x = 0; x < days().sectionSize(column - 1); ++x) {
            const double left = days().sectionViewportPosition(column - 1) + x;
            height = std::max(height, header.amount({left, 0, 1, days().height() * 1.0}, is(Bar)));
        }
        return height;
    }
};

} // namespace

TEST_F(GlanceTest, TheMonthsHeaderHasABarForTheDeadlinesOfEachDay) {
    bench.open("M");
    const double most = barHeight(17);
    EXPECT_GT(most, days().height() * 0.7);
    EXPECT_LE(most, days().height());
    EXPECT_NEAR(barHeight(18), most / 2, 1.5);
    EXPECT_EQ(barHeight(19), 0);
    const Painted header(*days().viewport());
    const double roomOfNone = days().sectionViewportPosition(18) + days().sectionSize(18) - 5;
    EXPECT_TRUE(header.all({roomOfNone, 4, 1, 2}, isNot(qtColor(Colore::intestazione).rgb())));
    EXPECT_EQ(bench.griglia().FixedRows(), 2) << "no row more";
}

TEST_F(GlanceTest, TheDaysHeaderHasABarForWhoIsFree) {
    bench.open("G");
    EXPECT_GT(barHeight(38), barHeight(39));
    EXPECT_NEAR(barHeight(39), barHeight(38) * 2 / 3, 1.5);
}

TEST_F(GlanceTest, NoBarStandsOnTheTextOfItsColumn) {
    for (const char* kind : {"M", "G"}) {
        bench.open(kind);
        const Painted header(*days().viewport());
        for (int section = 0; section < days().count(); ++section) {
            const double right = days().sectionViewportPosition(section) + days().sectionSize(section);
            if (right < 8 || right > days().width() || !bench.griglia().riepilogo(section + 1)) {
                continue;
            }
            const QRectF besideBar(right - 3 - std::clamp(days().sectionSize(section) / 7, 2, 8) - 1, 0, 1,
                                   days().height() - 3.0);
            EXPECT_FALSE(header.any(besideBar, isDark)) << kind << " " << section;
        }
    }
}

TEST_F(GlanceTest, AColumnsTipSaysItInWords) {
    bench.open("G");
    EXPECT_TRUE(toolTipAt(*days().viewport(), inColumn(39)).contains(QStringLiteral("2 liberi alle 9:30")));
    bench.open("M");
    EXPECT_TRUE(toolTipAt(*days().viewport(), inColumn(17))
                    .contains(QStringLiteral("mercoledì 15 marzo 2006: 4 scadenze dello studio")));
}

TEST_F(GlanceTest, TheStatusLineSaysItTooWhileTheMouseIsThere) {
    bench.open("G");
    bench.click(2, 40);
    const QString sentence = status().text();
    QTest::mouseMove(days().viewport(), inColumn(39));
    EXPECT_EQ(status().text(), QStringLiteral("2 liberi alle 9:30"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(days().viewport(), &leave);
    EXPECT_EQ(status().text(), sentence);
}

TEST_F(GlanceTest, ANamesTipHasThePersonsTotals) {
    bench.open("M");
    const QPoint rossi(10, names().sectionViewportPosition(1) + 5);
    EXPECT_TRUE(
        toolTipAt(*names().viewport(), rossi).contains(QStringLiteral("Rossi Bruno: 4 scadenze, 1 pratica")));
}

TEST_F(GlanceTest, ANameIsNoMarkup) {
    bench.base.putCollaboratori({collaboratore("RB", "<b>Rossi</b>")});
    bench.open("M");
    const QPoint rossi(10, names().sectionViewportPosition(0) + 5);
    EXPECT_TRUE(toolTipAt(*names().viewport(), rossi).contains(QStringLiteral("&lt;b&gt;Rossi")));
}

TEST_F(GlanceTest, TheLegendStandsAtTheRightOfTheStatusLine) {
    bench.open("M");
    EXPECT_TRUE(legend().isVisible());
    EXPECT_EQ(legend().accessibleDescription(),
              QStringLiteral("note riservate, impegni vari, scadenze, pratiche"));
    EXPECT_GT(legend().x(), status().geometry().right());
    EXPECT_LE(legend().geometry().right(), bench.vista.width());
    EXPECT_EQ(legend().width(), legend().wholeWidth());
    EXPECT_TRUE(Painted(legend()).any(QRectF(legend().rect()), isRed)) << "the deadline";
}

TEST_F(GlanceTest, TheLegendGivesWayToTheSentence) {
    bench.open("M");
    bench.click(3, 17);
    const int whole = legend().width();
    bench.vista.showNormal();
    bench.vista.resize(bench.vista.minimumWidth(), bench.vista.minimumHeight());
    EXPECT_FALSE(status().fitted().cut);
    EXPECT_LE(legend().width(), whole);
    EXPECT_GE(legend().width(), legend().shortWidth());
    EXPECT_LT(status().geometry().right(), legend().x());
}

TEST_F(GlanceTest, EachSignOfTheLegendHasItsTip) {
    bench.open("M");
    EXPECT_TRUE(toolTipAt(legend(), {2, 2}).contains(QStringLiteral("Note riservate")));
    EXPECT_TRUE(toolTipAt(legend(), {legend().width() - 20, 2}).contains(QStringLiteral("Pratiche")));
}

TEST_F(GlanceTest, TheLegendFollowsTheGrid) {
    bench.open("M", "20060315", "N                    ");
    EXPECT_EQ(legend().accessibleDescription(), QStringLiteral("almeno un impegno"));
    bench.open("A");
    EXPECT_EQ(legend().accessibleDescription(), QStringLiteral("giorno con impegni"));
    EXPECT_TRUE(Painted(legend()).any(QRectF(legend().rect()), is(qtColor(Colore::navy).rgb())));
}

} // namespace planner::test
