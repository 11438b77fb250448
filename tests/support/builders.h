// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"
#include "host/transit_request.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace planner::test {

/// A counter of an appointment record, 1 to 11, and its text.
using Contatore = std::pair<std::size_t, std::string_view>;

/// An appointment record of a staff member on a day given as yyyymmdd, without start hour, with the given
/// counters; everything else is blank.
RigaPlanner riga(std::string_view codice, std::string_view giorno,
                 std::initializer_list<Contatore> contatori = {});

/// The same record with start (hour, minute) and length (five characters of hours, two of minutes).
RigaPlanner conOrario(RigaPlanner riga, std::string_view ora, std::string_view minuto,
                      std::string_view durata);

Collaboratore collaboratore(std::string_view codice, std::string_view nome, std::string_view mansione = {});

RigaGrafico rigaGrafico(std::string_view codice, std::string_view giorno, std::string_view ore);

/// The twelve months of a year, with "*" on the given cells (month 1 to 12, cell 1 to 42).
std::vector<MesePlanner> annoPlanner(std::string_view anno,
                                     std::initializer_list<std::pair<int, int>> segnati = {});

/// A monthly request of March 2006 without an incoming day, as a host would write it.
TransitRequest richiesta(std::string_view tipoplanner = "M");

template <typename Record>
std::string bytesOf(const Record& record) {
    return {reinterpret_cast<const char*>(&record), sizeof(Record)};
}

template <typename Record>
std::string bytesOf(const std::vector<Record>& records) {
    std::string bytes;
    for (const Record& record : records) {
        bytes += bytesOf(record);
    }
    return bytes;
}

/// The record that the bytes, one for each of its own, make up.
template <typename Record>
Record recordOf(std::string_view bytes) {
    Record record;
    bytes.copy(reinterpret_cast<char*>(&record), sizeof(Record));
    return record;
}

} // namespace planner::test
