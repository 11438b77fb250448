// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/giornaliera.h"
#include "painted.h"
#include "ui/kit/appearance.h"
#include "ui/kit/pictures.h"
#include "ui/plcal/cell_painter.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

constexpr QSize CellSize(44, 40);
constexpr int FirstRow = 2; // below the fixed ones
constexpr int DeadlinePicture = 10;

const QRgb PlainRow = qtColor(Colore::gialloChiaro).rgb();
const QRgb Line = qRgb(200, 200, 188);
const QRgb StrongLine = qRgb(112, 112, 104);
const QRgb Mark = qtColor(Colore::navy).rgb();
const QRgb Today = qRgb(0, 110, 60);
const QRgb BarEdge = qRgb(70, 110, 180);

/// One cell of a grid of days, painted at a device pixel ratio.
class CellPixels : public testing::TestWithParam<int> {
protected:
    Painted paint(int row, int column) { return paint(griglia, row, column); }
    Painted paint(const Griglia& grid, int row, int column) {
        return {size, GetParam(), [&](QPainter& target) {
                    painter.paint(target, {{0, 0}, size}, grid, {row, column});
                }};
    }
    /// A cell with the focus, which is on the current one; or as it is without.
    Painted paintFocused(bool focused) {
        const Casella cell{FirstRow + 1, 3};
        const Casella before = griglia.corrente();
        griglia.setCurrent(focused ? cell : before);
        const CellBlock alone{cell, {0, CellSize.height()}, {0, CellSize.width()}};
        const Painted painted(CellSize, GetParam(),
                              [&](QPainter& target) { painter.paintBlock(target, alone, griglia, focused); });
        griglia.setCurrent(before);
        return painted;
    }

    /// Expects a line of the colour, two pixels wide, all around, and none of it inside.
    static void expectFrame(const Painted& cell, QRgb colour) {
        const double w = CellSize.width() - 1; // the grid's own lines stay in sight
        const double h = CellSize.height() - 1;
        EXPECT_TRUE(cell.all({2, 0, w - 4, 2}, is(colour))) << "above";
        EXPECT_TRUE(cell.all({2, h - 2, w - 4, 2}, is(colour))) << "below";
        EXPECT_TRUE(cell.all({0, 2, 2, h - 4}, is(colour))) << "left";
        EXPECT_TRUE(cell.all({w - 2, 2, 2, h - 4}, is(colour))) << "right";
        EXPECT_FALSE(cell.any({2, 2, w - 4, h - 4}, is(colour)));
    }

    /// Inside of the lines that each cell has.
    static QRectF inside() { return {0, 0, CellSize.width() - 1.0, CellSize.height() - 1.0}; }

    /// Inside of what marks a chosen cell.
    static QRectF withinMarks() { return {2, 2, CellSize.width() - 4.0, CellSize.height() - 4.0}; }

    Griglia griglia{4, 15, FirstRow, Colore::gialloChiaro};
    CellPainter painter{1};
    QSize size = CellSize;
};

} // namespace

TEST_P(CellPixels, AnEmptyCellIsItsGroundWithALineBelowAndAtTheRight) {
    const Painted cell = paint(FirstRow, 3);
    EXPECT_TRUE(cell.all(inside(), is(PlainRow)));
    EXPECT_TRUE(cell.all({0, CellSize.height() - 1.0, CellSize.width() - 1.0, 1}, is(Line)));
    EXPECT_TRUE(cell.all({CellSize.width() - 1.0, 0, 1, CellSize.height() - 1.0}, is(Line)));
}

TEST_P(CellPixels, TheLineAtTheEndOfAWeekAndBelowTheHeaderIsStronger) {
    const double right = CellSize.width() - 0.5;
    const double bottom = CellSize.height() - 0.5;
    for (int column = 1; column < griglia.Cols(); ++column) {
        EXPECT_EQ(paint(FirstRow, column).at({right, 5}), column % 7 == 0 ? StrongLine : Line) << column;
    }
    EXPECT_EQ(paint(FirstRow, 0).at({right, 5}), StrongLine) << "beside the names";
    EXPECT_EQ(paint(0, 3).at({5, bottom}), StrongLine);
    EXPECT_EQ(paint(1, 3).at({5, bottom}), StrongLine);
    EXPECT_EQ(paint(FirstRow, 3).at({5, bottom}), Line);
}

