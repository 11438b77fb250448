// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QAction>
#include <QCalendarWidget>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// Bianchi (row 2), Rossi (row 3), Verdi (row 4) in March 2006, which begins in column 3.
struct InteractionTest : testing::Test {
    WindowBench bench;

    InteractionTest() {
        bench.base.putRighe({riga("RB", "20060315", {{1, "00002"}}), riga("BI", "20060310", {{6, "00007"}}),
                             RigaPlanner{}, RigaPlanner{}});
        bench.base.putAnnuale(annoPlanner("2006", {{3, 17}}));
    }
    QString text(const char* label) { return bench.widget<QLabel>(label).text(); }
    QToolButton& periodButton(const char* name) { return bench.widget<QToolButton>(name); }
};

} // namespace

TEST_F(InteractionTest, AClickSelectsTheStaffMemberAndMovesTheCalendar) {
    bench.open("M");
    bench.click(3, 3);
    EXPECT_EQ(text("lblcollab"), QStringLiteral("Impegni di Rossi Bruno"));
    EXPECT_EQ(text("Lblscad"), QStringLiteral("2"));
    EXPECT_EQ(bench.shownDay(), "20060301");
    EXPECT_EQ(bench.widget<QCalendarWidget>("calendario").selectedDate(), QDate(2006, 3, 1));
    EXPECT_EQ(text("stato"), QStringLiteral("Rossi Bruno, mercoledì 1 marzo 2006"));
}

TEST_F(InteractionTest, AClickOnTheCellThatIsCurrentFromTheStartSelectsToo) {
    bench.open("M");
    bench.click(3, 17);
    EXPECT_EQ(bench.base.sessione.collab, "RB");
}

TEST_F(InteractionTest, ArrowKeysSelectAndMoveTheCalendarAsClicksDo) {
    bench.open("M");
    bench.click(2, 3);
    bench.key(Qt::Key_Down);
    bench.key(Qt::Key_Right);
    EXPECT_EQ(bench.base.sessione.collab, "RB");
    EXPECT_EQ(bench.shownDay(), "20060302");
}

TEST_F(InteractionTest, AClickOnANameSelectsItsRowAndLeavesTheDay) {
    bench.open("M");
    auto* names = bench.view().verticalHeader();
    QTest::mouseClick(names->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(10, names->sectionViewportPosition(1) + 5));
    EXPECT_EQ(bench.base.sessione.collab, "RB");
    EXPECT_EQ(bench.shownDay(), "20060315");
}

TEST_F(InteractionTest, InTheYearlyGridArrowKeysMoveTheCalendarAndAMarkedDayShowsItsTotals) {
    bench.open("A");
    bench.click(3, 16);
    EXPECT_EQ(bench.shownDay(), "20060314");
    bench.key(Qt::Key_Right);
    EXPECT_EQ(bench.shownDay(), "20060315");
    bench.key(Qt::Key_Return);
    EXPECT_EQ(bench.reply(), "20060315  D");
}

TEST_F(InteractionTest, EnterAndDoubleClickConsult) {
    bench.open("M");
    bench.click(3, 17);
    bench.key(Qt::Key_Return);
    EXPECT_EQ(bench.reply(), "20060315RBD");
    bench.base.sessione.valret.clear();
    bench.doubleClick(2, 12);
    EXPECT_EQ(bench.reply(), "20060310BID");
}

TEST_F(InteractionTest, EnterWhereThereIsNothingToConsultSaysSoInTheStatusLine) {
    bench.open("M");
    bench.click(4, 17);
    bench.key(Qt::Key_Return);
    EXPECT_EQ(bench.reply(), "");
    EXPECT_EQ(text("stato"), QStringLiteral("Qui non ci sono scadenze o pratiche da consultare."));
}

TEST_F(InteractionTest, PeriodButtonsMoveTheMonth) {
    bench.open("M");
    QTest::mouseClick(&periodButton("bselm1"), Qt::LeftButton);
    EXPECT_EQ(bench.shownDay(), "20060415");
    EXPECT_EQ(text("lbldescr"), QStringLiteral("Mese di Aprile 2006"));
    QTest::mouseClick(&periodButton("bselm0"), Qt::LeftButton);
    EXPECT_EQ(bench.shownDay(), "20060315");
    EXPECT_FALSE(periodButton("bselm3").isEnabled()) << "the period has one year";
}

