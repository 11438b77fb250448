// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace planner {

/// Escape as a virtual-key code, the key that closes a form.
inline constexpr int TastoEscape = 27;

/// What a key is called wherever the user reads it, UTF-8.
struct NomeTasto {
    std::string_view tasto; // as shortcuts are written
    std::string_view nome;
};

/// Those that an Italian keyboard has otherwise.
inline constexpr std::array NomiTasti{
    NomeTasto{"Shift", "Maiusc"},
    NomeTasto{"Return", "Invio"},
    NomeTasto{"Enter", "Invio"},
    NomeTasto{"Space", "Barra spaziatrice"},
    NomeTasto{"PgUp", "PagSu"},
    NomeTasto{"PgDown", "PagGiù"},
    NomeTasto{"Home", "Inizio"},
    NomeTasto{"End", "Fine"},
    NomeTasto{"Left", "Freccia sinistra"},
    NomeTasto{"Right", "Freccia destra"},
    NomeTasto{"Up", "Freccia su"},
    NomeTasto{"Down", "Freccia giù"},
};

} // namespace planner
