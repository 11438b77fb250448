// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "stampa_fixture.h"

namespace planner::test {

namespace {

using testing::ElementsAre;

struct LegendaStampaTest : StampaFixture {
    std::vector<std::string> significati() const {
        std::vector<std::string> texts;
        for (const VoceStampa& voce : vociLegenda(bench.controlli)) {
            texts.push_back(voce.significato);
        }
        return texts;
    }
};

} // namespace

TEST_F(LegendaStampaTest, ExplainsWhatTheKindsPagesShow) {
    bench.init("M", "20060415");
    EXPECT_THAT(significati(), ElementsAre("Note riservate", "Impegni vari", "Scadenze", "Pratiche",
                                           "Più disegni insieme: più tipi di impegno nello stesso giorno",
                                           "Sabato e domenica", "Festivo"));
    bench.init("A", "20060315");
    EXPECT_THAT(significati(), ElementsAre("Giorno con impegni", "Sabato e domenica", "Festivo", "Oggi"));
    bench.init("G", "20060314");
    EXPECT_EQ(significati().back(), "Durata dell'impegno");
}

TEST_F(LegendaStampaTest, WithoutDetailsThereIsOneSign) {
    bench.init("M", "20060415");
    bench.controlli.Toolbar1.setDettagliato(false);
    EXPECT_EQ(significati().front(), "Planner non dettagliato: nel giorno c'è almeno un impegno");
}

TEST_F(LegendaStampaTest, ExplainsTheMarksThatThereAre) {
    bench.init("M", "20060315");
    EXPECT_EQ(significati().back(), "Oggi");
    bench.controlli.Flxm.evidenzia(2);
    bench.controlli.Flxm.scegli({2, 5});
    EXPECT_EQ(significati().at(significati().size() - 2), "Riga scelta");
    EXPECT_EQ(significati().back(), "Casella scelta");
}

TEST_F(LegendaStampaTest, TakesAsManyLinesAsItNeedsFromTheBottomUp) {
    bench.init("M", "20060315");
    const AreaStampa narrow{10, 0, 150, 500};
    const auto poste = disponiLegenda(vociLegenda(bench.controlli), narrow, misura);
    EXPECT_DOUBLE_EQ(poste.back().testo.fondo(), narrow.fondo());
    for (std::size_t i = 1; i < poste.size(); ++i) {
        const AreaStampa& before = poste[i - 1].testo;
        EXPECT_TRUE(poste[i].campione.x >= before.destra() || poste[i].testo.y >= before.fondo());
        EXPECT_LE(poste[i].testo.destra(), narrow.destra() + 1e-6);
    }
    EXPECT_GT(poste.back().testo.y, poste.front().testo.y);
}

} // namespace planner::test
