// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/entries.h"

namespace planner {

Impegno leggiImpegno(const RigaPlanner& riga, const modpl& sessione, bool dettagliato) {
    Impegno impegno{sessione.indiceCodici.IndCollaboratore(riga.codice.view()),
                    dateFromTexts(riga.giorno.view(), riga.mese.view(), riga.anno.view()),
                    valoriContatori(riga), /*tipi=*/0, /*immagine=*/0};
    impegno.tipi = tipiPresenti(impegno.valori);
    impegno.immagine = impegno.tipi == 0 || dettagliato ? immagineTipi(impegno.tipi) : ImmaginePresenza;
    return impegno;
}

} // namespace planner
