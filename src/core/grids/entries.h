// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/layout.h"
#include "ports/runtime_errors.h"
#include "session/modpl.h"

namespace planner {

/// What the fills take from one appointment record.
struct Impegno {
    IndiceCollaboratore indice;
    Data data;
    ValoriContatori valori;
    unsigned tipi; // the kinds present: bit i stands for `TipiImpegno[i]`
    int immagine;  // the picture to show, 0 for none
};

/// Reads the record. Throws DateError or OverflowError.
Impegno leggiImpegno(const RigaPlanner& riga, const modpl& sessione, bool dettagliato);

/// Runs `fill` on every record before the table's last element, which lies beyond the file's end, that
/// `wanted` takes. A record that raises a run-time error is noted and the next one follows.
template <typename Wanted, typename Fill>
EsitoRiempimento forEachRecord(const Archivi& archivi, Wanted wanted, Fill fill) {
    EsitoRiempimento esito;
    for (int i = 0; i < archivi.NumRighe; ++i) {
        const RigaPlanner& riga = archivi.RighePlanner.at(static_cast<std::size_t>(i));
        try {
            if (wanted(riga)) {
                fill(riga);
            }
        } catch (const RuntimeError& error) {
            esito.annota(error.what());
        }
    }
    return esito;
}

} // namespace planner
