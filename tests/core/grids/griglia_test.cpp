// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/griglia.h"
#include "ports/runtime_errors.h"
#include "recording_observer.h"

#include <gmock/gmock.h>
#include <string>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GrigliaTest : public testing::Test {
protected:
    Griglia griglia{4, 3, 1, Colore::gialloChiaro};
};

TEST_F(GrigliaTest, IsEmptyAtFirst) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column) {
            EXPECT_EQ(griglia.cella(row, column), Cella{});
            EXPECT_EQ(griglia.TextMatrix(row, column), "");
        }
    }
    EXPECT_EQ(griglia.FixedRows(), 1);
    EXPECT_EQ(griglia.FixedCols(), 1);
}

TEST_F(GrigliaTest, KeepsWhatACellHolds) {
    griglia.setCaption(1, 2, Ruolo::nomeGiornaliero, "Rossi");
    griglia.setCellHoliday(1, 2);
    griglia.setCellPicture(1, 2, 16);
    const Cella& cella = griglia.cella(1, 2);
    EXPECT_EQ(griglia.TextMatrix(1, 2), "Rossi");
    EXPECT_EQ(griglia.CellForeColor(1, 2), Colore::rosso);
    EXPECT_EQ(cella.immagine, 16);
    EXPECT_EQ(stile(cella).allineamento, Allineamento::sinistra);
    EXPECT_EQ(griglia.cella(1, 1), Cella{});
}

TEST_F(GrigliaTest, TextsMayBeAnyBytes) {
    const std::string bytes("a\0\xFF", 3);
    griglia.setCaption(1, 1, Ruolo::casella, bytes);
    EXPECT_EQ(griglia.TextMatrix(1, 1), bytes);
}

TEST_F(GrigliaTest, TextsStayAsManyMoreAreWritten) {
    griglia.setCaption(1, 1, Ruolo::casella, "first");
    for (int i = 0; i < 10000; ++i) {
        griglia.setCaption(2, 2, Ruolo::casella, std::to_string(i));
    }
    EXPECT_EQ(griglia.TextMatrix(1, 1), "first");
    EXPECT_EQ(griglia.TextMatrix(2, 2), "9999");
}

TEST_F(GrigliaTest, ACellOutsideIsASubscriptError) {
    for (const auto& [row, column] : std::vector<std::pair<int, int>>{{-1, 0}, {4, 0}, {0, -1}, {0, 3}}) {
        EXPECT_THROW(griglia.cella(row, column), SubscriptError);
        EXPECT_THROW(griglia.TextMatrix(row, column), SubscriptError);
        EXPECT_THROW(griglia.setCaption(row, column, Ruolo::casella, "x"), SubscriptError);
        EXPECT_THROW(griglia.setCellPicture(row, column, 1), SubscriptError);
        EXPECT_THROW(griglia.setCurrent({row, column}), SubscriptError);
    }
    EXPECT_THROW(griglia.RowHeight(4), SubscriptError);
    EXPECT_THROW(griglia.ColWidth(3), SubscriptError);
    EXPECT_THROW(griglia.setRowHeight(-1, 1), SubscriptError);
    EXPECT_THROW(griglia.setColWidth(-1, 1), SubscriptError);
}

TEST_F(GrigliaTest, FewerRowsAndBackMakesTheRowsNewAndEmpty) {
    griglia.setCaption(0, 1, Ruolo::casella, "header");
    griglia.setCaption(2, 1, Ruolo::casella, "data");
    griglia.setRowHeight(2, 1200);
    griglia.setRows(1);
    griglia.setRows(4);
    EXPECT_EQ(griglia.TextMatrix(0, 1), "header");
    EXPECT_EQ(griglia.cella(2, 1), Cella{});
    EXPECT_EQ(griglia.RowHeight(2), griglia.RowHeight(3));
}

TEST_F(GrigliaTest, NeverHasFewerRowsThanTheFixedOnes) {
    griglia.setRows(0);
    EXPECT_EQ(griglia.Rows(), 1);
    griglia.setRows(-5);
    EXPECT_EQ(griglia.Rows(), 1);
}

TEST_F(GrigliaTest, TheCurrentCellStaysInsideAShrinkingGrid) {
    griglia.setCurrent({3, 2});
    griglia.setRows(2);
    EXPECT_EQ(griglia.Row(), 1);
    EXPECT_EQ(griglia.Col(), 2);
}

TEST_F(GrigliaTest, UncolouredCellsLookLikeTheirPartOfTheGrid) {
    EXPECT_EQ(griglia.CellBackColor(0, 1), Colore::intestazione);
    EXPECT_EQ(griglia.CellBackColor(1, 0), Colore::intestazione);
    EXPECT_EQ(griglia.CellBackColor(1, 1), Colore::gialloChiaro);
    griglia.scegli({1, 1});
    EXPECT_EQ(griglia.CellBackColor(1, 1), Colore::ciano);
}

