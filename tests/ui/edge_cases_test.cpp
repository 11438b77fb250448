// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// The window's edge cases by real clicks and keys. Bianchi (row 2) has a note, Rossi (row 3) deadlines,
/// Verdi (row 4) nothing.
struct EdgeCasesTest : testing::Test {
    static constexpr int SpareRow = 9;
    WindowBench bench;

    EdgeCasesTest() {
        bench.base.putRighe({riga("RB", "20060315", {{1, "00002"}}), riga("BI", "20060310", {{7, "00001"}}),
                             RigaPlanner{}, RigaPlanner{}});
        bench.base.putAnnuale(annoPlanner("2006", {{3, 17}}));
    }
    void openPeriod(const char* key, const char* first, const char* last) {
        bench.open("M");
        bench.newEngine()->Init_planner(key, first, last, "  ");
        bench.finestra.show();
    }
    QString text(const char* label) { return bench.widget<QLabel>(label).text(); }
    bool shows(const char* label) { return bench.widget(label).isVisibleTo(&bench.vista); }
    void press(const char* button) { QTest::mouseClick(&bench.widget<QToolButton>(button), Qt::LeftButton); }
    void command(const char* key) {
        auto& toolbar = bench.widget<QToolBar>("Toolbar1");
        auto* action = toolbar.findChild<QAction*>(QLatin1String(key));
        QTest::mouseClick(toolbar.widgetForAction(action), Qt::LeftButton);
    }
    const Griglia& Flxm() { return bench.base.controlli.Flxm; }
};

} // namespace

TEST_F(EdgeCasesTest, ASpareRowHidesThePanelAndLeavesTheStaffMember) {
    bench.open("M");
    bench.click(3, 17);
    bench.click(SpareRow, 17);
    EXPECT_FALSE(shows("lblcollab"));
    EXPECT_FALSE(shows("Lblscad"));
    EXPECT_EQ(bench.base.sessione.collab, "RB");
}

TEST_F(EdgeCasesTest, ASecondRowPaintsTheFirstBackAndTheNamesKeepTheirColours) {
    bench.open("M");
    bench.click(3, 17);
    EXPECT_EQ(Flxm().CellBackColor(3, 5), Colore::giallo);
    bench.click(2, 17);
    EXPECT_EQ(Flxm().CellBackColor(3, 5), Colore::gialloChiaro);
    EXPECT_EQ(Flxm().CellBackColor(2, 5), Colore::giallo);
    EXPECT_EQ(Flxm().CellBackColor(2, 0), Colore::intestazione);
}

TEST_F(EdgeCasesTest, InVariantBTheDeadlinesNeverShow) {
    bench.open("M", "20060315", "                   B");
    bench.click(3, 17);
    EXPECT_FALSE(shows("Lblscad"));
    EXPECT_FALSE(shows("Lblscadeva"));
    EXPECT_TRUE(shows("lblpra"));
}

TEST_F(EdgeCasesTest, ATotalOfZeroIsAnEmptyLabel) {
    bench.open("M");
    bench.click(3, 17);
    EXPECT_TRUE(shows("lblpra"));
    EXPECT_EQ(text("lblpra"), QString());
}

TEST_F(EdgeCasesTest, AClickActsOnceAtThePress) {
    bench.open("A");
    auto& view = bench.view();
    const QPoint firstOfMay = view.visualRect(view.model()->index(4, 0)).center();
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, firstOfMay);
    EXPECT_EQ(bench.shownDay(), "20060501");
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, firstOfMay);
    EXPECT_EQ(bench.shownDay(), "20060501");
    bench.key(Qt::Key_Right);
    EXPECT_EQ(bench.shownDay(), "20060502");
}

TEST_F(EdgeCasesTest, AMonthThatBeginsInTheFourthColumnMapsItToDayOne) {
    bench.open("M", "20060615");
    bench.click(2, 4);
    EXPECT_EQ(bench.shownDay(), "20060601");
}

TEST_F(EdgeCasesTest, FebruaryShowsItsLastDayAfterThe31stOfJanuary) {
    bench.open("M", "20060131");
    press("bselm1");
    EXPECT_EQ(bench.shownDay(), "20060228");
    openPeriod("M20040131", "20040101", "20041231");
    press("bselm1");
    EXPECT_EQ(bench.shownDay(), "20040229");
}

TEST_F(EdgeCasesTest, BackFromDay31AMonthOf30DaysShowsDay30) {
    bench.open("M", "20060731");
    press("bselm0");
    EXPECT_EQ(bench.shownDay(), "20060630");
}

TEST_F(EdgeCasesTest, YearButtonsDoNothingInAPeriodOfOneYear) {
    bench.open("M");
    press("bselm2");
    press("bselm3");
    bench.key(Qt::Key_Right, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(bench.shownDay(), "20060315");
    openPeriod("M20060315", "20060101", "20071231");
    press("bselm3");
    EXPECT_EQ(bench.shownDay(), "20070315");
}

TEST_F(EdgeCasesTest, TheYearlyButtonsReplyWithDayAndStaffCode) {
    bench.open("A", "20060605");
    bench.base.sessione.collab = "RB";
    press("bselA1");
    EXPECT_EQ(bench.reply(), "20060605RBP");
    press("bselA2");
    EXPECT_EQ(bench.reply(), "20060605RBS");
}

TEST_F(EdgeCasesTest, ConsultAnswersOnlyWhereThereIsSomethingToConsult) {
    bench.open("M");
    command("consult");
    EXPECT_EQ(bench.reply(), "");
    bench.click(2, 12);
    command("consult");
    EXPECT_EQ(bench.reply(), "");
    bench.click(3, 17);
    command("consult");
    EXPECT_EQ(bench.reply(), "20060315RBD");
}

TEST_F(EdgeCasesTest, ConsultInTheYearlyPlannerNeedsAMarkedDay) {
    bench.open("A");
    bench.click(3, 18);
    command("consult");
    EXPECT_EQ(bench.reply(), "");
    bench.click(3, 17);
    command("consult");
    EXPECT_EQ(bench.reply(), "20060315  D");
}

TEST_F(EdgeCasesTest, AgendaDoesNothingInCallModeA) {
    bench.open("M");
    bench.base.sessione.tipocall = "A";
    command("agenda");
    EXPECT_EQ(bench.reply(), "");
    bench.base.sessione.tipocall = " ";
    command("agenda");
    EXPECT_EQ(bench.reply(), "20060315  A");
}

TEST_F(EdgeCasesTest, FiltriSurvivesTheUnload) {
    bench.open("M");
    bench.click(3, 17);
    command("filtri");
    EXPECT_EQ(bench.reply(), "20060315RBF");
    EXPECT_FALSE(bench.vista.isVisible());
    EXPECT_TRUE(bench.finestra.isLoaded());
}

TEST_F(EdgeCasesTest, InsimpInVariantBOpensNoDialog) {
    bench.open("M", "20060315", "                   B");
    command("insimp");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(bench.reply(), "20060315  T");
}

TEST_F(EdgeCasesTest, DettnoThenDettsiReturnsToTheFirstState) {
    bench.open("M");
    const int pictured = Flxm().cella(3, 17).immagine;
    command("dettno");
    EXPECT_EQ(Flxm().cella(3, 17).immagine, ImmaginePresenza);
    command("dettsi");
    EXPECT_EQ(Flxm().cella(3, 17).immagine, pictured);
    EXPECT_TRUE(bench.base.controlli.Toolbar1.enabled(Pulsante::dettno));
}

} // namespace planner::test