TEST_P(CellPixels, TheLineAtTheEndOfAnHourIsStronger) {
    const Griglia quarters(2, ColonneQuarti + 1, 1, Colore::gialloChiaro);
    for (int column = 1; column <= 8; ++column) {
        EXPECT_EQ(paint(quarters, 1, column).at({CellSize.width() - 0.5, 5}),
                  column % 4 == 0 ? StrongLine : Line)
            << column;
    }
}

TEST_P(CellPixels, ADayOfOneDigitHasTheLettersOfThoseOfTwo) {
    const auto inkHeight = [&](const char* day) {
        griglia.setCaption(1, 3, Ruolo::numeroGiorno, day);
        const Painted cell = paint(1, 3);
        double rows = 0;
        for (int y = 0; y < CellSize.height() - 1; ++y) {
            rows += cell.any({1, y * 1.0, size.width() - 3.0, 1}, isDark) ? 1 : 0;
        }
        return rows;
    };
    for (int width = 10; width < 24; ++width) {
        size.setWidth(width);
        const double two = inkHeight("88");
        if (!painter.cut({{0, 0}, size}, griglia, {1, 3})) {
            EXPECT_EQ(inkHeight("8"), two) << width;
        }
    }
}

TEST_P(CellPixels, EachColourOfACellIsItsGround) {
    const auto expectGround = [&](Colore colore) {
        EXPECT_EQ(griglia.aspetto({FirstRow, 3}).fondo, colore);
        EXPECT_TRUE(paint(FirstRow, 3).all(withinMarks(), is(qtColor(colore).rgb())))
            << static_cast<int>(colore);
    };
    griglia.setCaption(FirstRow, 3, Ruolo::giornoAnno, "");
    expectGround(Colore::grigioChiaro);
    griglia.segna(FirstRow, 3);
    expectGround(Colore::navy);
    griglia.evidenzia(FirstRow);
    expectGround(Colore::giallo);
    griglia.scegli({FirstRow, 3});
    expectGround(Colore::ciano);
    griglia = Griglia(4, 15, FirstRow, Colore::bianco);
    expectGround(Colore::bianco);
    EXPECT_TRUE(paint(0, 3).all(inside(), is(qtColor(Colore::intestazione).rgb()))) << "of a header";
}

TEST_P(CellPixels, ThePictureOfADayIsDrawnInItsMiddleAsFineAsTheScreenIs) {
    for (const int number : {1, DeadlinePicture, 16}) {
        griglia.setCellPicture(FirstRow, 3, number);
        const Painted cell = paint(FirstRow, 3);
        constexpr int side = CellSize.height() - 2;
        constexpr int left = (CellSize.width() - 1 - side) / 2;
        const Painted expected(CellSize, GetParam(), [&](QPainter& target) {
            target.fillRect(QRect({0, 0}, CellSize), qtColor(Colore::gialloChiaro));
            Pictures pictures;
            target.drawPixmap(left, 0, pictures.picture(number, side, GetParam()));
        });
        const QRectF middle(left, 0, side, side);
        EXPECT_GT(cell.amount(middle, isNot(PlainRow)), side * side / 30.0) << number;
        EXPECT_EQ(cell.amount(middle, isNot(PlainRow)), expected.amount(middle, isNot(PlainRow))) << number;
        EXPECT_FALSE(cell.any({0, 0, left, side}, isNot(PlainRow))) << number;
    }
}

TEST_P(CellPixels, APictureBesideANameLeavesTheNameInSight) {
    griglia.setCaption(FirstRow, 0, Ruolo::nomeGiornaliero, "Rossi");
    griglia.setCellPicture(FirstRow, 0, DeadlinePicture);
    size = {140, CellSize.height()};
    const Painted cell = paint(FirstRow, 0);
    const QRectF name(0, 0, 90, size.height() - 1.0);
    const QRectF picture(90, 0, size.width() - 91.0, size.height() - 1.0);
    EXPECT_TRUE(cell.any(name, isDark));
    EXPECT_FALSE(cell.any(name, isRed));
    EXPECT_TRUE(cell.any(picture, isRed)) << "the deadline";
    EXPECT_EQ(cell.at({size.width() - 3.0, size.height() / 2.0}), qtColor(Colore::intestazione).rgb())
        << "a margin";
}

