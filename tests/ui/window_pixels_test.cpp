// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/geometry.h"
#include "painted.h"
#include "ui/kit/appearance.h"
#include "ui/plcal/grid_corner.h"
#include "window_bench.h"

#include <QCalendarWidget>
#include <QHeaderView>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

constexpr int DeadlineImage = 10;
const QRgb Today = qRgb(0, 110, 60);
const QRgb BarEdge = qRgb(70, 110, 180);

/// What the planner window shows of its grids, at whatever device pixel ratio the screen has.
struct WindowPixels : testing::Test {
    WindowBench bench;

    Painted header() { return Painted(*bench.view().horizontalHeader()->viewport()); }
    Painted names() { return Painted(*bench.view().verticalHeader()->viewport()); }
    Painted cells() { return Painted(*bench.view().viewport()); }

    /// Where a cell of the fixed rows stands in the header.
    QRectF headerCell(int row, int column) {
        const QHeaderView& sections = *bench.view().horizontalHeader();
        const double height =
            static_cast<double>(sections.height()) / static_cast<double>(bench.griglia().FixedRows());
        return {static_cast<double>(sections.sectionViewportPosition(column - 1)), row * height,
                sections.sectionSize(column - 1) - 1.0, height - 1};
    }
    QRectF nameCell(int row) {
        const QHeaderView& sections = *bench.view().verticalHeader();
        const int section = row - bench.griglia().FixedRows();
        return {0, static_cast<double>(sections.sectionViewportPosition(section)), sections.width() - 1.0,
                sections.sectionSize(section) - 1.0};
    }
    QRectF dataCell(int row, int column) {
        return QRectF(bench.view().visualRect(bench.index(row, column))).adjusted(0, 0, -1, -1);
    }

    /// Expects each header cell's text in its own colour, and in no other.
    void expectHeaderText(int row, int column, const Painted& painted) {
        const Griglia& griglia = bench.griglia();
        const QRectF cell = headerCell(row, column).adjusted(3, 3, -3, -3);
        const bool text = !griglia.TextMatrix(row, column).empty();
        const bool red = griglia.CellForeColor(row, column) == Colore::rosso;
        EXPECT_EQ(painted.any(cell, isRed), text && red) << row << "," << column;
        EXPECT_EQ(painted.any(cell, isDark), text && !red) << row << "," << column;
    }

    /// The lines of a frame that are there: above, below, left, right.
    static std::string frame(const Painted& painted, const QRectF& cell, QRgb colour) {
        constexpr double inner = 3;
        const QRectF sides[]{{cell.left() + inner, cell.top(), cell.width() - 2 * inner, inner},
                             {cell.left() + inner, cell.bottom() - inner, cell.width() - 2 * inner, inner},
                             {cell.left(), cell.top() + inner, inner, cell.height() - 2 * inner},
                             {cell.right() - inner, cell.top() + inner, inner, cell.height() - 2 * inner}};
        std::string found;
        for (int side = 0; side < 4; ++side) {
            const double length = side < 2 ? sides[side].width() : sides[side].height();
            found += painted.amount(sides[side], is(colour)) >= length ? "ablr"[side] : '-';
        }
        return found;
    }
};

} // namespace

TEST_F(WindowPixels, TheMonthsHeaderShowsLettersAndNumbersHolidaysAndWeekendsInRed) {
    bench.open("M", "20060515"); // 1 May is a Monday and a holiday
    ASSERT_EQ(bench.griglia().CellForeColor(0, 1), Colore::rosso);
    ASSERT_EQ(bench.griglia().CellForeColor(1, 1), Colore::rosso);
    ASSERT_EQ(bench.griglia().CellForeColor(0, 2), Colore::nero);
    ASSERT_EQ(bench.griglia().CellForeColor(0, 6), Colore::rosso) << "a Saturday";
    ASSERT_EQ(bench.griglia().CellForeColor(1, 6), Colore::rosso);
    ASSERT_EQ(bench.griglia().CellForeColor(1, 2), Colore::nero);
    const Painted painted = header();
    for (int column = 1; column <= ColonneGiorni; ++column) {
        expectHeaderText(0, column, painted);
        expectHeaderText(1, column, painted);
    }
    EXPECT_EQ(painted.at(headerCell(0, 2).topLeft() + QPointF(1, 1)), qtColor(Colore::intestazione).rgb());
}

