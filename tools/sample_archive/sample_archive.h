// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace planner {

inline constexpr int CollaboratoriMassimi = 1000;
inline constexpr int RigheMassime = 32'767; // the planner counts records in 16 bits

/// What the sample archive is made from; equal options give equal bytes.
struct OpzioniCampione {
    int anno = 2006;        // 1753 to 9999
    int collaboratori = 12; // 1 to CollaboratoriMassimi
    int righe = 0;          // lines of `wrighipl`, at most RigheMassime; 0: as many as suit the staff
    std::uint32_t seme = 1;
};

/// The records of an archive folder, file by file.
struct ArchivioCampione {
    std::vector<RigaPlanner> righe;           // wrighipl
    std::vector<MesePlanner> mesi;            // wplanner, always 12
    std::vector<Collaboratore> collaboratori; // wcollab
    std::vector<RigaGrafico> grafici;         // wgrafici
};

/// A year of deadlines, case files, appointments, notes and hours in a professional office. The lines are
/// always more than the staff. Throws std::invalid_argument when an option lies outside its range.
ArchivioCampione creaArchivioCampione(const OpzioniCampione& opzioni);

/// Writes the four files into an existing folder, replacing those of the same names. Throws FileError.
void scriviArchivioCampione(const ArchivioCampione& archivio, const std::filesystem::path& cartella);

} // namespace planner
