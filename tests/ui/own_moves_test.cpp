// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// What the toolkit and the program do by themselves moves nothing that is the user's.
struct OwnMovesTest : testing::Test {
    WindowBench bench;

    OwnMovesTest() {
        bench.base.putRighe({riga("RB", "20060315", {{1, "00002"}}), riga("BI", "20060310", {{6, "00007"}}),
                             RigaPlanner{}, RigaPlanner{}});
    }
    QString text(const char* label) { return bench.widget<QLabel>(label).text(); }
    QToolButton& button(const char* name) { return bench.widget<QToolButton>(name); }
    QWidget& commandButton(const char* key) {
        auto& toolbar = bench.widget<QToolBar>("Toolbar1");
        return *toolbar.widgetForAction(toolbar.findChild<QAction*>(QLatin1String(key)));
    }
    QTableView& days() { return *bench.widget<QCalendarWidget>("calendario").findChild<QTableView*>(); }
    void officeOf(int staff) {
        bench.base.putCollaboratori(
            std::vector<Collaboratore>(static_cast<std::size_t>(staff), collaboratore("ZZ", "Nome")));
    }
    static void send(QWidget& widget, QEvent::Type type, int key, bool held) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), held);
        QCoreApplication::sendEvent(&widget, &event);
    }
};

class MondayYears : public OwnMovesTest, public testing::WithParamInterface<const char*> {};

} // namespace

TEST_P(MondayYears, TheYearlyPlannerOpensOnTheIncomingDayWhenTheFocusComes) {
    const std::string year = GetParam();
    bench.base.putAnnuale(annoPlanner(year, {{1, 1}}));
    bench.openPeriod("A", year + "0605", year + "0101", year + "1231");
    bench.view().clearFocus();
    bench.view().setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.shownDay(), year + "0605");
    EXPECT_EQ(text("stato").toStdString(), plcal::StatoIniziale);
    EXPECT_EQ(bench.base.controlli.flxa.CellBackColor(1, 1) == Colore::ciano, false);
    EXPECT_EQ(bench.griglia().Row(), 6);
}

INSTANTIATE_TEST_SUITE_P(Years, MondayYears, testing::Values("2006", "2007", "2018", "2024"));

TEST_F(OwnMovesTest, ACommandOfTheMenuActsOnTheDayThatTheRightButtonPressed) {
    bench.open("M");
    const QPoint cell = bench.centreOf(2, 20); // 18 March
    QTest::mousePress(bench.view().viewport(), Qt::RightButton, Qt::NoModifier, cell);
    QContextMenuEvent event(QContextMenuEvent::Mouse, cell, bench.view().viewport()->mapToGlobal(cell));
    QCoreApplication::sendEvent(bench.view().viewport(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QAction* agenda = bench.widget<QToolBar>("Toolbar1").findChild<QAction*>(QStringLiteral("agenda"));
    ASSERT_TRUE(menu->actions().contains(agenda));
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(agenda).center());
    EXPECT_EQ(bench.reply(), "20060318BIA");
}

TEST_F(OwnMovesTest, TheFirstKeyAfterOpeningStartsAtTheShownDay) {
    bench.open("M", "20060517"); // 1 May 2006 stands in column 1
    bench.key(Qt::Key_Down);
    EXPECT_EQ(bench.shownDay(), "20060517");
    bench.key(Qt::Key_Right);
    EXPECT_EQ(bench.shownDay(), "20060518");
}

TEST_F(OwnMovesTest, OpeningPutsTheCursorOnTheStaffMemberOfTheRequestAndSelectsNobody) {
    bench.open("M"); // asks for Rossi
    EXPECT_EQ(bench.griglia().Row(), 3);
    EXPECT_EQ(bench.griglia().Col(), 17);
    EXPECT_EQ(bench.base.sessione.collab, "  ");
    EXPECT_FALSE(bench.widget("lblcollab").isVisible());
    bench.open("G");
    EXPECT_EQ(bench.griglia().Row(), 2);
    EXPECT_EQ(bench.griglia().Col(), PrimaColonnaGiornaliera);
}

TEST_F(OwnMovesTest, WithMoreStaffThanRecordsEveryRowSelectsWithoutABox) {
    officeOf(20);
    bench.base.putRighe({RigaPlanner{}});
    bench.open("M");
    bench.click(15, 20);
    QCoreApplication::processEvents();
    EXPECT_TRUE(bench.base.messaggi.shown.empty());
    EXPECT_EQ(bench.shownDay(), "20060318");
    EXPECT_EQ(bench.base.sessione.IndiceCollab.valore, 13);
}

TEST_F(OwnMovesTest, APeriodButtonThatGoesGreyPassesTheFocusToTheGrid) {
    bench.openPeriod("M", "20061115", "20060101", "20061231");
    button("bselm1").setFocus();
    QTest::keyClick(&button("bselm1"), Qt::Key_Space);
    EXPECT_EQ(bench.shownDay(), "20061215");
    EXPECT_FALSE(button("bselm1").isEnabled());
    EXPECT_EQ(bench.vista.focusWidget(), &bench.view());
}

TEST_F(OwnMovesTest, TheDetailButtonPassesTheFocusToItsTwin) {
    bench.open("M");
    commandButton("dettno").setFocus();
    QTest::keyClick(&commandButton("dettno"), Qt::Key_Space);
    EXPECT_EQ(bench.vista.focusWidget(), &commandButton("dettsi"));
    QTest::keyClick(&commandButton("dettsi"), Qt::Key_Space);
    EXPECT_EQ(bench.vista.focusWidget(), &commandButton("dettno"));
    EXPECT_TRUE(bench.base.controlli.Toolbar1.dettagliato());
}

TEST_F(OwnMovesTest, EnterPressesTheButtonThatHasTheFocus) {
    bench.open("M");
    commandButton("agenda").setFocus();
    QTest::keyClick(&commandButton("agenda"), Qt::Key_Return);
    EXPECT_EQ(bench.reply(), "20060315  A");
    button("bselm1").setFocus();
    QTest::keyClick(&button("bselm1"), Qt::Key_Enter);
    EXPECT_EQ(bench.shownDay(), "20060415");
}

TEST_F(OwnMovesTest, PageKeysWithCtrlMoveMonthsAndWithShiftTooYears) {
    bench.openPeriod("M", "20060315", "20060101", "20071231");
    bench.key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(bench.shownDay(), "20060415");
    bench.key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(bench.shownDay(), "20060315");
    bench.key(Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bench.shownDay(), "20070315");
    bench.key(Qt::Key_PageUp, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bench.shownDay(), "20060315");
    bench.open("A");
    bench.key(Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bench.reply(), "20060315  S");
}

TEST_F(OwnMovesTest, TheCalendarTakesTheFocusAndItsArrowsPickDays) {
    bench.open("M");
    EXPECT_TRUE(days().focusPolicy() & Qt::TabFocus);
    days().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&days(), Qt::Key_Right);
    EXPECT_EQ(bench.shownDay(), "20060316");
    EXPECT_EQ(bench.griglia().Col(), 18);
    QTest::keyClick(&days(), Qt::Key_Escape);
    EXPECT_EQ(bench.reply(), "20060316  E");
}