TEST_F(WindowPixels, TodayIsFramedInTheMonthsHeader) {
    bench.open("M", "20060310");
    const Painted painted = header();
    constexpr int firstDay = 3; // 1 March 2006 is a Wednesday
    for (int column = 1; column <= ColonneGiorni; ++column) {
        const std::string expected = column == firstDay + 14 ? "ablr" : "----";
        EXPECT_EQ(frame(painted, headerCell(0, column), Today), expected) << column;
        EXPECT_EQ(frame(painted, headerCell(1, column), Today), expected) << column;
    }
}

TEST_F(WindowPixels, NoDayOfAnotherMonthIsFramed) {
    bench.open("M", "20060415");
    EXPECT_FALSE(header().any(QRectF(bench.view().horizontalHeader()->rect()), is(Today)));
}

TEST_F(WindowPixels, TheCalendarShowsItsMonthWithRedWeekendsAndTheDaysAroundItPale) {
    bench.openPeriod("M", "20060515", "20060101", "20101231");
    auto& calendar = bench.widget<QCalendarWidget>("calendario");
    auto& days = *calendar.findChild<QTableView*>();
    // Begins on a Monday; fills four weeks; begins on a Sunday; the last of the period.
    for (const QDate shown :
         {QDate(2006, 5, 15), QDate(2010, 2, 10), QDate(2006, 10, 3), QDate(2010, 12, 20)}) {
        calendar.setSelectedDate(shown);
        const QDate first(shown.year(), shown.month(), 1);
        const QDate monday = first.addDays(first.dayOfWeek() == Qt::Monday ? -7 : 1 - first.dayOfWeek());
        const Painted painted(*days.viewport());
        for (int place = 0; place < 6 * 7; ++place) {
            const QModelIndex index = days.model()->index(1 + place / 7, place % 7);
            const QRectF cell(days.visualRect(index));
            const QDate date = monday.addDays(place);
            const std::string said = date.toString(Qt::ISODate).toStdString();
            ASSERT_EQ(index.data().toInt(), date.day()) << said;
            const bool within = date.month() == shown.month();
            const bool weekend = date.dayOfWeek() >= Qt::Saturday;
            EXPECT_EQ(painted.any(cell, isDark), within && !weekend && date != shown) << said;
            EXPECT_EQ(painted.any(cell, isRed), within && weekend && date != shown) << said;
            EXPECT_EQ(painted.any(cell, is(calendar.palette().color(QPalette::Highlight).rgb())),
                      date == shown)
                << said;
        }
    }
}

TEST_F(WindowPixels, TheNamesStandBesideTheirRows) {
    bench.open("M");
    const Painted painted = names();
    for (int row = 2; row < bench.griglia().Rows(); ++row) {
        if (nameCell(row).bottom() > bench.view().verticalHeader()->height()) {
            break;
        }
        EXPECT_EQ(painted.any(nameCell(row), isDark), !bench.griglia().TextMatrix(row, 0).empty()) << row;
    }
    EXPECT_TRUE(painted.any(nameCell(2), isDark));
    EXPECT_TRUE(painted.isFine(nameCell(2)));
}

TEST_F(WindowPixels, TheCornerNamesTheMonthAndTheYear) {
    bench.open("M", "20060515");
    auto* corner = bench.view().parentWidget()->findChild<GridCorner*>();
    for (GridCorner* found : bench.view().parentWidget()->findChildren<GridCorner*>()) {
        corner = found->isVisible() ? found : corner;
    }
    ASSERT_TRUE(corner->isVisible());
    const Painted painted(*corner);
    const double w = corner->width();
    const double h = corner->height();
    EXPECT_GT(painted.amount({w / 3, 0, w / 3, h / 2 - 1}, isNavy), 10) << "Maggio";
    EXPECT_GT(painted.amount({w / 3, h / 2, w / 3, h / 2 - 1}, isNavy), 10) << "2006";
}

