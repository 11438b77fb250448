// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/sentences.h"

#include "archive/cp1252.h"
#include "engine/kinds/kind.h"
#include "forms/plcal/impegni_casella.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/yearly_day.h"
#include "session/calendar_rules.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace planner {

namespace {

constexpr std::array<std::string_view, 7> NomiGiorni{"domenica", "lunedì",  "martedì", "mercoledì",
                                                     "giovedì",  "venerdì", "sabato"};

constexpr std::string_view NessunImpegno = "nessun impegno";
constexpr std::string_view NessunGiorno = "nessun giorno";
constexpr std::string_view RigaLibera = "riga libera";

std::string join(const std::vector<std::string>& parts) {
    std::string joined;
    for (const std::string& part : parts) {
        joined += joined.empty() ? part : ", " + part;
    }
    return joined;
}

std::string withDetails(const std::string& sentence, const std::string& details) {
    return details.empty() ? sentence : sentence + ": " + details;
}

/// What the row is called, and the day.
std::string nameAndDay(const Griglia& griglia, int riga, Data day) {
    const std::string name = utf8FromCp1252(griglia.TextMatrix(riga, 0));
    return name.empty() ? giornoInParole(day) : name + ", " + giornoInParole(day);
}

// The monthly planner.

std::string monthlySubject(const ControlliPlcal& controlli, Casella casella) {
    const auto day = mensile().giornoCella(controlli.calendario, casella);
    return day ? nameAndDay(controlli.Flxm, casella.riga, *day)
               : utf8FromCp1252(controlli.Flxm.TextMatrix(casella.riga, 0));
}

std::string monthlyContents(const ControlliPlcal& controlli, const modpl&, Casella casella) {
    return nomiTipi(controlli.Flxm.cella(casella).tipi);
}

std::string monthlyDetails(const ControlliPlcal& controlli, const modpl& sessione, Casella casella) {
    ValoriContatori all{};
    for (const ImpegnoCasella& impegno : impegniCasella(controlli, sessione, TipoPlanner::Mensile, casella)) {
        std::transform(all.begin(), all.end(), impegno.valori.begin(), all.begin(), std::plus());
    }
    return quantiPerTipo(all);
}

std::string monthlyColumn(const ControlliPlcal& controlli, int colonna) {
    const auto day = mensile().giornoCella(controlli.calendario, {controlli.Flxm.FixedRows(), colonna});
    return day ? giornoInParole(*day) : std::string(NessunGiorno);
}

// The daily planner.

std::string dailySubject(const ControlliPlcal& controlli, Casella casella) {
    return nameAndDay(controlli.flxg, casella.riga, controlli.calendario.Value()) + ", ore " +
           oraColonna(casella.colonna);
}

/// The kinds of the appointments that cover a quarter, and their number where they are several.
std::string dailyContents(const ControlliPlcal& controlli, const modpl&, Casella casella) {
    const auto bars = controlli.flxg.fasce(casella.riga);
    const auto count = std::count_if(bars.begin(), bars.end(),
                                     [&](const FasciaImpegno& bar) { return bar.copre(casella.colonna); });
    std::string kinds = nomiTipi(controlli.flxg.cella(casella).tipi);
    if (count < 2) {
        return count == 1 && kinds.empty() ? "impegno" : kinds;
    }
    return std::to_string(count) + " impegni" + (kinds.empty() ? "" : " (" + kinds + ")");
}

std::string appointment(const ImpegnoCasella& impegno) {
    const std::string what = quantiPerTipo(impegno.valori);
    return (what.empty() ? "impegno" : what) + " dalle " + oraColonna(impegno.colonne.prima) + " alle " +
           oraColonna(impegno.colonne.ultima + 1);
}

std::string dailyDetails(const ControlliPlcal& controlli, const modpl& sessione, Casella casella) {
    const auto all = impegniCasella(controlli, sessione, TipoPlanner::Giornaliero, casella);
    std::string text = all.size() < 2 ? "" : std::to_string(all.size()) + " impegni: ";
    for (std::size_t i = 0; i < all.size(); ++i) {
        text += (i == 0 ? "" : "; ") + appointment(all[i]);
    }
    return text;
}

std::string dailyColumn(const ControlliPlcal&, int colonna) {
    return "ore " + oraColonna(colonna);
}

// The yearly planner.

std::string yearlySubject(const ControlliPlcal& controlli, Casella casella) {
    const auto day = annuale().giornoCella(controlli.calendario, casella);
    return day ? giornoInParole(*day) : std::string();
}

bool isDone(Totale totale) {
    return totale == Totale::scadenzeConcluse || totale == Totale::praticheConcluse ||
           totale == Totale::altro;
}

/// What `write` makes of each total of the day that is more than 0, if anything.
template <typename Write>
std::string yearlyTotals(const ControlliPlcal& controlli, const modpl& sessione, Casella casella,
                         Write write) {
    if (!annuale().giornoCella(controlli.calendario, casella)) {
        return {};
    }
    const ValoriContatori valori = valoriGiorno(sessione.archivi, casella);
    std::vector<std::string> totals;
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        const double number = somma(valori, etichetta.totale);
        if (etichetta.annuale && !formatoTotale(number).empty()) {
            const std::string text = write(etichetta, number);
            text.empty() ? void() : totals.push_back(text);
        }
    }
    return join(totals);
}

std::string yearlyContents(const ControlliPlcal& controlli, const modpl& sessione, Casella casella) {
    return yearlyTotals(controlli, sessione, casella, [](const EtichettaTotale& etichetta, double number) {
        return std::string(etichetta.nomeInFrase) + " " + formatoTotale(number);
    });
}

