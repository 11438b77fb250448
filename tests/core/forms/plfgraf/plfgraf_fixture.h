// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/plfgraf.h"
#include "ports/runtime_errors.h"
#include "support/builders.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace planner::test {

/// A chart window over tables in memory, with three people, 15 March 2006 as the shown day and no hours.
class PlfgrafTest : public testing::Test {
protected:
    PlfgrafTest() {
        setStaff({collaboratore("BI", "Bianchi Rosa"), collaboratore("RB", "Rossi Bruno"),
                  collaboratore("7 ", "Verdi Ugo")});
        show(2006, 3, 15);
    }

    /// The tables as a reader leaves them: a blank element follows the last one.
    void setStaff(const std::vector<Collaboratore>& staff) {
        archivi.Collaboratori = staff;
        archivi.Collaboratori.emplace_back();
        archivi.NumCollab = static_cast<std::int16_t>(staff.size());
    }
    void setHours(const std::vector<RigaGrafico>& righe) {
        archivi.RigheGrafici = righe;
        archivi.RigheGrafici.emplace_back();
        archivi.NumGrafici = static_cast<std::int16_t>(righe.size());
    }
    void show(int anno, int mese, int giorno) { calendario.setValue(makeDate(anno, mese, giorno).value()); }

    Archivi archivi;
    Calendario calendario;
    plfgraf form{archivi, calendario};
};

/// What the run-time error says that building a chart ends in; empty when it ends in none.
template <typename Build>
std::string errorOf(Build build) {
    try {
        build();
    } catch (const RuntimeError& error) {
        return error.what();
    }
    return {};
}

/// Values of a chart with `rows` rows, all 0 but the given ones, numbered from 1.
inline std::vector<double> zerosBut(std::size_t rows,
                                    std::initializer_list<std::pair<std::size_t, double>> set) {
    std::vector<double> values(rows);
    for (const auto& [row, value] : set) {
        values.at(row - 1) = value;
    }
    return values;
}

/// The single values of a chart of one row.
inline std::vector<double> firstRow(const Grafico& grafico) {
    std::vector<double> values;
    for (const SerieGrafico& serie : grafico.serie) {
        values.push_back(serie.valori.at(0));
    }
    return values;
}

inline bool samePen(const Penna& pen, Rgb colour, int width) {
    return pen.colore == colour && pen.Width == width;
}

inline constexpr Rgb Rosso{255, 0, 0};
inline constexpr Rgb Blu{0, 0, 255};
inline constexpr Rgb Nero{0, 0, 0};
inline constexpr Rgb BluMarino{0, 0, 128};

} // namespace planner::test
