// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/sentences.h"

#include "archive/cp1252.h"
#include "engine/kinds/kind.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/yearly_day.h"

#include <algorithm>
#include <array>
#include <vector>

namespace planner {

namespace {

constexpr std::array<std::string_view, 7> NomiGiorni{"domenica", "lunedì",  "martedì", "mercoledì",
                                                     "giovedì",  "venerdì", "sabato"};

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
    return name.empty() ? dataEstesa(day) : name + ", " + dataEstesa(day);
}

std::string monthlySubject(const ControlliPlcal& controlli, Casella casella) {
    const auto day = mensile().giornoCella(controlli.calendario, casella);
    return day ? nameAndDay(controlli.Flxm, casella.riga, *day)
               : utf8FromCp1252(controlli.Flxm.TextMatrix(casella.riga, 0));
}

std::string monthlyContents(const ControlliPlcal& controlli, const modpl&, Casella casella) {
    return nomiTipi(controlli.Flxm.cella(casella).tipi);
}

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
        return kinds;
    }
    return std::to_string(count) + " impegni" + (kinds.empty() ? "" : " (" + kinds + ")");
}

std::string yearlySubject(const ControlliPlcal& controlli, Casella casella) {
    const auto day = annuale().giornoCella(controlli.calendario, casella);
    return day ? dataEstesa(*day) : std::string();
}

std::string yearlyContents(const ControlliPlcal& controlli, const modpl& sessione, Casella casella) {
    if (!annuale().giornoCella(controlli.calendario, casella)) {
        return {};
    }
    const ValoriContatori valori = valoriGiorno(sessione.archivi, casella);
    std::vector<std::string> totals;
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        const std::string number = formatoTotale(somma(valori, etichetta.totale));
        if (etichetta.annuale && !number.empty()) {
            totals.push_back(std::string(etichetta.nomeInFrase) + " " + number);
        }
    }
    return join(totals);
}

struct FraseTipo {
    TipoPlanner tipo;
    std::string (*soggetto)(const ControlliPlcal&, Casella casella);
    std::string (*contenuto)(const ControlliPlcal&, const modpl&, Casella casella);
};
constexpr std::array FrasiTipi{FraseTipo{TipoPlanner::Mensile, monthlySubject, monthlyContents},
                               FraseTipo{TipoPlanner::Giornaliero, dailySubject, dailyContents},
                               FraseTipo{TipoPlanner::Annuale, yearlySubject, yearlyContents}};

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
                       contenutoCella(controlli, sessione, tipo, casella));
}

std::string contenutoCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                           Casella casella) {
    return isShown(controlli, tipo, casella) ? fraseTipo(tipo).contenuto(controlli, sessione, casella)
                                             : std::string();
}

std::string fraseNome(const ControlliPlcal& controlli, TipoPlanner tipo, int riga) {
    if (!isShown(controlli, tipo, {riga, Griglia::FixedCols()})) {
        return {};
    }
    const Griglia& griglia = controlli.griglia(tipo);
    return withDetails(utf8FromCp1252(griglia.TextMatrix(riga, 0)), nomiTipi(griglia.cella(riga, 0).tipi));
}

} // namespace planner
