// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/contrast.h"
#include "support/planner_bench.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace planner::test {
namespace {

using Coppia = std::pair<Colore, Colore>; // what stands out, and its ground

constexpr std::array<std::string_view, ColoriRgb.size()> Nomi{
    "predefinito",  "nero",        "bianco",       "rosso",       "navy",         "giallo",
    "gialloChiaro", "ciano",       "grigioChiaro", "azzurro",     "intestazione", "linea",
    "lineaForte",   "bordoFascia", "oggi",         "oggiSuScuro", "riepilogo"};

std::string nome(Coppia coppia) {
    return std::string(Nomi.at(static_cast<std::size_t>(coppia.first))) + " su " +
           std::string(Nomi.at(static_cast<std::size_t>(coppia.second)));
}

/// The least contrast of the pair, however it is seen.
double least(Coppia coppia) {
    double contrast = contrasto(rgb(coppia.first), rgb(coppia.second));
    for (const Vista& vista : Viste) {
        contrast = std::min(contrast, contrasto(rgb(coppia.first), rgb(coppia.second), vista));
    }
    return contrast;
}

/// What the three grids show of a year with every sign that there is, nothing chosen and each cell chosen.
class ContrastTest : public testing::Test {
protected:
    ContrastTest() {
        bench.putAnnuale(annoPlanner("2006", {{3, 17}, {5, 5}, {5, 6}}));
        bench.putRighe({conOrario(riga("RB", "20060515", {{1, "1"}}), "09", "00", "0000100")});
        for (const char* kind : {"M", "G", "A"}) {
            bench.init(kind, "20060515");
            Griglia& griglia = *bench.controlli.grigliaVisibile();
            look(griglia);
            for (int row = griglia.FixedRows(); row < griglia.Rows(); ++row) {
                if (bench.controlli.tipoVisibile != TipoPlanner::Annuale) {
                    griglia.evidenzia(row);
                    look(griglia);
                }
                for (int column = 1; column < griglia.Cols(); column += 3) {
                    griglia.scegli({row, column});
                    look(griglia);
                }
            }
        }
    }

    void look(const Griglia& griglia) {
        for (int row = 0; row < griglia.Rows(); ++row) {
            for (int column = 0; column < griglia.Cols(); ++column) {
                const Aspetto aspetto = griglia.aspetto({row, column});
                grounds.insert(aspetto.fondo);
                if (griglia.cella(row, column).impegno) {
                    bars.insert({aspetto.barra, aspetto.fondo});
                }
                if (griglia.cella(row, column).testo != 0) {
                    const bool bold = carattere(aspetto.carattere).grassetto;
                    const auto [known, added] = texts.try_emplace({aspetto.colore, aspetto.fondo}, bold);
                    known->second = known->second && bold;
                }
            }
        }
    }

    PlannerBench bench;
    std::map<Coppia, bool> texts; // whether it is always bold
    std::set<Colore> grounds;
    std::set<Coppia> bars;
};

TEST_F(ContrastTest, EveryTextStandsOutButRedOnGreyWhichIsBold) {
    const std::set<std::string> given{"rosso su intestazione", "rosso su grigioChiaro"};
    std::set<std::string> weak;
    for (const auto& [pair, bold] : texts) {
        if (least(pair) < TextContrast) {
            weak.insert(nome(pair));
            EXPECT_TRUE(bold) << nome(pair);
            EXPECT_GE(contrasto(rgb(pair.first), rgb(pair.second)), ShapeContrast) << nome(pair);
        }
    }
    EXPECT_EQ(weak, given);
    EXPECT_GE(texts.size(), 7U);
}

TEST_F(ContrastTest, EveryFrameStandsOutFromItsGround) {
    EXPECT_EQ(grounds.size(), 7U);
    for (const Colore ground : grounds) {
        for (const Colore frame : {cornice(ground), corniceOggi(ground)}) {
            EXPECT_GE(least({frame, ground}), ShapeContrast) << nome({frame, ground});
        }
        if (ground != Colore::navy) { // a marked day is parted from the next by its own colour
            EXPECT_GE(least({Colore::lineaForte, ground}), ShapeContrast)
                << nome({Colore::lineaForte, ground});
        }
    }
}

TEST_F(ContrastTest, TheHeadersBarsStandOut) {
    EXPECT_GE(least({Colore::riepilogo, Colore::intestazione}), ShapeContrast);
}

TEST_F(ContrastTest, EveryBarHasAnEdgeThatStandsOutOnBothSides) {
    EXPECT_GE(bars.size(), 3U);
    for (const auto& [bar, ground] : bars) {
        EXPECT_GE(least({Colore::bordoFascia, bar}), ShapeContrast) << nome({bar, ground});
        EXPECT_GE(least({Colore::bordoFascia, ground}), ShapeContrast) << nome({bar, ground});
    }
}

} // namespace
} // namespace planner::test
