// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/working_days.h"

#include "session/calendar_rules.h"

#include <algorithm>
#include <array>

namespace planner {

namespace {

constexpr int OgniMese = 0;

struct ScadenzaFiscale {
    int giorno;
    int mese; // 1 to 12, or OgniMese
    int peso; // 0 to 100
};

constexpr std::array ScadenzeFiscali{
    ScadenzaFiscale{16, OgniMese, 60}, ScadenzaFiscale{25, OgniMese, 30}, ScadenzaFiscale{31, 1, 40},
    ScadenzaFiscale{28, 2, 45},        ScadenzaFiscale{16, 3, 75},        ScadenzaFiscale{31, 3, 45},
    ScadenzaFiscale{30, 4, 55},        ScadenzaFiscale{31, 5, 45},        ScadenzaFiscale{16, 6, 75},
    ScadenzaFiscale{30, 6, 100},       ScadenzaFiscale{31, 7, 60},        ScadenzaFiscale{20, 8, 50},
    ScadenzaFiscale{30, 9, 55},        ScadenzaFiscale{31, 10, 75},       ScadenzaFiscale{30, 11, 100},
    ScadenzaFiscale{16, 12, 75},       ScadenzaFiscale{27, 12, 55}};

bool isWorkingDay(Data data) {
    const int weekday = weekdayOf(data);
    return weekday != 1 && weekday != 7 && trovaFestivo(dayOf(data) - 1, monthOf(data)) == nullptr;
}

/// Work piles up over the days before a deadline; a deadline on a closed day moves to the next open one.
void addDeadline(std::vector<GiornoLavorativo>& giorni, Data scadenza, int peso) {
    constexpr std::array percentBefore{100, 70, 50, 35, 20};
    const auto day = std::lower_bound(giorni.begin(), giorni.end(), scadenza,
                                      [](const GiornoLavorativo& g, Data data) { return g.data < data; });
    if (day == giorni.end()) {
        return;
    }
    const auto daysBefore = static_cast<std::size_t>(day - giorni.begin());
    for (std::size_t back = 0; back < percentBefore.size() && back <= daysBefore; ++back) {
        int& pressione = giorni[daysBefore - back].pressione;
        pressione = std::max(pressione, peso * percentBefore[back] / 100);
    }
}

void addDeadlines(std::vector<GiornoLavorativo>& giorni, int anno, const ScadenzaFiscale& scadenza) {
    for (int mese = 1; mese <= 12; ++mese) {
        const auto data = makeDate(anno, mese, scadenza.giorno);
        if (data && (scadenza.mese == mese || scadenza.mese == OgniMese)) {
            addDeadline(giorni, *data, scadenza.peso);
        }
    }
}

} // namespace

std::vector<GiornoLavorativo> giorniLavorativi(int anno) {
    std::vector<GiornoLavorativo> giorni;
    const std::chrono::sys_days end =
        Data{std::chrono::year{anno}, std::chrono::month{12}, std::chrono::day{31}};
    std::chrono::sys_days day = Data{std::chrono::year{anno}, std::chrono::month{1}, std::chrono::day{1}};
    for (; day <= end; day += std::chrono::days{1}) {
        if (isWorkingDay(Data{day})) {
            giorni.push_back({Data{day}, 0});
        }
    }
    for (const ScadenzaFiscale& scadenza : ScadenzeFiscali) {
        addDeadlines(giorni, anno, scadenza);
    }
    return giorni;
}

} // namespace planner