TEST_P(CellPixels, TextHasTheColourOfItsCell) {
    struct Letters {
        Ruolo ruolo;
        bool fineSettimana;
        Colore colore;
        bool (*predicate)(QRgb);
    };
    const std::vector<Letters> table{{Ruolo::lettera, false, Colore::nero, isDark},
                                     {Ruolo::lettera, true, Colore::rosso, isRed},
                                     {Ruolo::periodo, false, Colore::navy, isNavy}};
    for (const Letters& letters : table) {
        griglia.setCaption(FirstRow, 3, letters.ruolo, "M8", letters.fineSettimana);
        EXPECT_EQ(griglia.CellForeColor(FirstRow, 3), letters.colore);
        const Painted cell = paint(FirstRow, 3);
        for (const Letters& other : table) {
            EXPECT_EQ(cell.any(inside(), other.predicate), other.colore == letters.colore)
                << static_cast<int>(letters.colore);
        }
    }
    griglia.segna(FirstRow, 3);
    EXPECT_TRUE(paint(FirstRow, 3).any(inside(), [](QRgb c) { return qRed(c) > 200 && qBlue(c) > 200; }));
}

TEST_P(CellPixels, TextStandsInTheMiddleOrAtTheLeft) {
    griglia.setCaption(FirstRow, 3, Ruolo::casella, "I");
    const QRectF leftPart(0, 0, CellSize.width() / 3.0, CellSize.height() - 1.0);
    const QRectF middle(CellSize.width() / 3.0, 0, CellSize.width() / 3.0, CellSize.height() - 1.0);
    EXPECT_FALSE(paint(FirstRow, 3).any(leftPart, isDark));
    EXPECT_TRUE(paint(FirstRow, 3).any(middle, isDark));
    griglia.setCaption(FirstRow, 3, Ruolo::nomeGiornaliero, "I");
    EXPECT_TRUE(paint(FirstRow, 3).any(leftPart, isDark));
    EXPECT_FALSE(paint(FirstRow, 3).any(middle, isDark));
}

TEST_P(CellPixels, TodayHasAFrameInsideItsLines) {
    griglia.setCellToday(FirstRow, 3, true);
    expectFrame(paint(FirstRow, 3), Today);
    EXPECT_FALSE(paint(FirstRow, 4).any(inside(), is(Today)));
}

TEST_P(CellPixels, TodaysFrameStandsOnHeadersToo) {
    griglia.setCaption(1, 3, Ruolo::casella, "1");
    griglia.setCellToday(1, 3, true);
    const Painted cell = paint(1, 3);
    expectFrame(cell, Today);
    EXPECT_TRUE(cell.any(inside(), isDark)) << "the day's number";
}

TEST_P(CellPixels, TheFocusHasAFrameAndTheOtherCellsHaveNone) {
    expectFrame(paintFocused(true), qtColor(Colore::navy).rgb());
    EXPECT_FALSE(paintFocused(false).any(inside(), is(qtColor(Colore::navy).rgb())));
}

TEST_P(CellPixels, TheFocusFrameCoversTodays) {
    griglia.setCellToday(FirstRow + 1, 3, true);
    expectFrame(paintFocused(true), qtColor(Colore::navy).rgb());
    expectFrame(paintFocused(false), Today);
}

TEST_P(CellPixels, TheHighlightedRowHasALineAboveAndOneBelow) {
    griglia.evidenzia(FirstRow);
    for (const int column : {0, 3, 14}) {
        const Painted cell = paint(FirstRow, column);
        EXPECT_TRUE(cell.all({0, 0, CellSize.width() * 1.0, 2}, is(Mark))) << column;
        EXPECT_TRUE(cell.all({0, CellSize.height() - 2.0, CellSize.width() * 1.0, 2}, is(Mark))) << column;
        EXPECT_FALSE(cell.any(withinMarks(), is(Mark))) << column;
        EXPECT_FALSE(paint(FirstRow + 1, column).any(inside(), is(Mark))) << column;
    }
    size = {CellSize.width(), 10};
    const Painted low = paint(FirstRow, 3);
    EXPECT_TRUE(low.all({0, 0, CellSize.width() * 1.0, 1}, is(Mark)));
    EXPECT_FALSE(low.any({0, 1, CellSize.width() * 1.0, 8}, is(Mark))) << "a low row is not filled by them";
}

