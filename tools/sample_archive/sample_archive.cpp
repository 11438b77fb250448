// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/sample_archive.h"

#include "platform/system/paths.h"
#include "ports/runtime_errors.h"
#include "sample_archive/hours.h"
#include "sample_archive/lines.h"
#include "sample_archive/office.h"
#include "sample_archive/year_marks.h"

#include <fstream>

namespace planner {

namespace {

template <typename Record>
void writeRecords(const std::filesystem::path& path, const std::vector<Record>& records) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(records.data()),
               static_cast<std::streamsize>(records.size() * sizeof(Record)));
    file.close();
    if (!file) {
        throw FileError("impossibile scrivere il file " + textOf(path));
    }
}

} // namespace

ArchivioCampione creaArchivioCampione(const OpzioniCampione& opzioni) {
    Ufficio ufficio = creaUfficio(opzioni);
    ArchivioCampione archivio;
    archivio.righe = creaRighe(opzioni, ufficio);
    archivio.mesi = creaMesi(opzioni.anno, archivio.righe);
    archivio.grafici = creaGrafici(opzioni, ufficio);
    archivio.collaboratori = std::move(ufficio.collaboratori);
    return archivio;
}

void scriviArchivioCampione(const ArchivioCampione& archivio, const std::filesystem::path& cartella) {
    writeRecords(cartella / "wrighipl", archivio.righe);
    writeRecords(cartella / "wplanner", archivio.mesi);
    writeRecords(cartella / "wcollab", archivio.collaboratori);
    writeRecords(cartella / "wgrafici", archivio.grafici);
}

} // namespace planner
