// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/request_dates.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "session/period_moves.h"

#include <vector>

namespace planner {

namespace {

using Guai = std::vector<std::string>;

std::optional<Data> readDate(std::string_view text, std::string_view name, Guai& guai) {
    if (text.find_first_not_of(" 0") == std::string_view::npos) {
        return std::nullopt;
    }
    const auto data = parseDate(trim(text));
    if (!data) {
        guai.push_back(std::string(name) + " \"" + utf8FromCp1252(trim(text)) + "\" non è una data");
    }
    return data;
}

std::string sentence(const Guai& guai) {
    std::string text;
    for (const std::string& guaio : guai) {
        text += (text.empty() ? "Richiesta non valida: " : "; ") + guaio;
    }
    return text.empty() ? text : text + ".";
}

} // namespace

DateRichiesta readRequestDates(std::optional<TipoPlanner> tipo, const DateInArrivo& testi, Data oggi) {
    Guai guai;
    const auto day = readDate(testi.giorno, "il giorno da mostrare", guai);
    const auto start = readDate(testi.startdate, "la data iniziale", guai);
    auto end = readDate(testi.enddate, "la data finale", guai);
    if (start && end && *end < *start) {
        guai.emplace_back("la data finale viene prima della data iniziale");
        end.reset();
    }
    const Data prima = start ? *start : end ? wholeYear(*end).inizio : oggi;
    const Data mostrata = day ? *day : prima;
    const Data inizio = start || end ? prima : wholeYear(mostrata).inizio;
    return {tipo ? regole(*tipo).giornoDaMostrare(mostrata, inizio) : mostrata,
            {inizio, end ? *end : wholeYear(inizio).fine},
            tipo ? sentence(guai) : std::string()};
}

} // namespace planner
