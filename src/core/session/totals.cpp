// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/totals.h"

#include "archive/numeric_value.h"
#include "ports/runtime_errors.h"

namespace planner {

ValoriContatori valoriContatori(const RigaPlanner& riga) {
    ValoriContatori valori{};
    for (std::size_t i = 0; i < riga.contatori.size(); ++i) {
        valori[i + 1] = numericValue(riga.contatori[i].view());
    }
    return valori;
}

double somma(const ValoriContatori& valori, Totale totale) {
    const auto& [first, second] = descrizione(totale).contatori;
    return valori.at(first) + valori.at(second);
}

TabellaTotali::TabellaTotali(std::int16_t upperBound) : m_righe(static_cast<std::size_t>(upperBound) + 1) {}

void TabellaTotali::aggiungi(IndiceCollaboratore indice, const ValoriContatori& valori) {
    if (!contiene(indice)) {
        return; // the table is sized by the records, not by the staff
    }
    Riga& totals = m_righe[static_cast<std::size_t>(indice.valore)];
    Riga sums = totals;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        const auto& [first, second] = CategorieTotali[i].contatori;
        sums[i] = roundTo16Bit(sums[i] + valori.at(first) + valori.at(second));
    }
    totals = sums;
}

std::int16_t TabellaTotali::at(IndiceCollaboratore indice, Totale totale) const {
    const auto categoria = static_cast<std::size_t>(totale);
    if (categoria >= CategorieTotali.size()) {
        throw SubscriptError();
    }
    return contiene(indice) ? m_righe[static_cast<std::size_t>(indice.valore)][categoria] : std::int16_t{0};
}

} // namespace planner
