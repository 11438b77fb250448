// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/entries.h"

namespace planner {

int immagineImpegno(const ValoriContatori& valori, bool dettagliato) {
    const unsigned tipi = tipiPresenti(valori);
    if (tipi == 0) {
        return 0;
    }
    return dettagliato ? immagineTipi(tipi) : ImmaginePresenza;
}

Impegno leggiImpegno(const RigaPlanner& riga, const modpl& sessione, bool dettagliato) {
    Impegno impegno{sessione.indiceCodici.IndCollaboratore(riga.codice.view()),
                    dateFromTexts(riga.giorno.view(), riga.mese.view(), riga.anno.view()),
                    valoriContatori(riga), /*immagine=*/0};
    impegno.immagine = immagineImpegno(impegno.valori, dettagliato);
    return impegno;
}

} // namespace planner
