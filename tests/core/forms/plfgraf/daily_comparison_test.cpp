// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfgraf_fixture.h"

#include <array>
#include <random>

namespace planner::test {

namespace {

/// The values of the daily chart, found person by person among all records.
struct NestedLoops {
    std::vector<double> valori;
    double massimo = 0;
};

double numberOf(std::string_view text) {
    return std::stod(std::string(text));
}

bool sameDay(const RigaGrafico& riga, const Calendario& calendario) {
    return numberOf(riga.giorno.view()) == calendario.Day() &&
           numberOf(riga.mese.view()) == calendario.Month() &&
           numberOf(riga.anno.view()) == calendario.Year();
}

NestedLoops nestedLoops(const Archivi& archivi, const Calendario& calendario) {
    NestedLoops result;
    for (int i = 1; i <= archivi.NumCollab; ++i) {
        double value = 0;
        for (int r = 0; r < archivi.NumGrafici; ++r) {
            const RigaGrafico& riga = archivi.RigheGrafici.at(static_cast<std::size_t>(r));
            const Collaboratore& person = archivi.Collaboratori.at(static_cast<std::size_t>(i - 1));
            if (sameDay(riga, calendario) && riga.codice.view() == person.codice.view()) {
                const std::string_view ore = riga.ore.at(0).view();
                value = numberOf(ore.substr(0, 5)) + numberOf(ore.substr(5, 2)) / 60;
                result.massimo = value > result.massimo ? value : result.massimo;
            }
        }
        result.valori.push_back(value);
    }
    return result;
}

/// Few codes and days, so that they meet often.
class RandomOffice {
public:
    explicit RandomOffice(unsigned seed) : m_random(seed) {}

    std::vector<Collaboratore> staff() {
        std::vector<Collaboratore> staff(below(12) + 1);
        for (Collaboratore& person : staff) {
            person.codice.assign(code());
        }
        return staff;
    }
    std::vector<RigaGrafico> hours() {
        std::vector<RigaGrafico> righe(below(200));
        for (RigaGrafico& riga : righe) {
            riga = rigaGrafico(code(), std::string("2006031") + digit(4, 6), hoursText());
        }
        return righe;
    }

private:
    std::string code() { return {"AB "[below(3)], "AB "[below(3)]}; }
    std::string hoursText() { return std::string("000") + digit(0, 9) + ":" + digit(0, 5) + digit(0, 9); }
    char digit(std::size_t low, std::size_t high) { return "0123456789"[low + below(high - low + 1)]; }
    std::size_t below(std::size_t count) { return m_random() % count; }

    std::mt19937 m_random;
};

class DailyChartOfARandomOffice : public PlfgrafTest, public testing::WithParamInterface<unsigned> {};

} // namespace

TEST_P(DailyChartOfARandomOffice, IsThatOfNestedLoops) {
    RandomOffice office(GetParam());
    for (int round = 0; round < 50; ++round) {
        setStaff(office.staff());
        setHours(office.hours());
        form.VisualizzaGraficoGiornaliero({1});
        const NestedLoops expected = nestedLoops(archivi, calendario);
        ASSERT_EQ(form.MSChartg().serie.at(0).valori, expected.valori) << "round " << round;
        ASSERT_EQ(form.MSChartg().asseY.Maximum, std::floor(expected.massimo + expected.massimo * 10 / 100));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, DailyChartOfARandomOffice, testing::Values(1u, 2u, 3u, 4u));

} // namespace planner::test
