// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "planner_host/host_options.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace planner {

/// The folder with the archives and the transit file: a fresh private one, removed at the end, or the user's.
/// Every failure throws HostError with exit code 3.
class ArchiveFolder {
public:
    explicit ArchiveFolder(const OpzioniHost& opzioni);
    ~ArchiveFolder();
    ArchiveFolder(const ArchiveFolder&) = delete;
    ArchiveFolder& operator=(const ArchiveFolder&) = delete;

    const std::filesystem::path& cartella() const { return m_cartella; }

    /// Makes the sample archive of the year, or nothing when it is there or the archives are the user's own.
    void prepara(int anno);
    /// What the folder now holds, in Italian.
    const std::string& descrizione() const { return m_descrizione; }

    /// The name, in UTF-8, of the staff member with this code; empty when there is none.
    std::string cercaNome(std::string_view codice) const;

private:
    void openFolder(const std::filesystem::path& asked);
    void makeTemporaryFolder();
    void refuseForeignArchives() const;

    std::filesystem::path m_cartella;
    OpzioniCampione m_opzioni;
    bool m_campione;        // the archives are made here
    bool m_rimuovi = false; // the folder goes at the end
    int m_anno = 0;         // year of the sample archive in the folder, 0 for none yet
    std::string m_descrizione;
};

} // namespace planner