TEST_F(GrigliaTest, AnAppointmentColoursTheCellAndNotTheGroundAroundItsBar) {
    griglia.addCellEntry(1, 1, 0);
    EXPECT_EQ(griglia.aspetto({1, 1}).sfondo, Colore::azzurro);
    EXPECT_EQ(griglia.aspetto({1, 1}).fondo, Colore::gialloChiaro);
    griglia.evidenzia(1);
    EXPECT_EQ(griglia.aspetto({1, 1}).fondo, Colore::giallo);
    EXPECT_EQ(griglia.aspetto({1, 1}).barra, Colore::azzurro);
    griglia.scegli({1, 1});
    EXPECT_EQ(griglia.aspetto({1, 1}).barra, Colore::ciano);
}

TEST_F(GrigliaTest, AnotherHighlightedRowLeavesNoCellSelectedAndNamesAsTheyAre) {
    griglia.evidenzia(1);
    griglia.scegli({1, 2});
    griglia.evidenzia(2);
    EXPECT_EQ(griglia.RigaEvidenziata(), 2);
    EXPECT_EQ(griglia.CellBackColor(1, 2), Colore::gialloChiaro);
    EXPECT_EQ(griglia.CellBackColor(2, 2), Colore::giallo);
    EXPECT_EQ(griglia.CellBackColor(2, 0), Colore::intestazione);
}

TEST_F(GrigliaTest, TheHighlightStaysWhenRowsAreMadeAnewAndTheSelectedCellDoesNot) {
    griglia.evidenzia(2);
    griglia.scegli({2, 1});
    griglia.setRows(1);
    griglia.setRows(4);
    EXPECT_EQ(griglia.CellBackColor(2, 1), Colore::giallo);
    griglia.evidenzia(Griglia::Nessuna);
    EXPECT_FALSE(griglia.EvidenziazioneAttiva());
    EXPECT_EQ(griglia.CellBackColor(2, 1), Colore::gialloChiaro);
}

class GrigliaObserverTest : public GrigliaTest {
protected:
    GrigliaObserverTest() { griglia.setOsservatore(&observer); }
    ~GrigliaObserverTest() override { griglia.setOsservatore(nullptr); }

    RecordingObserver observer;
};

TEST_F(GrigliaObserverTest, IsToldOfEachChange) {
    griglia.setCaption(1, 2, Ruolo::casella, "x");
    griglia.setRowHeight(1, 500);
    EXPECT_THAT(observer.told, ElementsAre("1,2-1,2", "0,0--1,-1 measures"));
}

TEST_F(GrigliaObserverTest, IsToldOnceOfAllThatHappenedUnderALock) {
    {
        const Griglia::LockWindowUpdate outer(griglia);
        griglia.setCaption(1, 2, Ruolo::casella, "x");
        {
            const Griglia::LockWindowUpdate inner(griglia);
            griglia.setCellPicture(3, 1, 1);
        }
        EXPECT_THAT(observer.told, IsEmpty());
    }
    EXPECT_THAT(observer.told, ElementsAre("1,1-3,2"));
}

TEST_F(GrigliaObserverTest, IsToldNothingOfWhatChangedBeforeItCame) {
    griglia.setOsservatore(nullptr);
    griglia.setRows(9);
    griglia.setCaption(3, 2, Ruolo::casella, "x");
    griglia.setOsservatore(&observer);
    griglia.setCaption(1, 1, Ruolo::casella, "x");
    EXPECT_THAT(observer.told, ElementsAre("1,1-1,1"));
}

TEST_F(GrigliaObserverTest, IsToldNothingWhenNothingChangedUnderALock) {
    {
        const Griglia::LockWindowUpdate lock(griglia);
        griglia.setCurrent({1, 1});
    }
    EXPECT_THAT(observer.told, IsEmpty());
}

TEST_F(GrigliaObserverTest, IsToldOfRowsOnlyWhenTheirNumberChanged) {
    griglia.setRows(6);
    {
        const Griglia::LockWindowUpdate lock(griglia);
        griglia.setRows(2);
        griglia.setRows(6);
    }
    EXPECT_THAT(observer.told, ElementsAre("structure", "1,0-5,2 measures"));
}

TEST_F(GrigliaObserverTest, IsToldEvenWhenAFillEndsWithAnError) {
    try {
        const Griglia::LockWindowUpdate lock(griglia);
        griglia.setCaption(1, 1, Ruolo::casella, "x");
        griglia.setCaption(99, 1, Ruolo::casella, "x");
    } catch (const SubscriptError&) {
    }
    EXPECT_THAT(observer.told, ElementsAre("1,1-1,1"));
}

} // namespace
} // namespace planner::test
