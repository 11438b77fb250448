// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"
#include "host/transit_request.h"
#include "run_dump.h"
#include "support/builders.h"
#include "support/temp_folder.h"

#include <optional>
#include <string_view>
#include <vector>

namespace planner::test {

/// A request for one kind of planner that shows 15 March 2006, in the period 1 March to 30 June 2006.
TransitRequest request(std::string_view kind);

/// One record of appointments, date as yyyymmdd, all counters "00000" and no hours.
RigaPlanner entry(std::string_view codice, std::string_view yyyymmdd);

/// The counter `number`, 1 to 11, gets the value.
RigaPlanner& setCounter(RigaPlanner& riga, std::size_t number, std::string_view value);

/// Start as hhmm and length as seven characters.
RigaPlanner& setHours(RigaPlanner& riga, std::string_view hhmm, std::string_view durata);

/// An office of three people with a few entries in March 2006, in a folder of its own.
class SmallOffice {
public:
    SmallOffice();

    TransitRequest richiesta = request("M");
    std::vector<Collaboratore> collaboratori;
    std::vector<RigaPlanner> righe;
    std::array<MesePlanner, 12> mesi;
    std::vector<RigaGrafico> grafici;

    /// The folder, with a separator at its end, as it stands in messages.
    std::string folder() const { return m_folder.path() + "/"; }
    std::string transitPath() const { return folder() + "transito"; }

    /// Writes the transit file and the archives.
    void write() const;
    /// Writes a file of the folder.
    void writeFile(std::string_view name, std::string_view bytes) const;
    void removeFile(std::string_view name) const;

    /// Writes everything and runs planner-dump on it, 20 November 2025 being today; the test fails when the
    /// run does.
    nlohmann::ordered_json dump() const;
    /// The same on the files as they stand.
    nlohmann::ordered_json dumpAsItIs() const;
    /// Writes everything and runs planner-dump with a chart, `index` being the staff member selected.
    nlohmann::ordered_json dumpWithChart(std::string_view index) const;
    nlohmann::ordered_json dumpWithChartAsItIs(std::string_view index) const;

private:
    nlohmann::ordered_json run(std::vector<std::string> arguments) const;

    TempFolder m_folder;
};

/// The listed cell at row and column, or nothing.
std::optional<nlohmann::ordered_json> findCell(const nlohmann::ordered_json& dump, int row, int column);

} // namespace planner::test