std::string yearlyDetails(const ControlliPlcal& controlli, const modpl& sessione, Casella casella) {
    return yearlyTotals(controlli, sessione, casella, [](const EtichettaTotale& etichetta, double number) {
        return quanti(number, etichetta.singolare, etichetta.nomeInFrase);
    });
}

std::string yearlyName(const ControlliPlcal& controlli, const modpl& sessione, Casella casella) {
    return yearlyTotals(controlli, sessione, casella, [](const EtichettaTotale& etichetta, double) {
        return isDone(etichetta.totale) ? std::string() : std::string(etichetta.nomeInFrase);
    });
}

std::string yearlyColumn(const ControlliPlcal&, int colonna) {
    return std::string(NomiGiorni.at(static_cast<std::size_t>(colonna) % NomiGiorni.size())); // from Monday
}

struct FraseTipo {
    TipoPlanner tipo;
    std::string (*soggetto)(const ControlliPlcal&, Casella casella);
    std::string (*nome)(const ControlliPlcal&, const modpl&, Casella casella);
    std::string (*contenuto)(const ControlliPlcal&, const modpl&, Casella casella);
    std::string (*dettagli)(const ControlliPlcal&, const modpl&, Casella casella);
    std::string (*colonna)(const ControlliPlcal&, int colonna);
};
constexpr std::array FrasiTipi{
    FraseTipo{TipoPlanner::Mensile, monthlySubject, monthlyContents, monthlyContents, monthlyDetails,
              monthlyColumn},
    FraseTipo{TipoPlanner::Giornaliero, dailySubject, dailyContents, dailyContents, dailyDetails,
              dailyColumn},
    FraseTipo{TipoPlanner::Annuale, yearlySubject, yearlyName, yearlyContents, yearlyDetails, yearlyColumn}};

const FraseTipo& fraseTipo(TipoPlanner tipo) {
    return *std::find_if(FrasiTipi.begin(), FrasiTipi.end(),
                         [tipo](const FraseTipo& each) { return each.tipo == tipo; });
}

/// True when the visible grid is the kind's and the cell one of its data.
bool isShown(const ControlliPlcal& controlli, TipoPlanner tipo, Casella casella) {
    return controlli.tipoVisibile == tipo && controlli.griglia(tipo).isDataCell(casella);
}

} // namespace

std::string dataEstesa(Data data) {
    return std::string(NomiGiorni.at(static_cast<std::size_t>(weekdayOf(data) - 1))) + " " +
           std::to_string(dayOf(data)) + " " + meseInFrase(monthOf(data)) + " " +
           std::to_string(yearOf(data));
}

std::string giornoInParole(Data data) {
    const Festivita* holiday = trovaFestivo(dayOf(data) - 1, monthOf(data));
    return dataEstesa(data) + (holiday == nullptr ? "" : ", " + utf8FromCp1252(holiday->nome));
}

std::string nomePeriodo(const ControlliPlcal& controlli) {
    const RegoleTipo* tipo = regoleVisibili(controlli);
    if (tipo == nullptr) {
        return {};
    }
    const Data shown = controlli.calendario.Value();
    const std::string year = std::to_string(yearOf(shown));
    return tipo->unGiorno           ? giornoInParole(shown)
           : tipo->perCollaboratore ? meseInFrase(monthOf(shown)) + " " + year
                                    : year;
}

std::string oraColonna(int colonna) {
    constexpr int minutesPerQuarter = 15;
    const int quarter = colonna - 1;
    return std::to_string(quarter / QuartiOra) + ":" + twoDigits(quarter % QuartiOra * minutesPerQuarter);
}

std::string fraseCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                       Casella casella) {
    if (!isShown(controlli, tipo, casella)) {
        return {};
    }
    return withDetails(fraseTipo(tipo).soggetto(controlli, casella),
                       dettagliCella(controlli, sessione, tipo, casella));
}

std::string dettagliCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                          Casella casella) {
    return isShown(controlli, tipo, casella) ? fraseTipo(tipo).dettagli(controlli, sessione, casella)
                                             : std::string();
}

std::string contenutoCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                           Casella casella) {
    return isShown(controlli, tipo, casella) ? fraseTipo(tipo).contenuto(controlli, sessione, casella)
                                             : std::string();
}

std::string nomeCasella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                        Casella casella) {
    const Griglia& griglia = controlli.griglia(tipo);
    const auto [riga, colonna] = casella;
    if (controlli.tipoVisibile != tipo || riga < 0 || riga >= griglia.Rows() || colonna < 0 ||
        colonna >= griglia.Cols()) {
        return {};
    }
    if (riga < griglia.FixedRows()) {
        return colonna < Griglia::FixedCols() ? nomePeriodo(controlli)
                                              : fraseTipo(tipo).colonna(controlli, colonna);
    }
    const std::string caption = utf8FromCp1252(griglia.TextMatrix(riga, 0));
    if (caption.empty()) {
        return std::string(RigaLibera);
    }
    if (colonna < Griglia::FixedCols()) {
        return withDetails(caption, nomiTipi(griglia.cella(casella).tipi));
    }
    if (!regole(tipo).giornoCella(controlli.calendario, casella)) {
        return std::string(NessunGiorno);
    }
    const std::string held = fraseTipo(tipo).nome(controlli, sessione, casella);
    return held.empty() ? std::string(NessunImpegno) : held;
}

} // namespace planner
