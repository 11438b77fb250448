// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/layout.h"
#include "grids/style.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

TEST(StyleTest, ColoursAreTheGivenOnes) {
    EXPECT_EQ(rgb(Colore::nero), (Rgb{0, 0, 0}));
    EXPECT_EQ(rgb(Colore::rosso), (Rgb{255, 0, 0}));
    EXPECT_EQ(rgb(Colore::navy), (Rgb{0, 0, 128}));
    EXPECT_EQ(rgb(Colore::bianco), (Rgb{255, 255, 255}));
    EXPECT_EQ(rgb(Colore::grigioChiaro), (Rgb{224, 224, 224}));
    EXPECT_EQ(rgb(Colore::giallo), (Rgb{244, 244, 1}));
    EXPECT_EQ(rgb(Colore::gialloChiaro), (Rgb{255, 255, 215}));
    EXPECT_EQ(rgb(Colore::ciano), (Rgb{0, 255, 255}));
}

TEST(StyleTest, HeaderFontsAreTheGivenOnes) {
    const DescrizioneCarattere& hour = carattere(Carattere::ora);
    EXPECT_EQ(hour.famiglia, "MS Sans Serif");
    EXPECT_EQ(hour.punti, 9);
    EXPECT_TRUE(hour.grassetto);
    const DescrizioneCarattere& minutes = carattere(Carattere::minuti);
    EXPECT_EQ(minutes.famiglia, "SmallFonts");
    EXPECT_EQ(minutes.punti, 7);
    EXPECT_FALSE(minutes.grassetto);
    const DescrizioneCarattere& year = carattere(Carattere::anno);
    EXPECT_EQ(year.punti, 10);
    EXPECT_TRUE(year.grassetto);
    EXPECT_TRUE(carattere(Carattere::grassetto).grassetto);
    EXPECT_FALSE(carattere(Carattere::normale).grassetto);
}

TEST(LayoutTest, SaturdaysAndSundaysStandInTheirColumns) {
    for (int column = 1; column <= 37; ++column) {
        const bool weekend = column == 6 || column == 7 || column == 13 || column == 14 || column == 20 ||
                             column == 21 || column == 27 || column == 28 || column == 34 || column == 35;
        EXPECT_EQ(isWeekendColumn(column), weekend) << column;
    }
}

TEST(LayoutTest, DaysStandInWeeksAndQuartersInHours) {
    const Griglia days(2, ColonneGiorni + 1, 1, Colore::bianco);
    const Griglia quarters(2, ColonneQuarti + 1, 1, Colore::bianco);
    for (int column = 1; column <= 37; ++column) {
        EXPECT_EQ(finisceGruppo(days, column), column % 7 == 0) << column;
        EXPECT_EQ(finisceGruppo(quarters, column), column % 4 == 0) << column;
    }
    EXPECT_TRUE(finisceGruppo(days, 0));
    EXPECT_TRUE(finisceGruppo(quarters, 0));
}

TEST(LayoutTest, WeekdayLettersRepeatEverySevenColumns) {
    const std::string_view letters = "LMMGVSD";
    Griglia griglia(2, 38, 1, Colore::bianco);
    writeWeekdayLetters(griglia);
    EXPECT_EQ(griglia.cella(0, 0), Cella{});
    for (int column = 1; column <= 37; ++column) {
        const auto place = static_cast<std::size_t>((column - 1) % 7);
        EXPECT_EQ(griglia.TextMatrix(0, column), letters.substr(place, 1)) << column;
        EXPECT_EQ(griglia.CellForeColor(0, column), place >= 5 ? Colore::rosso : Colore::nero) << column;
    }
}

TEST(LayoutTest, RowsFollowTheStaffTablesUpperBound) {
    EXPECT_EQ(righeMensile(5), 17);
    EXPECT_EQ(righeGiornaliera(5), 16);
    EXPECT_EQ(righeMensile(0), 12);
    EXPECT_EQ(righeGiornaliera(0), 11);
}

TEST(LayoutTest, CaptionsAreTheStaffInTableOrderAndTheUnassignedBelow) {
    Archivi archivi;
    archivi.Collaboratori.resize(4);
    archivi.Collaboratori[0].nome.assign("Verdi Ugo");
    archivi.Collaboratori[1].nome.assign("  Bianchi  Rosa");
    archivi.NumCollab = 3;
    Griglia griglia(8, 2, 2, Colore::bianco);
    writeStaffCaptions(griglia, archivi, Ruolo::nomeMensile);
    EXPECT_EQ(griglia.TextMatrix(1, 0), "");
    EXPECT_EQ(griglia.TextMatrix(2, 0), "Verdi Ugo");
    EXPECT_EQ(griglia.TextMatrix(3, 0), "  Bianchi  Rosa");
    EXPECT_EQ(griglia.TextMatrix(4, 0), "");
    EXPECT_EQ(griglia.TextMatrix(5, 0), "*NON ASSEGNATE*");
    EXPECT_EQ(griglia.TextMatrix(6, 0), "");
}

TEST(EsitoRiempimentoTest, SaysHowManyRecordsAreMissingAndWhyTheFirstOneIs) {
    EsitoRiempimento outcome;
    EXPECT_EQ(outcome.messaggio(), "");
    outcome.annota("prima causa");
    EXPECT_EQ(outcome.messaggio(), "Una riga degli impegni non è stata mostrata: prima causa.");
    outcome.annota("seconda causa");
    EXPECT_EQ(outcome.messaggio(), "2 righe degli impegni non sono state mostrate. La prima: prima causa.");
}

} // namespace
} // namespace planner::test