TEST_F(WindowPixels, ADaysPictureStandsInItsCell) {
    bench.base.putRighe({riga("RB", "20060315", {{1, "1"}}), RigaPlanner{}});
    bench.open("M", "20060310");
    ASSERT_EQ(bench.griglia().cella(3, 17).immagine, DeadlineImage);
    const Painted painted = cells();
    EXPECT_GT(painted.amount(dataCell(3, 17), isRed), 10);
    EXPECT_FALSE(painted.any(dataCell(3, 16), isRed));
    EXPECT_FALSE(painted.any(dataCell(2, 17), isRed));
}

TEST_F(WindowPixels, TheCurrentCellHasAFrameAndTheOthersHaveNone) {
    bench.open("M", "20060310");
    const QRgb navy = qtColor(Colore::navy).rgb();
    const Painted painted = cells();
    for (int column = 10; column <= 14; ++column) {
        EXPECT_EQ(frame(painted, dataCell(3, column), navy), column == 12 ? "ablr" : "----") << column;
        EXPECT_EQ(frame(painted, dataCell(2, column), navy), "----") << column;
    }
}

TEST_F(WindowPixels, ASelectedRowIsYellowAndItsDayCyan) {
    bench.open("M", "20060310");
    bench.click(3, 15);
    const Painted painted = cells();
    const QPointF aside(4, 4);
    EXPECT_EQ(painted.at(dataCell(3, 14).topLeft() + aside), qtColor(Colore::giallo).rgb());
    EXPECT_EQ(painted.at(dataCell(3, 15).topLeft() + aside), qtColor(Colore::ciano).rgb());
    EXPECT_EQ(painted.at(dataCell(2, 15).topLeft() + aside), qtColor(Colore::gialloChiaro).rgb());
}

TEST_F(WindowPixels, AnAppointmentIsABarOverItsQuarters) {
    bench.base.putRighe(
        {conOrario(riga("BI", "20060315", {{1, "1"}}), "10", "00", "0000100"), RigaPlanner{}});
    bench.open("G");
    ASSERT_EQ(bench.griglia().fasce(1).size(), 1U);
    bench.centreOf(1, 45); // in sight, and the quarters before it too
    const Painted painted = cells();
    const QRectF first = dataCell(1, 41);
    const QRectF last = dataCell(1, 44);
    const double middle = first.center().y();
    EXPECT_EQ(painted.at({first.left() + 0.5, middle}), BarEdge);
    EXPECT_EQ(painted.at({last.right() + 0.5, middle}), BarEdge);
    EXPECT_EQ(painted.at(dataCell(1, 43).center()), qtColor(Colore::azzurro).rgb());
    EXPECT_GT(painted.amount(first, isRed), 5) << "the deadline";
    EXPECT_EQ(painted.at(dataCell(1, 45).center()), qtColor(Colore::gialloChiaro).rgb());
    EXPECT_EQ(painted.at(dataCell(2, 43).center()), qtColor(Colore::gialloChiaro).rgb());
}

TEST_F(WindowPixels, TheDaysHeaderShowsItsHoursAndQuarters) {
    bench.open("G");
    const Painted painted = header();
    const int first = bench.view().firstColumnInSight();
    for (int column = first; column < first + 8; ++column) {
        EXPECT_TRUE(painted.any(headerCell(0, column), isNavy)) << column;
    }
}

TEST_F(WindowPixels, TheYearShowsItsDaysTodayAndTheMarkedOnes) {
    bench.base.putAnnuale(annoPlanner("2006", {{5, 10}}));
    bench.open("A", "20061231");
    const Painted painted = cells();
    constexpr int todaysColumn = 17;
    EXPECT_EQ(frame(painted, dataCell(3, todaysColumn), Today), "ablr");
    EXPECT_EQ(frame(painted, dataCell(3, todaysColumn - 1), Today), "----");
    EXPECT_TRUE(painted.any(dataCell(3, todaysColumn - 1), isDark)) << "14";
    EXPECT_TRUE(painted.any(dataCell(4, 6), isRed)) << "1 April, a Saturday";
    EXPECT_EQ(painted.at(dataCell(5, 10).topLeft() + QPointF(1, 1)), qtColor(Colore::navy).rgb());
    EXPECT_TRUE(painted.any(dataCell(5, 10), [](QRgb c) { return qRed(c) > 200; })) << "10, in white";
    EXPECT_EQ(painted.at(dataCell(4, 10).topLeft() + QPointF(1, 1)), qtColor(Colore::grigioChiaro).rgb());
}

} // namespace planner::test
