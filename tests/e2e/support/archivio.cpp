// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/archivio.h"

#include "sample_archive/sample_archive.h"
#include "support/builders.h"

#include <filesystem>

namespace planner::e2e {

Archivio::Archivio() {
    scriviArchivioCampione(creaArchivioCampione({}), path());
}

void Archivio::writeOffice(int anno, int collaboratori) const {
    OpzioniCampione opzioni;
    opzioni.anno = anno;
    opzioni.collaboratori = collaboratori;
    scriviArchivioCampione(creaArchivioCampione(opzioni), path());
}

void Archivio::remove(std::string_view name) const {
    std::filesystem::remove(path(name));
}

void Archivio::moveInto(std::string_view name) const {
    m_folder.makeFolder(name);
    for (const char* file : {"wrighipl", "wplanner", "wcollab", "wgrafici"}) {
        std::filesystem::rename(path(file), path(name) + "/" + file);
    }
}

void Archivio::writeStaff(const std::vector<std::string>& names) const {
    std::string bytes;
    int number = 0;
    for (const std::string& name : names) {
        const std::string code = std::to_string(++number);
        bytes += test::bytesOf(test::collaboratore(std::string(2 - code.size(), '0') + code, name, name));
    }
    write("wcollab", bytes);
}

} // namespace planner::e2e
