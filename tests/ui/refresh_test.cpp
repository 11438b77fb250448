// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QAccessible>
#include <QAction>
#include <QCalendarWidget>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

constexpr int Riga = 3; // of Rossi, in the monthly grid
constexpr int Colonna = 15;

/// Each event lays captions, panel, toolbar, calendar and buttons out once.
class RefreshTest : public testing::Test {
protected:
    RefreshTest() {
        bench.base.putRighe({RigaPlanner{}, RigaPlanner{}, RigaPlanner{}});
        bench.open("M");
    }

    template <typename Event>
    qsizetype refreshesOf(Event event) {
        const QSignalSpy refreshes(&bench.vista, &PlcalWindow::refreshed);
        event();
        return refreshes.count();
    }

    void pressCalendar(int giorno) {
        auto& days = *bench.widget<QCalendarWidget>("calendario").findChild<QTableView*>();
        for (int cell = 0; cell < 42; ++cell) {
            const QModelIndex index = days.model()->index(1 + cell / 7, cell % 7);
            if (index.data().toInt() == giorno && (cell < 7) == (giorno < 7)) {
                return QTest::mouseClick(days.viewport(), Qt::LeftButton, {},
                                         days.visualRect(index).center());
            }
        }
        FAIL() << "no day " << giorno;
    }

    QModelIndex gridCell() { return bench.index(bench.griglia().Row(), bench.griglia().Col()); }

    WindowBench bench;
};

} // namespace

TEST_F(RefreshTest, AGestureOnTheGridIsShownOnce) {
    EXPECT_EQ(refreshesOf([&] { bench.click(Riga, Colonna); }), 1);
    EXPECT_EQ(refreshesOf([&] { bench.key(Qt::Key_Right); }), 1);
    EXPECT_EQ(refreshesOf([&] { bench.key(Qt::Key_Space); }), 1);
    EXPECT_EQ(refreshesOf([&] {
                  QTest::mousePress(bench.view().verticalHeader()->viewport(), Qt::LeftButton, {},
                                    QPoint(5, 5));
              }),
              1);
    EXPECT_EQ(refreshesOf([&] {
                  auto* table = QAccessible::queryAccessibleInterface(&bench.view())->tableInterface();
                  auto* action = table->cellAt(0, Colonna)->actionInterface();
                  action->doAction(QAccessibleActionInterface::pressAction());
              }),
              1);
}

TEST_F(RefreshTest, AGestureThatConsultsIsShownOnce) {
    EXPECT_EQ(refreshesOf([&] { bench.key(Qt::Key_Return); }), 1);
    bench.click(Riga, Colonna);
    const QPoint centre = bench.centreOf(Riga, Colonna);
    EXPECT_EQ(refreshesOf([&] { QTest::mouseDClick(bench.view().viewport(), Qt::LeftButton, {}, centre); }),
              1);
}

TEST_F(RefreshTest, AMoveOfThePeriodIsShownOnce) {
    EXPECT_EQ(refreshesOf([&] { bench.widget<QToolButton>("bselm1").click(); }), 1);
    EXPECT_EQ(refreshesOf([&] { bench.key(Qt::Key_Left, Qt::AltModifier); }), 1);
}

TEST_F(RefreshTest, ACommandIsShownOnce) {
    EXPECT_EQ(refreshesOf([&] { bench.widget<QAction>("dettno").trigger(); }), 1);
}

TEST_F(RefreshTest, ADayPickedInTheCalendarIsShownOnce) {
    EXPECT_EQ(refreshesOf([&] { pressCalendar(20); }), 1);
    EXPECT_EQ(bench.shownDay(), "20060320");
    EXPECT_EQ(refreshesOf([&] { pressCalendar(20); }), 1) << "the day shown puts the cursor back";
    auto* days = bench.widget<QCalendarWidget>("calendario").findChild<QTableView*>();
    EXPECT_EQ(refreshesOf([&] { QTest::keyClick(days, Qt::Key_Left); }), 1);
    EXPECT_EQ(bench.shownDay(), "20060319");
    EXPECT_EQ(refreshesOf([&] { pressCalendar(19); }), 1) << "picked by the keyboard before";
}

TEST_F(RefreshTest, TheViewsCurrentCellFollowsTheGrids) {
    bench.click(Riga, Colonna);
    EXPECT_EQ(bench.view().currentIndex(), gridCell());
    bench.view().selectionModel()->setCurrentIndex(bench.index(Riga + 1, 1), QItemSelectionModel::NoUpdate);
    bench.key(Qt::Key_Right);
    EXPECT_EQ(bench.griglia().Row(), Riga) << "what the toolkit has made current is no fact";
    EXPECT_EQ(bench.griglia().Col(), Colonna + 1);
    EXPECT_EQ(bench.view().currentIndex(), gridCell());
}

} // namespace planner::test
