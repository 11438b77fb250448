// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/panel.h"

#include <cmath>

namespace planner {

void PannelloDettagli::nascondiTotali() {
    lblcollab.clear();
    lblcollabVisibile = false;
    for (std::size_t i = 0; i < totali.size(); ++i) {
        if (!EtichetteTotali[i].annuale) {
            totali[i] = {};
        }
    }
}

void PannelloDettagli::mostraTotali(const TabellaTotali& tabella, IndiceCollaboratore indice,
                                    bool varianteRidotta) {
    for (std::size_t i = 0; i < totali.size(); ++i) {
        const EtichettaTotale& etichetta = EtichetteTotali[i];
        if (!etichetta.annuale && !(etichetta.scadenze() && varianteRidotta)) {
            totali[i] = {formatoTotale(tabella.at(indice, etichetta.totale)), /*visibile=*/true};
        }
    }
}

void PannelloDettagli::mostraGiorno(const ValoriContatori& valori) {
    for (std::size_t i = 0; i < totali.size(); ++i) {
        if (EtichetteTotali[i].annuale) {
            totali[i] = {formatoTotale(somma(valori, EtichetteTotali[i].totale)), /*visibile=*/true};
        }
    }
}

std::string formatoTotale(double valore) {
    const double rounded = std::nearbyint(valore);
    return rounded == 0 ? std::string() : std::to_string(std::llround(rounded));
}

} // namespace planner
