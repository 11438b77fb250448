// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/totals.h"

#include "archive/numeric_value.h"
#include "ports/runtime_errors.h"
#include "session/staff.h"

namespace planner {

namespace {

bool contains(const ValoriContatori& valori, const CategoriaTotali& categoria) {
    const bool first = valori.at(categoria.contatori[0]) != 0;
    const bool second = valori.at(categoria.contatori[1]) != 0;
    return first | second;
}

} // namespace

ValoriContatori valoriContatori(const RigaPlanner& riga) {
    ValoriContatori valori{};
    for (std::size_t i = 0; i < riga.contatori.size(); ++i) {
        valori[i + 1] = numericValue(riga.contatori[i].view());
    }
    return valori;
}

unsigned tipiPresenti(const ValoriContatori& valori) {
    // The kinds are those of categories 3, 2, 0 and 1, in this order.
    constexpr std::array<std::uint8_t, TipiImpegno.size()> categories{3, 2, 0, 1};
    unsigned tipi = 0;
    for (std::size_t i = 0; i < categories.size(); ++i) {
        tipi |= static_cast<unsigned>(contains(valori, CategorieTotali[categories[i]])) << i;
    }
    return tipi;
}

std::string_view chiaveTipi(const ValoriContatori& valori) {
    return chiaveImmagine(immagineTipi(tipiPresenti(valori)));
}

TabellaTotali::TabellaTotali(std::int16_t upperBound) : m_righe(static_cast<std::size_t>(upperBound) + 1) {}

void TabellaTotali::aggiungi(int indice, const ValoriContatori& valori) {
    if (!contiene(indice)) {
        return; // the table is sized by the records, not by the staff
    }
    Riga& totals = m_righe[static_cast<std::size_t>(indice)];
    Riga sums = totals;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        const auto& [first, second] = CategorieTotali[i].contatori;
        sums[i] = roundTo16Bit(sums[i] + valori.at(first) + valori.at(second));
    }
    totals = sums;
}

std::int16_t TabellaTotali::at(int indice, int categoria) const {
    if (categoria < 0 || static_cast<std::size_t>(categoria) >= CategorieTotali.size()) {
        throw SubscriptError();
    }
    if (!contiene(indice)) {
        return 0;
    }
    return m_righe[static_cast<std::size_t>(indice)][static_cast<std::size_t>(categoria)];
}

} // namespace planner