TEST_F(OwnMovesTest, ADayPickedInTheCalendarTakesCursorMarkAndSentenceAlong) {
    bench.open("M");
    bench.click(3, 17);
    Q_EMIT bench.widget<QCalendarWidget>("calendario").clicked(QDate(2006, 3, 20));
    EXPECT_EQ(bench.griglia().Row(), 3);
    EXPECT_EQ(bench.griglia().Col(), 22);
    EXPECT_EQ(bench.griglia().CellBackColor(3, 22), Colore::ciano);
    EXPECT_EQ(bench.griglia().CellBackColor(3, 17), Colore::giallo);
    EXPECT_EQ(text("stato"), QStringLiteral("Rossi Bruno, lunedì 20 marzo 2006"));
    Q_EMIT bench.widget<QCalendarWidget>("calendario").clicked(QDate(2006, 5, 2));
    EXPECT_EQ(bench.griglia().Col(), 2);
    EXPECT_EQ(bench.griglia().CellBackColor(3, 2), Colore::ciano);
    EXPECT_EQ(text("stato"), QStringLiteral("Rossi Bruno, martedì 2 maggio 2006"));
}

TEST_F(OwnMovesTest, InTheYearlyPlannerAPickedDayShowsItsTotals) {
    auto mesi = annoPlanner("2006", {{3, 22}});
    mesi[2].testi[21].assign("0003");
    bench.base.putAnnuale(mesi);
    bench.open("A");
    Q_EMIT bench.widget<QCalendarWidget>("calendario").clicked(QDate(2006, 3, 20));
    EXPECT_EQ(text("scad"), QStringLiteral("3"));
    EXPECT_EQ(bench.griglia().CellBackColor(3, 22), Colore::ciano);
    Q_EMIT bench.widget<QCalendarWidget>("calendario").clicked(QDate(2006, 3, 21));
    EXPECT_EQ(text("scad"), QString());
    EXPECT_EQ(bench.griglia().CellBackColor(3, 22), Colore::navy);
}

TEST_F(OwnMovesTest, AScreenReaderPressesTheCellThatTheCursorStandsOn) {
    bench.open("M");
    auto* table = QAccessible::queryAccessibleInterface(&bench.view())->tableInterface();
    table->cellAt(1, 16)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(bench.base.sessione.collab, "RB");
    EXPECT_EQ(bench.shownDay(), "20060315");
    EXPECT_EQ(bench.view().currentIndex(), bench.index(3, 17));
}

TEST_F(OwnMovesTest, AHeldEscapeClosesTheListAndNotThePlanner) {
    bench.open("M");
    bench.finestra.Toolbar1_ButtonClick("coll");
    auto& list = bench.finestre.vistaCollab();
    send(list, QEvent::KeyPress, Qt::Key_Escape, /*held=*/false);
    EXPECT_FALSE(list.isVisible());
    send(bench.view(), QEvent::KeyPress, Qt::Key_Escape, /*held=*/true);
    EXPECT_TRUE(bench.vista.isVisible());
    EXPECT_FALSE(bench.base.sessione.FinePlanner);
}

