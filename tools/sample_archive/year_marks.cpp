// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/year_marks.h"

#include "sample_archive/digits.h"
#include "sample_archive/working_days.h"
#include "session/calendar_rules.h"
#include "session/totals.h"

#include <algorithm>
#include <array>
#include <map>

namespace planner {

namespace {

constexpr int PercentualeMassimaSegni = 55;

/// The sums of the eleven counters of one day; index 1 to 11.
using Somme = std::array<int, 12>;
using SommeAnno = std::map<Data, Somme>;

/// The counter that each of a cell's eleven numbers adds up. They stand in the counters' order, only the
/// notes and the various appointments have changed places.
constexpr std::array<std::size_t, 11> ContatoriTesto{1, 2, 3, 4, 5, 6, 8, 7, 9, 10, 11};

SommeAnno sumDays(const std::vector<RigaPlanner>& righe) {
    SommeAnno somme;
    for (const RigaPlanner& riga : righe) {
        Somme& giorno = somme[dateFromTexts(riga.giorno.view(), riga.mese.view(), riga.anno.view())];
        const ValoriContatori valori = valoriContatori(riga);
        for (std::size_t number = 1; number < valori.size(); ++number) {
            giorno[number] += static_cast<int>(valori[number]);
        }
    }
    return somme;
}

/// Deadlines and case files.
int work(const Somme& somme) {
    return somme[1] + somme[5] + somme[2] + somme[6];
}

/// The least work of a marked day of the month: low enough to mark as many days as may be, and at least 1.
int markThreshold(const SommeAnno& somme, int mese, int workingDays) {
    std::vector<int> works;
    for (const auto& [data, giorno] : somme) {
        if (monthOf(data) == mese) {
            works.push_back(work(giorno));
        }
    }
    std::sort(works.rbegin(), works.rend());
    const auto most = static_cast<std::size_t>(std::max(1, workingDays * PercentualeMassimaSegni / 100));
    // Days as busy as the first one that is too many stay unmarked, unless no day is busier.
    const int excluded = works.size() > most ? works[most] : 0;
    const int busiest = works.empty() ? 0 : works.front();
    return std::max(1, std::min(excluded + 1, busiest));
}

/// The thresholds of the twelve months.
std::array<int, 12> markThresholds(const SommeAnno& somme, int anno) {
    std::array<int, 12> workingDays{};
    for (const GiornoLavorativo& giorno : giorniLavorativi(anno)) {
        ++workingDays.at(static_cast<std::size_t>(monthOf(giorno.data) - 1));
    }
    std::array<int, 12> thresholds{};
    for (std::size_t month = 0; month < thresholds.size(); ++month) {
        thresholds[month] = markThreshold(somme, static_cast<int>(month) + 1, workingDays[month]);
    }
    return thresholds;
}

std::string cellText(const Somme& somme) {
    std::string text;
    for (const std::size_t number : ContatoriTesto) {
        text += padded(std::min(somme[number], 9999), 4);
    }
    return text;
}

std::vector<MesePlanner> blankMonths(int anno) {
    std::vector<MesePlanner> mesi(12);
    int mese = 0;
    for (MesePlanner& record : mesi) {
        ++mese;
        record.anno.assign(padded(anno, 4));
        record.mese.assign(padded(mese, 2));
        record.campo6.assign("\r\n"); // lets a text viewer show a line each
    }
    return mesi;
}

} // namespace

std::vector<MesePlanner> creaMesi(int anno, const std::vector<RigaPlanner>& righe) {
    const SommeAnno somme = sumDays(righe);
    const std::array<int, 12> thresholds = markThresholds(somme, anno);
    std::vector<MesePlanner> mesi = blankMonths(anno);
    for (const auto& [data, giorno] : somme) {
        const auto month = static_cast<std::size_t>(monthOf(data) - 1);
        if (work(giorno) < thresholds.at(month)) {
            continue;
        }
        const int column = colonnaPrimoGiorno(anno, monthOf(data)) + dayOf(data) - 1;
        MesePlanner& mese = mesi.at(month);
        mese.segni.at(static_cast<std::size_t>(column - 1)).assign("*");
        mese.testi.at(static_cast<std::size_t>(column - 1)).assign(cellText(giorno));
    }
    return mesi;
}

} // namespace planner
