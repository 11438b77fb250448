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

std::string kindsPresent(const Cella& cella) {
    std::vector<std::string> names;
    for (const TipoImpegno tipo : OrdineTipi) {
        if ((cella.tipi & insieme(tipo)) != 0) {
            names.emplace_back(descrizione(tipo).nome);
        }
    }
    return join(names);
}

std::string withDetails(const std::string& sentence, const std::string& details) {
    return details.empty() ? sentence : sentence + ": " + details;
}

/// What the row is called, and the day.
std::string nameAndDay(const Griglia& griglia, int riga, Data day) {
    const std::string name = utf8FromCp1252(griglia.TextMatrix(riga, 0));
    return name.empty() ? dataEstesa(day) : name + ", " + dataEstesa(day);
}

std::string monthlySentence(const ControlliPlcal& controlli, const modpl&, Casella casella) {
    const Griglia& Flxm = controlli.Flxm;
    const auto day = mensile().giornoCella(controlli.calendario, casella);
    return day ? withDetails(nameAndDay(Flxm, casella.riga, *day), kindsPresent(Flxm.cella(casella)))
               : utf8FromCp1252(Flxm.TextMatrix(casella.riga, 0));
}

/// The kinds of the appointments that cover a quarter, and their number where they are several.
std::string appointmentsAt(const Griglia& flxg, Casella casella) {
    const auto bars = flxg.fasce(casella.riga);
    const auto count = std::count_if(bars.begin(), bars.end(),
                                     [&](const FasciaImpegno& bar) { return bar.copre(casella.colonna); });
    std::string kinds = kindsPresent(flxg.cella(casella));
    if (count < 2) {
        return kinds;
    }
    return std::to_string(count) + " impegni" + (kinds.empty() ? "" : " (" + kinds + ")");
}

std::string dailySentence(const ControlliPlcal& controlli, const modpl&, Casella casella) {
    const int quarter = casella.colonna - 1;
    const std::string time = std::to_string(quarter / 4) + ":" + twoDigits(quarter % 4 * 15);
    return withDetails(nameAndDay(controlli.flxg, casella.riga, controlli.calendario.Value()) + ", ore " +
                           time,
                       appointmentsAt(controlli.flxg, casella));
}

std::string yearlySentence(const ControlliPlcal& controlli, const modpl& sessione, Casella casella) {
    const auto day = annuale().giornoCella(controlli.calendario, casella);
    if (!day) {
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
    return withDetails(dataEstesa(*day), join(totals));
}

struct FraseTipo {
    TipoPlanner tipo;
    std::string (*frase)(const ControlliPlcal&, const modpl&, Casella casella);
};
constexpr std::array FrasiTipi{FraseTipo{TipoPlanner::Mensile, monthlySentence},
                               FraseTipo{TipoPlanner::Giornaliero, dailySentence},
                               FraseTipo{TipoPlanner::Annuale, yearlySentence}};

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

std::string fraseCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                       Casella casella) {
    if (!isShown(controlli, tipo, casella)) {
        return {};
    }
    return std::find_if(FrasiTipi.begin(), FrasiTipi.end(),
                        [&](const FraseTipo& each) { return each.tipo == tipo; })
        ->frase(controlli, sessione, casella);
}

std::string fraseNome(const ControlliPlcal& controlli, TipoPlanner tipo, int riga) {
    if (!isShown(controlli, tipo, {riga, Griglia::FixedCols()})) {
        return {};
    }
    const Griglia& griglia = controlli.griglia(tipo);
    return withDetails(utf8FromCp1252(griglia.TextMatrix(riga, 0)), kindsPresent(griglia.cella(riga, 0)));
}

} // namespace planner
