// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/archive_folder.h"

#include "archive/readers.h"
#include "planner_host/errors.h"
#include "planner_host/readable_text.h"
#include "platform/system/paths.h"
#include "platform/system/system_file_system.h"
#include "platform/system/this_process.h"
#include "ports/runtime_errors.h"
#include "session/staff.h"

#include <array>
#include <fstream>
#include <system_error>

namespace planner {

namespace {

/// Tells archives made here from a host's own, which must never be overwritten.
constexpr std::string_view NomeContrassegno = "campione.txt";

constexpr std::array<std::string_view, 4> NomiArchivi{"wrighipl", "wplanner", "wcollab", "wgrafici"};

[[noreturn]] void fail(const std::filesystem::path& path, const std::string& cause) {
    throw HostError(CodiceUscita::ErroreFile, textOf(path) + ": " + cause);
}

std::string describe(const OpzioniCampione& opzioni, std::size_t lines) {
    return "campione " + std::to_string(opzioni.anno) + ", " + std::to_string(opzioni.collaboratori) +
           " collaboratori, " + std::to_string(lines) + " righe di impegni, seme " +
           std::to_string(opzioni.seme);
}

/// A full path without detours: the planner reads doubled separators in its own way.
std::filesystem::path fullPath(const std::filesystem::path& path) {
    std::filesystem::path full = std::filesystem::absolute(path).lexically_normal();
    return full.has_filename() ? full : full.parent_path();
}

} // namespace

ArchiveFolder::ArchiveFolder(const OpzioniHost& opzioni)
    : m_opzioni(opzioni.opzioniCampione),
      m_campione(opzioni.archivio.empty() || opzioni.campione || opzioni.soloArchivio) {
    if (opzioni.archivio.empty()) {
        makeTemporaryFolder();
        m_rimuovi = !opzioni.conserva;
    } else {
        openFolder(opzioni.archivio);
    }
}

ArchiveFolder::~ArchiveFolder() {
    if (m_rimuovi) {
        std::error_code ignored;
        std::filesystem::remove_all(m_cartella, ignored);
    }
}

void ArchiveFolder::openFolder(const std::filesystem::path& asked) {
    m_cartella = fullPath(asked);
    m_descrizione = "archivi dell'utente, lasciati come sono";
    std::error_code error;
    if (m_campione) {
        std::filesystem::create_directories(m_cartella, error);
    }
    if (error || !std::filesystem::is_directory(m_cartella, error)) {
        fail(m_cartella, error ? error.message() : "non è una cartella");
    }
}

void ArchiveFolder::makeTemporaryFolder() {
    try {
        m_cartella = fullPath(planner::makeTemporaryFolder("planner-host-"));
    } catch (const std::filesystem::filesystem_error& error) {
        fail(error.path1(), "impossibile creare la cartella temporanea");
    }
}

void ArchiveFolder::refuseForeignArchives() const {
    if (std::filesystem::exists(m_cartella / NomeContrassegno)) {
        return;
    }
    for (const std::string_view name : NomiArchivi) {
        if (std::filesystem::exists(m_cartella / name)) {
            fail(m_cartella / name, "è di un archivio che planner-host non ha fatto: non lo sovrascrive");
        }
    }
}

void ArchiveFolder::prepara(int anno) {
    if (!m_campione || anno == m_anno) {
        return;
    }
    refuseForeignArchives();
    m_opzioni.anno = anno;
    const ArchivioCampione archivio = creaArchivioCampione(m_opzioni);
    m_descrizione = describe(m_opzioni, archivio.righe.size());
    std::ofstream contrassegno(m_cartella / NomeContrassegno);
    contrassegno << m_descrizione << "\n" << std::flush;
    if (!contrassegno) {
        fail(m_cartella / NomeContrassegno, "impossibile scrivere il file");
    }
    try {
        scriviArchivioCampione(archivio, m_cartella);
    } catch (const FileError& error) {
        throw HostError(CodiceUscita::ErroreFile, error.what());
    }
    m_anno = anno;
}

std::string ArchiveFolder::cercaNome(std::string_view codice) const {
    Archivi archivi;
    try {
        readCollaboratori(SystemFileSystem(), textOf(m_cartella / "wcollab"), archivi);
    } catch (const RuntimeError&) {
        return {}; // without a readable staff file nobody has a name
    }
    const Collaboratore* found =
        trovaCollaboratore(archivi.Collaboratori, IndiceCodici(archivi.Collaboratori).trova(codice));
    return found == nullptr ? std::string{} : testoLeggibile(found->nome.trimmedRight());
}

} // namespace planner
