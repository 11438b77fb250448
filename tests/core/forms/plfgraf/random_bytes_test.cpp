// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_texts.h"
#include "plfgraf_fixture.h"

#include <cmath>
#include <random>

namespace planner::test {

namespace {

/// Records of any bytes, most of them shaped so that they get past the comparison of date or code.
class RandomRecords {
public:
    explicit RandomRecords(unsigned seed) : m_random(seed) {}

    std::vector<RigaGrafico> hours() {
        std::vector<RigaGrafico> righe(below(8));
        for (RigaGrafico& riga : righe) {
            riga = recordOf<RigaGrafico>(bytes(sizeof(RigaGrafico)));
            if (oneIn(2)) {
                riga.codice.assign("RB");
                riga.anno.assign("2006");
            }
            if (oneIn(2)) {
                riga.mese.assign("03");
            }
            if (oneIn(2)) {
                riga.giorno.assign("15");
            }
        }
        return righe;
    }
    std::vector<Collaboratore> staff() {
        std::vector<Collaboratore> staff(below(5));
        for (Collaboratore& person : staff) {
            person = recordOf<Collaboratore>(bytes(sizeof(Collaboratore)));
            person.codice.assign(oneIn(2) ? "RB" : person.codice.text());
        }
        return staff;
    }
    std::int16_t index() { return static_cast<std::int16_t>(static_cast<int>(below(8)) - 2); }

private:
    std::size_t below(std::size_t count) { return m_random() % count; }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    /// Half of them characters of numbers.
    std::string bytes(std::size_t count) {
        constexpr std::string_view numbers = "0123456789 .:-+eE";
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += oneIn(2) ? numbers[below(numbers.size())] : static_cast<char>(below(256));
        }
        return text;
    }

    std::mt19937 m_random;
};

void expectSound(const Grafico& grafico) {
    EXPECT_TRUE(std::isfinite(grafico.asseY.Maximum));
    ASSERT_EQ(grafico.voci.size(), grafico.numValori());
    for (std::size_t numero = 0; numero < grafico.numValori(); ++numero) {
        EXPECT_TRUE(std::isfinite(grafico.valore(numero)));
        EXPECT_FALSE(testoOre(grafico.valore(numero)).empty());
        EXPECT_FALSE(fraseValore(grafico, numero).empty());
        EXPECT_FALSE(fraseParlata(grafico, numero).empty());
    }
    const std::string table = tabellaValori(grafico);
    const auto lines = static_cast<std::size_t>(std::count(table.begin(), table.end(), '\n'));
    const auto tabs = static_cast<std::size_t>(std::count(table.begin(), table.end(), '\t'));
    const std::size_t headings = grafico.intestazione.empty() ? 1 : 2;
    EXPECT_EQ(lines, grafico.numValori() + headings);
    EXPECT_EQ(tabs, 2 * (grafico.numValori() + 1));
    EXPECT_FALSE(nomeFileGrafico(grafico).empty());
}

/// True when the chart was built; any other error than a run-time error fails the test.
template <typename Build>
bool builds(Build build) {
    try {
        build();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

class ChartsOfRandomBytes : public PlfgrafTest, public testing::WithParamInterface<unsigned> {};

} // namespace

TEST_P(ChartsOfRandomBytes, AreSoundOrEndInARunTimeError) {
    RandomRecords records(GetParam());
    int built = 0;
    int failed = 0;
    for (int round = 0; round < 3000; ++round) {
        setHours(records.hours());
        setStaff(records.staff());
        const std::int16_t collab = records.index();
        for (const bool done : {builds([&] { form.VisualizzaGraficoMensile({collab}); }),
                                builds([&] { form.VisualizzaGraficoGiornaliero({collab}); }),
                                builds([&] { form.VisualizzaGraficoAnnuale(); })}) {
            ++(done ? built : failed);
        }
        for (const Grafico* grafico : {&form.MSChartm(), &form.MSChartg(), &form.MSCharta()}) {
            ASSERT_NO_FATAL_FAILURE(expectSound(*grafico));
        }
    }
    EXPECT_GT(built, 1000) << "the records are too wild to test anything";
    EXPECT_GT(failed, 1000) << "the records are too tame to test anything";
}

INSTANTIATE_TEST_SUITE_P(Seeds, ChartsOfRandomBytes, testing::Values(1u, 2u, 3u));

} // namespace planner::test
