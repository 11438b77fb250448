// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/giornaliera.h"

#include "archive/numeric_value.h"
#include "grids/entries.h"

#include <algorithm>
#include <bitset>
#include <charconv>
#include <map>

namespace planner {

namespace {

constexpr int NameWidth = 2377; // twips
constexpr int QuarterWidth = 350;
constexpr int HeaderHeight = 500;
constexpr int MinutesPerQuarter = 15;

void writeQuarter(Griglia& flxg, int column) {
    const int hour = (column - 1) / QuartiOra;
    const int quarter = (column - 1) % QuartiOra;
    flxg.setColWidth(column, QuarterWidth);
    flxg.setCaption(0, column, quarter == 0 ? Ruolo::ora : Ruolo::minuti,
                    std::to_string(quarter == 0 ? hour : quarter * MinutesPerQuarter));
}

/// A whole number between 0 and `maximum`, or -1.
int numberUpTo(std::string_view text, int maximum) {
    const std::string_view digits = trim(text);
    int number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool complete = error == std::errc{} && end == digits.data() + digits.size();
    return complete && number <= maximum ? number : -1;
}

void writeEntry(Griglia& flxg, int row, const Impegno& impegno, IntervalloColonne columns) {
    if (impegno.immagine != 0) {
        flxg.setCellPicture(row, columns.prima, impegno.immagine, impegno.tipi);
    }
    for (int column = std::max(columns.prima, 1); column <= columns.ultima; ++column) {
        flxg.addCellEntry(row, column, impegno.tipi);
    }
}

/// The bars of each row, in the order of their records.
using FasceRighe = std::map<int, std::vector<FasciaImpegno>>;

void setBars(Griglia& flxg, FasceRighe& rows) {
    for (auto& [row, bars] : rows) {
        assegnaCorsie(bars);
        flxg.setFasce(row, std::move(bars));
    }
}

/// How many of the staff have no appointment at each quarter.
void showFree(Griglia& flxg, int staff, const FasceRighe& rows) {
    std::vector<int> free(static_cast<std::size_t>(flxg.Cols()), staff);
    free.front() = -1;
    for (const auto& [row, bars] : rows) {
        std::bitset<ColonneQuarti + 1> busy;
        for (const FasciaImpegno& bar : bars) {
            for (int column = bar.prima; column <= bar.ultima; ++column) {
                busy.set(static_cast<std::size_t>(column));
            }
        }
        const bool oneOfThem = indiceDiRiga(flxg, row).valore < staff;
        for (std::size_t column = 1; oneOfThem && column < free.size(); ++column) {
            free[column] -= busy.test(column) ? 1 : 0;
        }
    }
    flxg.setRiepilogo(staff > 0 ? std::move(free) : std::vector<int>(), staff);
}

} // namespace

IntervalloColonne colonneImpegno(const RigaPlanner& riga) {
    const int slots = std::max<int>(ConvertiDurata(riga.durata.view()), 1);
    const int hour = numberUpTo(riga.oraInizio.view(), 23);
    if (hour < 0) {
        return {0, 0};
    }
    const int minute = std::max(numberUpTo(riga.minutoInizio.view(), 59), 0);
    const int first = hour * QuartiOra + minute / MinutesPerQuarter + 1;
    return {first, std::min(first + slots - 1, ColonneQuarti)};
}

void assegnaCorsie(std::vector<FasciaImpegno>& fasce) {
    std::stable_sort(fasce.begin(), fasce.end(),
                     [](const FasciaImpegno& a, const FasciaImpegno& b) { return a.prima < b.prima; });
    auto first = fasce.begin(); // of the bars that hang together
    std::vector<int> ends;      // last column of each lane
    int last = 0;
    const auto closeGroup = [&](auto next) {
        std::for_each(first, next,
                      [&](FasciaImpegno& fascia) { fascia.corsie = static_cast<int>(ends.size()); });
        first = next;
        ends.clear();
    };
    for (auto fascia = fasce.begin(); fascia != fasce.end(); ++fascia) {
        if (fascia->prima > last) {
            closeGroup(fascia);
        }
        const auto lane =
            std::find_if(ends.begin(), ends.end(), [&](int end) { return end < fascia->prima; });
        fascia->corsia = static_cast<int>(lane - ends.begin());
        lane == ends.end() ? ends.push_back(fascia->ultima) : void(*lane = fascia->ultima);
        last = std::max(last, fascia->ultima);
    }
    closeGroup(fasce.end());
}

void showgrid2(Griglia& flxg) {
    const Griglia::LockWindowUpdate lock(flxg);
    flxg.setColWidth(0, NameWidth);
    flxg.setRowHeight(0, HeaderHeight);
    for (int column = 1; column <= ColonneQuarti; ++column) {
        writeQuarter(flxg, column);
    }
}

EsitoRiempimento PopolaGrid2(modpl& sessione, const Calendario& calendario, Griglia& flxg, bool dettagliato) {
    const Griglia::LockWindowUpdate lock(flxg);
    flxg.setCaption(0, 0, Ruolo::periodo, dataBreve(calendario.Value()));
    writeStaffCaptions(flxg, sessione.archivi, Ruolo::nomeGiornaliero);
    setDataRowHeights(flxg, dettagliato);

    sessione.TotaliImpegni = TabellaTotali(sessione.archivi.NumRighe);
    const auto onShownDay = [&](const RigaPlanner& riga) {
        return numericValue(riga.giorno.view()) == calendario.Day() &&
               numericValue(riga.mese.view()) == calendario.Month() &&
               numericValue(riga.anno.view()) == calendario.Year();
    };
    FasceRighe bars;
    EsitoRiempimento esito = forEachRecord(sessione.archivi, onShownDay, [&](const RigaPlanner& riga) {
        const Impegno impegno = leggiImpegno(riga, sessione, dettagliato);
        const IntervalloColonne columns = colonneImpegno(riga);
        const int row = rigaCollaboratore(flxg, impegno.indice);
        sessione.TotaliImpegni.aggiungi(impegno.indice, impegno.valori);
        writeEntry(flxg, row, impegno, columns);
        if (columns.prima > 0) {
            bars[row].push_back({columns.prima, columns.ultima, impegno.immagine});
        }
    });
    showFree(flxg, sessione.archivi.NumCollab, bars);
    setBars(flxg, bars);
    flxg.setCurrent({PrimaRigaGiornaliera, 1});
    return esito;
}

} // namespace planner
