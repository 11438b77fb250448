// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"
#include "support/temp_folder.h"

#include <string>
#include <string_view>
#include <vector>

namespace planner::e2e {

/// The host's archive folder: a year of a small office (2006), the transit file and the markers.
class Archivio {
public:
    static constexpr std::string_view Transit = "TRANSIT.DAT";
    static constexpr std::string_view LockPl = "LockPl.lck";
    static constexpr std::string_view TvPlaOK = "TvPlaOK.lck";

    /// Writes the four archive files; there is no transit file yet.
    Archivio();

    /// The full path of `name` in the folder; the folder's own path without a name.
    std::string path(std::string_view name = {}) const { return m_folder.path(name); }
    std::string transitPath() const { return path(Transit); }

    void writeTransit(std::string_view bytes) const { write(Transit, bytes); }
    std::string transit() const { return read(Transit); }

    void write(std::string_view name, std::string_view bytes) const { m_folder.write(name, bytes); }
    std::string read(std::string_view name) const { return m_folder.read(name); }
    bool exists(std::string_view name) const { return m_folder.exists(name); }
    void putMarker(std::string_view name) const { write(name, {}); }
    void remove(std::string_view name) const;
    /// Moves the archive files into a new folder of that name, inside this one.
    void moveInto(std::string_view name) const;
    /// Writes the four archive files anew: a year of an office of that many.
    void writeOffice(int anno, int collaboratori) const;
    /// Makes staff members of these names the only ones; their codes are "01", "02", ...
    void writeStaff(const std::vector<std::string>& names) const;

    const test::TempFolder& folder() const { return m_folder; }

private:
    test::TempFolder m_folder;
};

} // namespace planner::e2e
