// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/sentences.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/yearly_day.h"

#include <array>
#include <vector>

namespace planner {

namespace {

constexpr std::array<std::string_view, 7> NomiGiorni{"domenica", "lunedì",  "martedì", "mercoledì",
                                                     "giovedì",  "venerdì", "sabato"};

/// The kinds in the order in which sentences name them, by their digit in a picture key.
constexpr std::array OrdineTipi{'3', '4', '2', '1'};

std::string lowerFirst(std::string_view text) {
    std::string lower(text);
    lower.front() = static_cast<char>(lower.front() - 'A' + 'a');
    return lower;
}

std::string join(const std::vector<std::string>& parts) {
    std::string joined;
    for (const std::string& part : parts) {
        joined += joined.empty() ? part : ", " + part;
    }
    return joined;
}

std::string kindsPresent(const Cella& cella) {
    const std::string_view key = chiaveImmagine(cella.tipi);
    std::vector<std::string> names;
    for (const char digit : OrdineTipi) {
        if (key.find(digit) != std::string_view::npos) {
            names.emplace_back(TipiImpegno.at(static_cast<std::size_t>(digit - '1')).nome);
        }
    }
    return join(names);
}

std::string withDetails(std::string sentence, const std::string& details) {
    return details.empty() ? sentence : sentence + ": " + details;
}

/// The day that a text in the grid names, in a month of the shown year; nothing for an empty text.
std::optional<Data> dayOfText(std::string_view text, int month, const Calendario& calendario) {
    return text.empty() ? std::nullopt
                        : makeDate(calendario.Year(), month, static_cast<int>(numericValue(text)));
}

std::string monthlySentence(const ControlliPlcal& controlli, int riga, int colonna) {
    const Griglia& Flxm = controlli.Flxm;
    const std::string name = utf8FromCp1252(Flxm.TextMatrix(riga, 0));
    const auto day =
        dayOfText(Flxm.TextMatrix(1, colonna), controlli.calendario.Month(), controlli.calendario);
    if (!day || name.empty()) {
        return name;
    }
    return withDetails(name + ", " + dataEstesa(*day), kindsPresent(Flxm.cella(riga, colonna)));
}

std::string dailySentence(const ControlliPlcal& controlli, int riga, int colonna) {
    const std::string name = utf8FromCp1252(controlli.flxg.TextMatrix(riga, 0));
    if (name.empty()) {
        return name;
    }
    const int quarter = colonna - 1;
    const std::string time = std::to_string(quarter / 4) + ":" + twoDigits(quarter % 4 * 15);
    return withDetails(name + ", " + dataEstesa(controlli.calendario.Value()) + ", ore " + time,
                       kindsPresent(controlli.flxg.cella(riga, colonna)));
}

std::string yearlySentence(const ControlliPlcal& controlli, const modpl& sessione, int riga, int colonna) {
    const auto day = dayOfText(controlli.flxa.TextMatrix(riga, colonna), riga, controlli.calendario);
    if (!day) {
        return {};
    }
    std::vector<std::string> totals;
    for (const TotaleGiorno& totale : totaliGiorno(sessione.archivi, riga, colonna)) {
        if (!formatoTotale(totale.valore).empty()) {
            totals.push_back(std::string(totale.campo->nome) + " " + formatoTotale(totale.valore));
        }
    }
    return withDetails(dataEstesa(*day), join(totals));
}

} // namespace

std::string dataEstesa(Data data) {
    return std::string(NomiGiorni.at(static_cast<std::size_t>(weekdayOf(data) - 1))) + " " +
           std::to_string(dayOf(data)) + " " + lowerFirst(nomeMese(monthOf(data))) + " " +
           std::to_string(yearOf(data));
}

std::string fraseCella(const ControlliPlcal& controlli, const modpl& sessione, int riga, int colonna) {
    if (!controlli.tipoVisibile || riga < 0 || colonna < 1) {
        return {};
    }
    switch (*controlli.tipoVisibile) {
    case TipoPlanner::Mensile:
        return monthlySentence(controlli, riga, colonna);
    case TipoPlanner::Giornaliero:
        return dailySentence(controlli, riga, colonna);
    case TipoPlanner::Annuale:
        return yearlySentence(controlli, sessione, riga, colonna);
    }
    return {};
}

} // namespace planner
