// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/legenda_in_vista.h"
#include "plcal_fixture.h"

namespace planner::test {
namespace {

class LegendaInVistaTest : public PlcalFixture {
protected:
    std::string sentence() { return fraseLegenda(legendaInVista(controlli)); }
};

TEST_F(LegendaInVistaTest, NamesTheDrawingsOfTheGridShown) {
    open("M");
    EXPECT_EQ(sentence(), "note riservate, impegni vari, scadenze, pratiche");
    form.Toolbar1_ButtonClick("dettno");
    EXPECT_EQ(sentence(), "almeno un impegno");
    open("A");
    EXPECT_EQ(sentence(), "giorno con impegni");
}

TEST_F(LegendaInVistaTest, IsOfTheSameTableAsTheDrawingsThemselves) {
    open("G");
    const std::vector<VoceLegenda> all = legendaDisegni(/*dettagliato=*/true);
    for (const VoceLegenda& voce : legendaInVista(controlli)) {
        EXPECT_TRUE(std::any_of(all.begin(), all.end(), [&](const VoceLegenda& each) {
            return each.immagine == voce.immagine && each.significato == voce.significato;
        })) << voce.breve;
    }
}

TEST_F(LegendaInVistaTest, WithoutAGridThereIsNone) {
    open("X");
    EXPECT_EQ(sentence(), "");
}

} // namespace
} // namespace planner::test
