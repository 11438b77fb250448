// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace planner {

/// What the user is asked for in a small field of the planner window.
enum class CampoGriglia : std::uint8_t { persona, data };

struct DescrizioneCampo {
    CampoGriglia campo;
    std::string_view nome;
    std::string_view didascalia; // Italian
    std::string_view esempio;    // of what to write
};

/// By field.
inline constexpr std::array CampiGriglia{
    DescrizioneCampo{CampoGriglia::persona, "campoPersona", "Cerca collaboratore",
                     "parte del nome, o il codice"},
    DescrizioneCampo{CampoGriglia::data, "campoData", "Vai alla data", "15/8"}};

constexpr const DescrizioneCampo& descrizione(CampoGriglia campo) {
    return CampiGriglia.at(static_cast<std::size_t>(campo));
}

} // namespace planner
