// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace planner {

/// An index into the staff table, or none. No row of a grid: `grids/layout.h` leads from one to the other.
struct IndiceCollaboratore {
    int valore = -1; // negative for none

    constexpr bool presente() const { return valore >= 0; }
    friend bool operator==(const IndiceCollaboratore&, const IndiceCollaboratore&) = default;
};

/// The table's entry; null outside the table.
const Collaboratore* trovaCollaboratore(std::span<const Collaboratore> collaboratori,
                                        IndiceCollaboratore indice);

/// Finds staff members by code in constant time, however many there are.
class IndiceCodici {
public:
    /// An index over an empty table.
    IndiceCodici() = default;
    /// Indexes the whole table, its blank last element included; of equal codes the first counts.
    explicit IndiceCodici(std::span<const Collaboratore> collaboratori);

    /// The index of the first staff member whose code equals `codice`, blanks around both left aside;
    /// the table's last index when there is none, so that an unknown code looks like the last element.
    IndiceCollaboratore IndCollaboratore(std::string_view codice) const;

    /// The same, but none when there is none.
    IndiceCollaboratore trova(std::string_view codice) const;

private:
    std::unique_ptr<std::uint16_t[]> m_posti; // by a code's two bytes: index + 1, 0 for none
    std::int16_t m_ultimo = 0;
};

/// The staff member's name without trailing blanks; two blanks for an unknown code.
std::string EstraiCollaboratore(std::span<const Collaboratore> collaboratori, const IndiceCodici& indice,
                                std::string_view codice);

} // namespace planner
