// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/design.h"

#include <gmock/gmock.h>
#include <map>
#include <set>
#include <string>
#include <tuple>

namespace planner::test {
namespace {

const EtichettaTotale& label(std::string_view nome) {
    const auto found = std::find_if(EtichetteTotali.begin(), EtichetteTotali.end(),
                                    [&](const EtichettaTotale& one) { return one.nome == nome; });
    if (found == EtichetteTotali.end()) {
        throw std::runtime_error("no label " + std::string(nome));
    }
    return *found;
}

std::set<std::string> shownLabels(std::optional<TipoPlanner> tipo, bool varianteRidotta) {
    std::set<std::string> shown;
    for (const EtichettaTotale& one : EtichetteTotali) {
        if (totaleVisibile(one, tipo, varianteRidotta)) {
            shown.insert(std::string(one.nome));
        }
    }
    return shown;
}

TEST(PanelTest, LabelsStandBesideTheirStaticCaptions) {
    const std::map<std::string_view, std::string_view> table{
        {"Lblscad", "Scadenze"},     {"Lblscadeva", "di cui concluse"},
        {"lblpra", "Pratiche"},      {"Lblpraeva", "di cui concluse"},
        {"lblpers", "Impegni vari"}, {"Lblnotes", "Note riservate"},
        {"scad", "Scadenze"},        {"scaev", "di cui concluse"},
        {"prat", "Pratiche"},        {"praev", "di cui concluse"},
        {"nriv", "Note riservate"},  {"bnot", "Block Notes"},
        {"blkev", "di cui conclusi"}};
    EXPECT_EQ(EtichetteTotali.size(), table.size());
    for (const auto& [nome, caption] : table) {
        EXPECT_EQ(label(nome).didascalia, caption) << nome;
    }
}

TEST(PanelTest, TheKindsShowTheirOwnLabels) {
    const std::set<std::string> staff{"Lblscad", "Lblscadeva", "lblpra", "Lblpraeva", "lblpers", "Lblnotes"};
    const std::set<std::string> year{"scad", "scaev", "prat", "praev", "nriv", "bnot", "blkev"};
    EXPECT_EQ(shownLabels(TipoPlanner::Mensile, false), staff);
    EXPECT_EQ(shownLabels(TipoPlanner::Giornaliero, false), staff);
    EXPECT_EQ(shownLabels(TipoPlanner::Annuale, false), year);
    EXPECT_TRUE(shownLabels(std::nullopt, false).empty());
}

TEST(PanelTest, VariantBHidesTheDeadlines) {
    const std::set<std::string> staff{"lblpra", "Lblpraeva", "lblpers", "Lblnotes"};
    const std::set<std::string> year{"prat", "praev", "nriv", "bnot", "blkev"};
    EXPECT_EQ(shownLabels(TipoPlanner::Mensile, true), staff);
    EXPECT_EQ(shownLabels(TipoPlanner::Giornaliero, true), staff);
    EXPECT_EQ(shownLabels(TipoPlanner::Annuale, true), year);
}

TEST(PanelTest, VariantBMovesTheCaseFilesUpToTheDeadlinesTops) {
    const std::map<std::string_view, std::string_view> places{
        {"lblpra", "Lblscad"}, {"Lblpraeva", "Lblscadeva"}, {"prat", "scad"}, {"praev", "scaev"}};
    for (const auto& [moved, place] : places) {
        EXPECT_EQ(posizioneNumero(label(moved), true).Top, posizioneNumero(label(place), false).Top) << moved;
        EXPECT_EQ(posizioneDidascalia(label(moved), true).Top, posizioneDidascalia(label(place), false).Top);
        EXPECT_NE(posizioneNumero(label(moved), false).Top, posizioneNumero(label(place), false).Top);
        EXPECT_EQ(posizioneNumero(label(moved), true).Left, posizioneNumero(label(moved), false).Left);
    }
}

TEST(PanelTest, VariantBLeavesTheOtherLabelsWhereTheyAre) {
    for (const std::string_view nome : {"lblpers", "Lblnotes", "nriv", "bnot", "blkev"}) {
        EXPECT_EQ(posizioneNumero(label(nome), true), posizioneNumero(label(nome), false)) << nome;
        EXPECT_EQ(posizioneDidascalia(label(nome), true), posizioneDidascalia(label(nome), false)) << nome;
    }
}

bool overlap(const Rettangolo& a, const Rettangolo& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

TEST(PanelTest, NoTwoShownLabelsOverlap) {
    for (const auto tipo : {TipoPlanner::Mensile, TipoPlanner::Annuale}) {
        for (const bool varianteRidotta : {false, true}) {
            std::vector<Rettangolo> places;
            for (const std::string& nome : shownLabels(tipo, varianteRidotta)) {
                places.push_back(posizioneNumero(label(nome), varianteRidotta));
                places.push_back(posizioneDidascalia(label(nome), varianteRidotta));
            }
            for (std::size_t i = 0; i < places.size(); ++i) {
                for (std::size_t k = i + 1; k < places.size(); ++k) {
                    EXPECT_FALSE(overlap(places[i], places[k])) << varianteRidotta << " " << i << " " << k;
                }
            }
        }
    }
}

TEST(PeriodButtonsTest, EachHasItsGroupIndexAndToolTip) {
    const std::vector<std::tuple<std::string_view, int, TipoPlanner, bool, std::string_view>> table{
        {"bselm", 0, TipoPlanner::Mensile, false, "Mese precedente"},
        {"bselm", 1, TipoPlanner::Mensile, true, "Mese successivo"},
        {"bselm", 2, TipoPlanner::Mensile, false, "Anno precedente"},
        {"bselm", 3, TipoPlanner::Mensile, true, "Anno successivo"},
        {"bselg", 1, TipoPlanner::Giornaliero, false, "Giorno precedente"},
        {"bselg", 2, TipoPlanner::Giornaliero, true, "Giorno successivo"},
        {"bselA", 1, TipoPlanner::Annuale, false, "Anno precedente"},
        {"bselA", 2, TipoPlanner::Annuale, true, "Anno successivo"},
    };
    ASSERT_EQ(PulsantiPeriodo.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        const PulsantePeriodo& b = PulsantiPeriodo[i];
        EXPECT_EQ(std::make_tuple(b.gruppo, b.indice, b.tipo, b.successivo, b.suggerimento), table[i]);
    }
}

TEST(PeriodButtonsTest, TheMonthlyGridHasASecondPairInItsSecondHeaderRow) {
    for (const PulsantePeriodo& button : PulsantiPeriodo) {
        const bool yearOfMonthly = button.tipo == TipoPlanner::Mensile && button.indice >= 2;
        EXPECT_EQ(button.riga, yearOfMonthly ? 1 : 0) << button.suggerimento;
    }
}

TEST(DesignTest, TheWindowHasItsControlsInsideItsDesignedSize) {
    std::multiset<std::string_view> names;
    for (const ControlloProgetto& control : controlliPlcal()) {
        names.insert(control.nome);
        const Rettangolo& r = control.posizione;
        EXPECT_TRUE(r.Left >= 0 && r.Top >= 0 && r.Left + r.Width <= ProgettoPlcal.width &&
                    r.Top + r.Height <= ProgettoPlcal.height)
            << control.nome;
        EXPECT_EQ(control.pulsanteComando, control.nome.starts_with("bsel")) << control.nome;
    }
    for (const std::string_view one :
         {"Toolbar1", "calendario", "lbldescr", "lblcollab", "Flxm", "flxg", "flxa"}) {
        EXPECT_EQ(names.count(one), 1u) << one;
    }
    EXPECT_EQ(names.count("bselm"), 4u);
    EXPECT_EQ(names.count("bselg"), 2u);
    EXPECT_EQ(names.count("bselA"), 2u);
}

Rettangolo placeOf(std::string_view nome) {
    for (const ControlloProgetto& control : controlliPlcal()) {
        if (control.nome == nome) {
            return control.posizione;
        }
    }
    throw std::runtime_error("no control " + std::string(nome));
}

TEST(DesignTest, NoControlStandsOverAnotherOrThePanel) {
    std::vector<Rettangolo> places;
    for (const char* nome : {"Toolbar1", "calendario", "lbldescr", "lblcollab", "Flxm", "stato"}) {
        places.push_back(placeOf(nome));
    }
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        const Rettangolo caption = posizioneDidascalia(etichetta, false);
        const Rettangolo number = posizioneNumero(etichetta, false);
        for (const Rettangolo& place : places) {
            EXPECT_FALSE(overlap(caption, place)) << etichetta.nome;
            EXPECT_FALSE(overlap(number, place)) << etichetta.nome;
        }
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
        for (std::size_t k = i + 1; k < places.size(); ++k) {
            EXPECT_FALSE(overlap(places[i], places[k])) << i << " " << k;
        }
    }
}

TEST(DesignTest, TheSmallestWindowFitsTheScreenItIsScaledFor) {
    for (const Dimensioni screen : {Dimensioni{960 * 15, 540 * 15}, Dimensioni{1024 * 15, 768 * 15},
                                    Dimensioni{2560 * 15, 1440 * 15}, Dimensioni{1080 * 15, 1920 * 15}}) {
        const Dimensioni smallest = dimensioniMinime(scalaPer(screen, ProgettoPlcal));
        EXPECT_LE(smallest.width, screen.width);
        EXPECT_LE(smallest.height, screen.height);
        EXPECT_GE(smallest.height, screen.height / 4);
    }
}

TEST(DesignTest, TheDailyGridOpensAtEightOClock) {
    EXPECT_EQ(PrimaColonnaGiornaliera, 33);
}

} // namespace
} // namespace planner::test
