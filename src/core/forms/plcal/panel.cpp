// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/panel.h"

#include "ports/runtime_errors.h"

#include <cmath>

namespace planner {

namespace {

std::size_t placeOf(std::string_view nome) {
    for (std::size_t i = 0; i < EtichetteTotali.size(); ++i) {
        if (EtichetteTotali[i].nome == nome) {
            return i;
        }
    }
    throw SubscriptError();
}

} // namespace

StatoEtichetta& PannelloDettagli::operator[](std::string_view nome) {
    return totali[placeOf(nome)];
}

const StatoEtichetta& PannelloDettagli::operator[](std::string_view nome) const {
    return totali[placeOf(nome)];
}

void PannelloDettagli::nascondiTotali() {
    lblcollab.clear();
    lblcollabVisibile = false;
    for (std::size_t i = 0; i < totali.size(); ++i) {
        if (!EtichetteTotali[i].annuale) {
            totali[i] = {};
        }
    }
}

void PannelloDettagli::svuotaAnnuali() {
    for (std::size_t i = 0; i < totali.size(); ++i) {
        if (EtichetteTotali[i].annuale) {
            totali[i] = {{}, /*visibile=*/true};
        }
    }
}

std::string formatoTotale(double valore) {
    const double rounded = std::nearbyint(valore);
    return rounded == 0 ? std::string() : std::to_string(std::llround(rounded));
}

} // namespace planner
