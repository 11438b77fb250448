// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"
#include "session/staff.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace planner {

/// The totals that appointments and days add up to.
enum class Totale : std::uint8_t {
    scadenze,
    pratiche,
    impegniVari,
    noteRiservate,
    scadenzeConcluse,
    praticheConcluse,
    altro
};

/// A category of totals: which of the counters of a record or a day (1 to 11; 0 for none) add up in it.
struct CategoriaTotali {
    std::string_view nome;
    std::array<std::uint8_t, 2> contatori;
};

/// The seven categories, by total.
inline constexpr std::array CategorieTotali{CategoriaTotali{"scadenze", {5, 1}},
                                            CategoriaTotali{"pratiche", {6, 2}},
                                            CategoriaTotali{"impegni vari", {8, 0}},
                                            CategoriaTotali{"note riservate", {7, 0}},
                                            CategoriaTotali{"scadenze concluse", {9, 3}},
                                            CategoriaTotali{"pratiche concluse", {10, 4}},
                                            CategoriaTotali{"altro", {11, 0}}};

constexpr const CategoriaTotali& descrizione(Totale totale) {
    return CategorieTotali.at(static_cast<std::size_t>(totale));
}

/// Whether the total counts deadlines, of which the reduced window variant shows nothing.
constexpr bool diScadenze(Totale totale) {
    return totale == Totale::scadenze || totale == Totale::scadenzeConcluse;
}

/// The numeric values of eleven counters; index 1 to 11, index 0 is always 0.
using ValoriContatori = std::array<double, 12>;
ValoriContatori valoriContatori(const RigaPlanner& riga);

/// The counters of the total added up.
double somma(const ValoriContatori& valori, Totale totale);

/// Totals per staff index and category, 16-bit numbers.
class TabellaTotali {
public:
    using Riga = std::array<std::int16_t, CategorieTotali.size()>;

    /// A new table, all zero, with indices 0 to `upperBound`.
    explicit TabellaTotali(std::int16_t upperBound = 0);

    /// Adds all of a record's counters to the totals of `indice`, or none: throws OverflowError when a total
    /// leaves 16 bits. For an index beyond the table nothing is added.
    void aggiungi(IndiceCollaboratore indice, const ValoriContatori& valori);

    /// True for an index that the table has totals for.
    bool contiene(IndiceCollaboratore indice) const {
        return indice.presente() && indice.valore <= upperBound();
    }

    /// 0 for an index beyond the table. Throws SubscriptError for a total that is none.
    std::int16_t at(IndiceCollaboratore indice, Totale totale) const;

    int upperBound() const { return static_cast<int>(m_righe.size()) - 1; }
    const std::vector<Riga>& righe() const { return m_righe; }

private:
    std::vector<Riga> m_righe;
};

} // namespace planner