TEST_P(CellPixels, TheSelectedCellHasAFrameWithoutTheFocusToo) {
    griglia.scegli({FirstRow, 3});
    const Painted cell = paint(FirstRow, 3);
    EXPECT_TRUE(cell.all({0, 0, 1, CellSize.height() - 1.0}, is(Mark)));
    EXPECT_TRUE(cell.all({CellSize.width() - 2.0, 0, 1, CellSize.height() - 1.0}, is(Mark)));
    EXPECT_TRUE(cell.all({0, 0, CellSize.width() - 1.0, 1}, is(Mark)));
    EXPECT_TRUE(cell.all({0, CellSize.height() - 2.0, CellSize.width() - 1.0, 1}, is(Mark)));
    EXPECT_FALSE(paint(FirstRow, 4).any(inside(), is(Mark)));
}

TEST_P(CellPixels, TheCurrentCellHasAThinFrameWhereTheFocusIsElsewhere) {
    griglia.setCurrent({FirstRow + 1, 3});
    const Painted cell = paintFocused(false);
    EXPECT_TRUE(cell.all({0, 0, 1, CellSize.height() - 1.0}, is(Mark)));
    EXPECT_FALSE(cell.any({1, 1, CellSize.width() - 3.0, CellSize.height() - 3.0}, is(Mark)));
    expectFrame(paintFocused(true), Mark);
}

TEST_P(CellPixels, AFrameOnAMarkedDayIsLight) {
    griglia.setCaption(FirstRow + 1, 3, Ruolo::giornoAnno, "");
    griglia.segna(FirstRow + 1, 3);
    expectFrame(paintFocused(true), qRgb(255, 255, 255));
    griglia.setCellToday(FirstRow + 1, 3, true);
    expectFrame(paintFocused(false), qtColor(Colore::oggiSuScuro).rgb());
}

TEST_P(CellPixels, NameAndDayOfTheSelectedCellAreBoldAndTheDayIsUnderlined) {
    griglia.setCaption(FirstRow, 0, Ruolo::nomeMensile, "Rossi");
    griglia.setCaption(1, 3, Ruolo::numeroGiorno, "15");
    const double name = paint(FirstRow, 0).amount(withinMarks(), isDark);
    const double day = paint(1, 3).amount(withinMarks(), isDark);
    const QRectF underline(0, CellSize.height() - 2.0, CellSize.width() * 1.0, 2);
    EXPECT_FALSE(paint(1, 3).any(underline, is(Mark)));
    griglia.evidenzia(FirstRow);
    griglia.scegli({FirstRow, 3});
    EXPECT_GT(paint(FirstRow, 0).amount(withinMarks(), isDark), name * 1.15);
    EXPECT_GT(paint(1, 3).amount(withinMarks(), isDark), day * 1.15);
    EXPECT_TRUE(paint(1, 3).all(underline, is(Mark)));
    EXPECT_FALSE(paint(1, 4).any(underline, is(Mark)));
}

TEST_P(CellPixels, ABarHasItsFillItsEdgesAndItsPicture) {
    Griglia quarters(2, ColonneQuarti + 1, 1, Colore::gialloChiaro);
    quarters.setFasce(1, {{3, 5, DeadlinePicture}});
    const QRgb fill = qtColor(Colore::azzurro).rgb();
    const Painted first = paint(quarters, 1, 3);
    const Painted middle = paint(quarters, 1, 4);
    const Painted last = paint(quarters, 1, 5);
    EXPECT_TRUE(first.all({0, 8, 1, 24}, is(BarEdge)));
    EXPECT_TRUE(first.any({1, 4, 40, 32}, isRed)) << "the deadline";
    EXPECT_TRUE(middle.all({0, 8, CellSize.width() - 1.0, 24}, is(fill)));
    EXPECT_TRUE(last.all({CellSize.width() - 1.0, 8, 1, 24}, is(BarEdge)));
    for (const Painted* cell : {&first, &middle, &last}) {
        EXPECT_EQ(cell->amount({20, 0, 1, CellSize.height() - 1.0}, is(BarEdge)), 2) << "above and below";
    }
    EXPECT_FALSE(paint(quarters, 1, 6).any(inside(), isNot(PlainRow)));
}

INSTANTIATE_TEST_SUITE_P(Ratio, CellPixels, testing::Values(1, 2), testing::PrintToStringParamName());

} // namespace planner::test
