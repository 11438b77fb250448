// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/request_dates.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"

namespace planner {

namespace {

std::optional<Data> readDate(std::string_view text, std::string_view name, MessageBoxes& messaggi) {
    const std::string_view digits = trim(text);
    if (digits.empty() || digits == "00000000") {
        return std::nullopt;
    }
    const auto data = parseDate(digits);
    if (!data) {
        messaggi.critical("Richiesta non valida: " + std::string(name) + " \"" + utf8FromCp1252(digits) +
                          "\" non è una data.");
    }
    return data;
}

Data firstOfYear(Data data) {
    return {data.year(), std::chrono::January, std::chrono::day{1}};
}

Data lastOfYear(Data data) {
    return {data.year(), std::chrono::December, std::chrono::day{31}};
}

} // namespace

DateRichiesta readRequestDates(std::string_view giorno, std::string_view startdate, std::string_view enddate,
                               Data oggi, MessageBoxes& messaggi) {
    const auto day = readDate(giorno, "il giorno da mostrare", messaggi);
    const auto start = readDate(startdate, "la data iniziale", messaggi);
    auto end = readDate(enddate, "la data finale", messaggi);
    if (start && end && *end < *start) {
        messaggi.critical("Richiesta non valida: la data finale viene prima della data iniziale.");
        end.reset();
    }
    DateRichiesta dates{};
    dates.mostrata = day ? *day : start ? *start : oggi;
    dates.inizio = start ? *start : firstOfYear(end.value_or(dates.mostrata));
    dates.fine = end ? *end : lastOfYear(start.value_or(dates.mostrata));
    return dates;
}

} // namespace planner
