// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/lettura.h"

#include "engine/kinds/kind.h"
#include "forms/plcal/impegni_casella.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/sentences.h"
#include "forms/plcal/yearly_day.h"
#include "session/calendar_rules.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace planner {

namespace {

/// A total, and the part of it that is done.
struct TotaleLetto {
    Totale totale;
    std::string_view singolare, plurale;
    std::optional<Totale> concluse;
};
constexpr std::array TotaliLetti{
    TotaleLetto{Totale::scadenze, "scadenza", "scadenze", Totale::scadenzeConcluse},
    TotaleLetto{Totale::pratiche, "pratica", "pratiche", Totale::praticheConcluse},
    TotaleLetto{Totale::impegniVari, "impegno vario", "impegni vari", std::nullopt},
    TotaleLetto{Totale::noteRiservate, "nota riservata", "note riservate", std::nullopt}};

/// The totals as `of` gives them, in words.
template <typename Of>
std::string inWords(Of of) {
    std::string text;
    for (const TotaleLetto& each : TotaliLetti) {
        const double number = of(each.totale);
        if (formatoTotale(number).empty()) {
            continue;
        }
        text += (text.empty() ? "" : ", ") + quanti(number, each.singolare, each.plurale);
        const std::string done = each.concluse ? formatoTotale(of(*each.concluse)) : std::string();
        if (!done.empty()) {
            text += " (" + done + (done == "1" ? " conclusa)" : " concluse)");
        }
    }
    return text.empty() ? "nessun impegno" : text;
}

/// The totals of every day that the yearly table marks.
std::string yearInWords(const ControlliPlcal& controlli, const modpl& sessione) {
    std::vector<std::string> totals;
    const Griglia& griglia = controlli.flxa;
    std::array<double, EtichetteTotali.size()> sums{};
    for (int riga = griglia.FixedRows(); riga < griglia.Rows(); ++riga) {
        for (int colonna = Griglia::FixedCols(); colonna < griglia.Cols(); ++colonna) {
            if (!annuale().giornoCella(controlli.calendario, {riga, colonna})) {
                continue;
            }
            const ValoriContatori valori = valoriGiorno(sessione.archivi, {riga, colonna});
            for (std::size_t i = 0; i < sums.size(); ++i) {
                sums[i] += EtichetteTotali[i].annuale ? somma(valori, EtichetteTotali[i].totale) : 0;
            }
        }
    }
    std::string text;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        if (!formatoTotale(sums[i]).empty()) {
            text += (text.empty() ? "" : ", ") +
                    quanti(sums[i], EtichetteTotali[i].singolare, EtichetteTotali[i].nomeInFrase);
        }
    }
    return text.empty() ? "nessun impegno" : text;
}

/// The day or the hour that a cell of the visible grid stands for.
std::string when(const ControlliPlcal& controlli, const RegoleTipo& tipo, Casella casella) {
    if (tipo.unGiorno) {
        return "ore " + oraColonna(casella.colonna);
    }
    const auto giorno = tipo.giornoCella(controlli.calendario, casella);
    return giorno ? giornoInParole(*giorno) : std::string();
}

/// The first column after the cursor at which something stands; in the daily grid, begins.
std::optional<int> nextColumn(const ControlliPlcal& controlli, const modpl& sessione, const RegoleTipo& tipo,
                              Casella cursore) {
    const Griglia& griglia = controlli.griglia(tipo.tipo);
    const auto bars = griglia.fasce(cursore.riga);
    for (int colonna = cursore.colonna + 1; colonna < griglia.Cols(); ++colonna) {
        const bool begins = std::any_of(bars.begin(), bars.end(),
                                        [&](const FasciaImpegno& bar) { return bar.prima == colonna; });
        const bool holds = !tipo.unGiorno &&
                           !contenutoCella(controlli, sessione, tipo.tipo, {cursore.riga, colonna}).empty();
        if (begins || holds) {
            return colonna;
        }
    }
    return std::nullopt;
}

std::string nextInWords(const ControlliPlcal& controlli, const modpl& sessione, const RegoleTipo& tipo,
                        Casella cursore) {
    const auto colonna = nextColumn(controlli, sessione, tipo, cursore);
    if (!colonna) {
        return "Poi nessun altro impegno.";
    }
    const Casella next{cursore.riga, *colonna};
    return "Poi " + when(controlli, tipo, next) + ": " + dettagliCella(controlli, sessione, tipo.tipo, next) +
           ".";
}

} // namespace

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

std::string totaliRiga(const ControlliPlcal& controlli, const modpl& sessione, int riga) {
    const RegoleTipo* tipo = regoleVisibili(controlli);
    if (tipo == nullptr) {
        return {};
    }
    if (!tipo->perCollaboratore) {
        return yearInWords(controlli, sessione);
    }
    const IndiceCollaboratore indice = indiceDiRiga(controlli.griglia(tipo->tipo), riga);
    const bool deadlines = !sessione.varianteRidotta();
    return inWords([&](Totale totale) -> double {
        const bool hidden = !deadlines && (totale == Totale::scadenze || totale == Totale::scadenzeConcluse);
        return hidden || !indice.presente() ? 0 : sessione.TotaliImpegni.at(indice, totale);
    });
}

std::string fraseLettura(const ControlliPlcal& controlli, const modpl& sessione) {
    const RegoleTipo* tipo = regoleVisibili(controlli);
    if (tipo == nullptr) {
        return {};
    }
    const Casella cursore = controlli.griglia(tipo->tipo).corrente();
    const std::string cell = fraseCella(controlli, sessione, tipo->tipo, cursore);
    const std::string name = nomeCasella(controlli, sessione, tipo->tipo, cursore);
    return (cell.empty() ? name : cell) + ". Totali di " + nomePeriodo(controlli) + ": " +
           totaliRiga(controlli, sessione, cursore.riga) + ". " +
           nextInWords(controlli, sessione, *tipo, cursore);
}

} // namespace planner