TEST_F(InteractionTest, PeriodKeysMoveEachKind) {
    bench.open("M");
    bench.key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(bench.shownDay(), "20060415");
    bench.key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(bench.shownDay(), "20060315");
    bench.open("G");
    bench.key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(bench.shownDay(), "20060316");
    bench.open("A");
    bench.key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(bench.reply(), "20060315  P");
    bench.key(Qt::Key_Right, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(bench.reply(), "20060315  S");
}

TEST_F(InteractionTest, ScrollPositionAndStaffMemberSurviveAMove) {
    bench.base.putCollaboratori(std::vector<Collaboratore>(60, collaboratore("ZZ", "Nome")));
    bench.base.putRighe(std::vector<RigaPlanner>(80));
    bench.open("M");
    bench.click(30, 17);
    auto* bar = bench.view().verticalScrollBar();
    const int position = bar->value();
    ASSERT_GT(position, 0);
    bench.key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(bar->value(), position);
    EXPECT_EQ(bench.base.sessione.IndiceCollab.valore, 28);
    EXPECT_EQ(bench.view().currentIndex().row(), 28);
    bench.open("G");
    bench.click(20, 60);
    const int hour = bench.view().horizontalScrollBar()->value();
    bench.key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(bench.view().horizontalScrollBar()->value(), hour);
}

TEST_F(InteractionTest, ToolTipsShowTheShortcut) {
    bench.open("M");
    EXPECT_TRUE(periodButton("bselm0").toolTip().startsWith(QStringLiteral("Mese precedente (Alt+")));
    auto* exit = bench.widget<QToolBar>("Toolbar1").findChild<QAction*>(QStringLiteral("exit"));
    EXPECT_EQ(exit->toolTip(), QStringLiteral("Uscita (Ctrl+Q)"));
}

TEST_F(InteractionTest, TheContextMenuOffersTheCommandsThatApply) {
    bench.open("M");
    bench.click(3, 17);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            bench.view().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(bench.view().viewport(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QStringList offered;
    for (const QAction* action : menu->actions()) {
        offered << (action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    menu->close();
    const QStringList expected{QStringLiteral("Consultazione"),
                               QStringLiteral("Inserimento impegni"),
                               QStringLiteral("Agenda"),
                               QStringLiteral("Planner non dettagliato"),
                               QStringLiteral("-"),
                               QStringLiteral("Leggi"),
                               QStringLiteral("Copia la tabella"),
                               QStringLiteral("Stampa…"),
                               QStringLiteral("Stampa con i totali…"),
                               QStringLiteral("-"),
                               QStringLiteral("Ingrandisci"),
                               QStringLiteral("Riduci"),
                               QStringLiteral("Grandezza normale"),
                               QStringLiteral("-"),
                               QStringLiteral("Cerca collaboratore…"),
                               QStringLiteral("Cerca ancora"),
                               QStringLiteral("Vai alla data…"),
                               QStringLiteral("Vai a oggi"),
                               QStringLiteral("Salta a"),
                               QStringLiteral("-"),
                               QStringLiteral("Guida")};
    EXPECT_EQ(offered, expected);
}

TEST_F(InteractionTest, TabLeavesTheGrid) {
    bench.open("M");
    bench.view().setFocus();
    QTest::keyClick(&bench.view(), Qt::Key_Tab);
    EXPECT_FALSE(bench.view().hasFocus());
}

TEST_F(InteractionTest, ADayOfTheCalendarCanBePicked) {
    bench.open("M");
    auto& calendar = bench.widget<QCalendarWidget>("calendario");
    Q_EMIT calendar.clicked(QDate(2006, 3, 20));
    EXPECT_EQ(bench.shownDay(), "20060320");
    EXPECT_EQ(calendar.minimumDate(), QDate(2006, 1, 1));
    EXPECT_EQ(calendar.maximumDate(), QDate(2006, 12, 31));
}

TEST_F(InteractionTest, TodayIsMarkedInTheHeader) {
    bench.open("M");
    EXPECT_TRUE(bench.base.controlli.Flxm.cella(1, 17).oggi);
    EXPECT_FALSE(bench.base.controlli.Flxm.cella(1, 18).oggi);
    bench.key(Qt::Key_Right, Qt::AltModifier);
    for (int column = 1; column <= ColonneGiorni; ++column) {
        EXPECT_FALSE(bench.base.controlli.Flxm.cella(1, column).oggi) << column;
    }
    bench.open("A");
    EXPECT_TRUE(bench.base.controlli.flxa.cella(3, 17).oggi);
    bench.open("G");
    EXPECT_TRUE(bench.base.controlli.flxg.cella(0, 0).oggi);
}

TEST_F(InteractionTest, TheWheelScrollsTheGridAndMovesNoPeriod) {
    bench.open("M");
    QWheelEvent wheel(QPointF(200, 200), bench.view().mapToGlobal(QPointF(200, 200)), QPoint(),
                      QPoint(0, -480), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bench.view().viewport(), &wheel);
    EXPECT_EQ(bench.shownDay(), "20060315");
}

} // namespace planner::test