TEST_F(OwnMovesTest, AHeldEnterAnswersOneRequest) {
    bench.open("M");
    bench.key(Qt::Key_Return);
    EXPECT_EQ(bench.reply(), "20060315RBD");
    bench.base.sessione.valret.clear();
    bench.open("M");
    send(bench.view(), QEvent::KeyPress, Qt::Key_Return, /*held=*/true);
    EXPECT_EQ(bench.reply(), "");
}

TEST_F(OwnMovesTest, TheSecondPressOfADoubleClickDoesNotReachTheNextRequest) {
    bench.open("A");
    QTest::mouseClick(&button("bselA2"), Qt::LeftButton);
    EXPECT_EQ(bench.reply(), "20060315  S");
    bench.base.sessione.valret.clear();
    bench.openPeriod("A", "20070315", "20070101", "20071231"); // a quick host
    const QPointF centre = button("bselA2").rect().center();
    for (const auto type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, centre, button("bselA2").mapToGlobal(centre), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&button("bselA2"), &event);
    }
    EXPECT_EQ(bench.reply(), "");
    QTest::mouseClick(&button("bselA2"), Qt::LeftButton);
    EXPECT_EQ(bench.reply(), "20070315  S");
}

TEST_F(OwnMovesTest, EachRequestOpensWithTheCursorsRowInSightWhereverTheLastOneWas) {
    officeOf(60);
    bench.open("M");
    auto* bar = bench.view().verticalScrollBar();
    bar->setValue(bar->maximum());
    bench.finestra.unload();
    bench.open("M");
    EXPECT_TRUE(
        bench.view().viewport()->rect().contains(bench.view().visualRect(bench.view().currentIndex())));
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(OwnMovesTest, TheCursorsRowStaysInSightWhenTheWindowSystemTakesRoomAway) {
    std::vector<Collaboratore> staff(30, collaboratore("ZZ", "Nome"));
    staff.back().codice.assign("RB"); // whom the request names
    bench.base.putCollaboratori(staff);
    bench.open("M");
    const auto inSight = [&] {
        return bench.view().viewport()->rect().contains(bench.view().visualRect(bench.view().currentIndex()));
    };
    EXPECT_TRUE(inSight());
    bench.vista.resize(bench.vista.width(), bench.vista.height() - 50);
    QCoreApplication::processEvents();
    EXPECT_TRUE(inSight());
}

TEST_F(OwnMovesTest, ComingBackFromAnotherWindowActivatesAgain) {
    bench.open("G");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.vista));
    QCoreApplication::processEvents();
    auto* bar = bench.view().horizontalScrollBar();
    const int eight = bar->value();
    bar->setValue(0);
    QWidget other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    other.hide();
    bench.vista.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.vista));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->value() == eight; }));
}

TEST_F(OwnMovesTest, ComingBackFromAMessageIsNoActivation) {
    bench.open("G");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.vista));
    QCoreApplication::processEvents();
    bench.view().horizontalScrollBar()->setValue(0);
    QMessageBox box(&bench.vista);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    box.hide();
    bench.vista.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.vista));
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.view().horizontalScrollBar()->value(), 0);
}

TEST_F(OwnMovesTest, AtMidnightTheMarkOfTodayMovesOn) {
    bench.open("M");
    EXPECT_TRUE(bench.griglia().cella(1, 17).oggi);
    bench.base.orologio.setToday(*makeDate(2006, 3, 16));
    bench.finestra.giornoCambiato();
    EXPECT_FALSE(bench.griglia().cella(1, 17).oggi);
    EXPECT_TRUE(bench.griglia().cella(1, 18).oggi);
    bench.open("A");
    bench.base.orologio.setToday(*makeDate(2006, 4, 1));
    bench.finestra.Form_Activate();
    EXPECT_FALSE(bench.griglia().cella(3, 18).oggi);
    EXPECT_TRUE(bench.griglia().cella(4, 6).oggi);
}

TEST_F(OwnMovesTest, DataThatCouldNotBeReadAreNamedUntilTheyCan) {
    bench.open("M");
    bench.base.files.remove(PlannerBench::path(FileRighe));
    bench.key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(text("stato").startsWith(QStringLiteral("Dati non aggiornati: wrighipl non si legge. ")));
    bench.base.putRighe({RigaPlanner{}});
    bench.key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_FALSE(text("stato").contains(QStringLiteral("Dati non aggiornati")));
}

TEST_F(OwnMovesTest, AYearsArchiveOfAnotherYearIsNamed) {
    bench.base.putAnnuale(annoPlanner("2005"));
    bench.open("A");
    EXPECT_TRUE(text("stato").startsWith(QStringLiteral("L'archivio dell'anno è del 2005, non del 2006. ")));
}

} // namespace planner::test
