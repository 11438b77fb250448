// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/cell_painter.h"
#include "window_bench.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

constexpr int Office = 60;

/// An office of sixty in the planner window, shown larger and smaller.
struct ZoomTest : testing::Test {
    WindowBench bench;

    ZoomTest() {
        std::vector<Collaboratore> staff;
        for (int i = 0; i < Office; ++i) {
            const std::string number = twoDigits(i);
            staff.push_back(collaboratore(number, "Giannelli Pierfrancesco " + number));
        }
        bench.base.putCollaboratori(staff);
    }

    QHeaderView& names() { return *bench.view().verticalHeader(); }
    QHeaderView& days() { return *bench.view().horizontalHeader(); }
    int rowHeight() { return names().sectionSize(0); }
    int wholeRows() { return bench.view().viewport()->height() / rowHeight(); }
    int percento() { return bench.finestra.ingrandimento().percento(); }

    void press(int key, int times = 1) {
        for (int i = 0; i < times; ++i) {
            bench.key(key, Qt::ControlModifier);
        }
    }
    void shrinkTo(int wanted) {
        while (percento() > wanted) {
            press(Qt::Key_Minus);
        }
    }
    void turnWheel(int angle, Qt::KeyboardModifiers modifiers) {
        QWidget* cells = bench.view().viewport();
        QWheelEvent wheel(QPointF(5, 5), cells->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, angle),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(cells, &wheel);
    }
    bool currentCellInSight() {
        const QRect cell = bench.view().visualRect(bench.index(bench.griglia().Row(), bench.griglia().Col()));
        return bench.view().viewport()->rect().contains(cell);
    }
};

} // namespace

TEST_F(ZoomTest, EveryKindOfPlusAndMinusWorks) {
    bench.open("M");
    press(Qt::Key_Plus);
    EXPECT_EQ(percento(), 110);
    press(Qt::Key_Equal);
    EXPECT_EQ(percento(), 125);
    bench.key(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(percento(), 150);
    press(Qt::Key_Minus);
    bench.key(Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(percento(), 110);
    press(Qt::Key_0);
    EXPECT_EQ(percento(), 100);
}

TEST_F(ZoomTest, TheWheelZoomsWithCtrlAlone) {
    bench.open("M");
    turnWheel(-120, Qt::ControlModifier);
    EXPECT_EQ(percento(), 90);
    turnWheel(60, Qt::ControlModifier);
    EXPECT_EQ(percento(), 90) << "half a step";
    turnWheel(60, Qt::ControlModifier);
    EXPECT_EQ(percento(), 100);
    turnWheel(-120, Qt::NoModifier);
    EXPECT_EQ(percento(), 100);
    EXPECT_GT(bench.view().verticalScrollBar()->value(), 0) << "it scrolls";
}

TEST_F(ZoomTest, RowsShrinkAndTheMonthStaysAsWideAsTheWindow) {
    bench.open("M");
    const int height = rowHeight();
    const int width = days().length();
    const int header = days().height();
    shrinkTo(50);
    EXPECT_NEAR(rowHeight(), height / 2, 1);
    EXPECT_EQ(days().length(), width);
    EXPECT_EQ(days().height(), header);
    EXPECT_EQ(bench.griglia().RowHeight(2), AltezzaDettagliata) << "the given length stays";
}

TEST_F(ZoomTest, RowsHeaderAndColumnsGrowTogether) {
    bench.open("M");
    const int height = rowHeight();
    const int column = days().sectionSize(0);
    const int header = days().height();
    const int name = names().width();
    press(Qt::Key_Plus, 9);
    EXPECT_EQ(percento(), 200);
    EXPECT_NEAR(rowHeight(), 2 * height, 2);
    EXPECT_NEAR(days().sectionSize(0), 2 * column, 2);
    EXPECT_NEAR(days().height(), 2 * header, 2);
    EXPECT_NEAR(names().width(), 2 * name, 2);
}

TEST_F(ZoomTest, SixteenStaffMembersStandInSightWithTheirPictures) {
    bench.open("M");
    EXPECT_LT(wholeRows(), 8);
    shrinkTo(45);
    EXPECT_GE(wholeRows(), 16);
}

TEST_F(ZoomTest, NoRowIsLowerThanTheLettersOfItsName) {
    bench.open("M", "20060315", "N                    ");
    shrinkTo(40);
    CellPainter painter(1);
    painter.setFactors(1, 1, 0.4F);
    EXPECT_EQ(rowHeight(), painter.lowestRow());
}

TEST_F(ZoomTest, TheCurrentCellStaysInSight) {
    for (const char* kind : {"M", "G", "A"}) {
        bench.open(kind);
        const int last = bench.griglia().Rows() - 1;
        bench.click(std::min(last, Office), bench.griglia().Cols() - 3);
        for (const int key : {Qt::Key_Minus, Qt::Key_Plus}) {
            for (int step = 0; step < 12; ++step) {
                press(key);
                EXPECT_TRUE(currentCellInSight()) << kind << " at " << percento();
            }
        }
        press(Qt::Key_0);
    }
}

TEST_F(ZoomTest, TheFirstHourInSightStaysTheFirst) {
    bench.open("G");
    ASSERT_EQ(bench.view().firstColumnInSight(), PrimaColonnaGiornaliera);
    press(Qt::Key_Plus, 3);
    EXPECT_EQ(bench.view().firstColumnInSight(), PrimaColonnaGiornaliera);
}

TEST_F(ZoomTest, TheNextRequestsOfEveryKindAreShownAsLarge) {
    bench.open("M");
    const int height = rowHeight();
    shrinkTo(50);
    bench.finestra.unload();
    bench.open("G");
    EXPECT_NEAR(rowHeight(), height / 2, 1);
    bench.finestra.unload();
    bench.open("M");
    EXPECT_NEAR(rowHeight(), height / 2, 1);
}

} // namespace planner::test
