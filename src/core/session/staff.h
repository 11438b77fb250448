// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// Finds staff members by code in constant time, however many there are.
class IndiceCodici {
public:
    /// An index over an empty table.
    IndiceCodici();
    /// Indexes the whole table, its blank last element included; of equal codes the first counts.
    explicit IndiceCodici(std::span<const Collaboratore> collaboratori);

    /// The index of the first staff member whose code equals `codice`, blanks around both left aside;
    /// the table's last index when there is none, so that an unknown code looks like the last element.
    std::int16_t IndCollaboratore(std::string_view codice) const;

    /// The same, but -1 when there is none.
    std::int16_t trova(std::string_view codice) const;

private:
    std::vector<std::int16_t> m_indici; // by the two bytes of the trimmed code; -1 for none
    std::int16_t m_ultimo = 0;
};

/// The staff member's name without trailing blanks; two blanks for an unknown code.
std::string EstraiCollaboratore(std::span<const Collaboratore> collaboratori, const IndiceCodici& indice,
                                std::string_view codice);

/// The picture, 1 to 15, for the kinds present, given as ascending digits ("134"); 0 for anything else.
std::int16_t Eval_imagedisplay(std::string_view deps);

/// The same for a set of kinds: bit i stands for `TipiImpegno[i]`.
std::int16_t immagineTipi(unsigned tipi);

/// The picture of the grid that shows no details.
inline constexpr std::int16_t ImmaginePresenza = 16;

/// The kinds of entries that pictures stand for; the digit is the kind's place in a picture key, and the
/// corner of the picture in which its drawing stands: 1 top left, 2 top right, 3 bottom left, 4 bottom right.
struct TipoImpegno {
    char cifra;
    std::string_view nome; // Italian, as sentences name it
};
inline constexpr std::array TipiImpegno{TipoImpegno{'1', "note riservate"}, TipoImpegno{'2', "impegni vari"},
                                        TipoImpegno{'3', "scadenze"}, TipoImpegno{'4', "pratiche"}};

/// Picture keys in the order of their pictures: the first is picture 1.
inline constexpr std::array<std::string_view, 15> ChiaviImmagini{
    "1234", "123", "12", "124", "134", "13", "14", "1", "2", "3", "4", "234", "23", "24", "34"};

/// The key of picture 1 to 15; empty for any other number.
std::string_view chiaveImmagine(int immagine);

} // namespace planner
