// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::IsEmpty;

constexpr int RigaRossi = 3; // of the monthly grid

/// A window that the filters leave loaded shows the next request as if it had just been loaded.
class KeptWindowTest : public PlcalFixture {
protected:
    /// The user chooses the filters, and the host asks for something else.
    void next(std::string_view tipo, std::string_view giorno) {
        sessione.valret = "20060315RBF";
        form.unload();
        ASSERT_TRUE(form.isLoaded());
        sessione.valret.clear();
        sessione.collab = "  ";
        sessione.FinePlanner = false;
        open(tipo, giorno);
        form.show();
    }

    /// "row,column" of the data cells of the visible grid that a selection has coloured.
    std::vector<std::string> marked() const {
        const Griglia& griglia = *controlli.grigliaVisibile();
        std::vector<std::string> cells;
        for (int riga = griglia.FixedRows(); riga < griglia.Rows(); ++riga) {
            for (int colonna = 0; colonna < griglia.Cols(); ++colonna) {
                const Colore sfondo = griglia.CellBackColor(riga, colonna);
                if (sfondo == Colore::giallo || sfondo == Colore::ciano) {
                    cells.push_back(std::to_string(riga) + "," + std::to_string(colonna));
                }
            }
        }
        return cells;
    }

    void expectNoTotals() const {
        EXPECT_FALSE(form.pannello().lblcollabVisibile);
        for (std::size_t i = 0; i < EtichetteTotali.size(); ++i) {
            EXPECT_EQ(form.pannello().totali.at(i).testo, "") << i;
        }
    }
};

TEST_F(KeptWindowTest, TheMonthlyGridHasNoMarks) {
    open("M");
    gesto(RigaRossi, 17);
    ASSERT_EQ(marked().size(), 37U);
    next("M", "20060420");
    EXPECT_THAT(marked(), IsEmpty());
    expectNoTotals();
    EXPECT_EQ(form.stato(), plcal::StatoIniziale);
}

TEST_F(KeptWindowTest, TheCursorStandsOnTheFirstRow) {
    open("M");
    gesto(RigaRossi, 17);
    next("M", "20060420");
    EXPECT_EQ(controlli.Flxm.Row(), controlli.Flxm.FixedRows());
    next("G", "20060420");
    EXPECT_EQ(controlli.flxg.Row(), controlli.flxg.FixedRows());
}

TEST_F(KeptWindowTest, APickedDayMarksNothing) {
    open("M");
    gesto(RigaRossi, 17);
    next("M", "20060420");
    form.calendario_DateClick(*makeDate(2006, 4, 21));
    EXPECT_THAT(marked(), IsEmpty());
    form.calendario_DateClick(*makeDate(2006, 5, 4));
    EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(KeptWindowTest, AMoveOfThePeriodMarksNothing) {
    open("M");
    gesto(RigaRossi, 17);
    next("M", "20060420");
    form.bselm_Click(1);
    EXPECT_THAT(marked(), IsEmpty());
    next("G", "20060420");
    gesto(2, 40);
    ASSERT_FALSE(marked().empty());
    next("G", "20060421");
    form.bselg_Click(2);
    EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(KeptWindowTest, ASelectionOfItsOwnMarksOneRow) {
    open("M");
    gesto(RigaRossi, 17);
    next("M", "20060420");
    gesto(RigaRossi, 17);
    EXPECT_EQ(marked().size(), 37U) << "the row of the request before is another";
    next("M", "20060420");
    gesto(RigaRossi + 1, 18);
    EXPECT_EQ(marked().size(), 37U);
    EXPECT_EQ(marked().front(), "4,1");
}

TEST_F(KeptWindowTest, TheYearlyGridHasNoMarkAndNoTotals) {
    auto mesi = annoPlanner("2006", {{3, 10}});
    mesi[2].testi[9].assign("   1   2   3   4   5   6   7   8   9  10  11");
    bench.putAnnuale(mesi);
    open("A");
    gesto(3, 10);
    ASSERT_THAT(marked(), testing::ElementsAre("3,10"));
    ASSERT_NE(etichetta(form.pannello(), "scad").testo, "");
    next("A", "20060420");
    EXPECT_THAT(marked(), IsEmpty());
    expectNoTotals();
}

TEST_F(KeptWindowTest, WhatWasBelowTheYearlyMarkIsNotPutIntoTheNextYear) {
    bench.putAnnuale(annoPlanner("2006", {{3, 10}}));
    open("A");
    gesto(3, 10);
    bench.putAnnuale(annoPlanner("2006", {{5, 10}}));
    next("A", "20060420");
    gesto(5, 10);
    EXPECT_EQ(controlli.flxa.CellBackColor(3, 10), Colore::grigioChiaro);
    EXPECT_NE(controlli.flxa.CellForeColor(3, 10), Colore::bianco);
}

} // namespace
} // namespace planner::test
