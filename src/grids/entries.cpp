// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/entries.h"

namespace planner {

int immagineImpegno(const ValoriContatori& valori, bool dettagliato) {
    const std::string_view chiave = chiaveTipi(valori);
    if (chiave.empty()) {
        return 0;
    }
    return dettagliato ? Eval_imagedisplay(chiave) : ImmaginePresenza;
}

Impegno leggiImpegno(const RigaPlanner& riga, const modpl& sessione, bool dettagliato) {
    Impegno impegno{};
    impegno.indice = sessione.indiceCodici.IndCollaboratore(riga.codice.view());
    impegno.data = dateFromTexts(riga.giorno.view(), riga.mese.view(), riga.anno.view());
    impegno.valori = valoriContatori(riga);
    impegno.immagine = immagineImpegno(impegno.valori, dettagliato);
    return impegno;
}

} // namespace planner
