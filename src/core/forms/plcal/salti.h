// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// A key that takes the cursor to the next cell that holds something, along the row or the column.
struct Salto {
    std::string_view nome;
    std::string_view didascalia;  // Italian
    std::string_view scorciatoia; // of the grids alone
    int righe, colonne;           // a step
    unsigned tipi = 0;            // the set of kinds looked for; 0 for whatever there is
};

/// To whatever comes next in the row.
inline constexpr Salto SaltoSuccessivo{"pienaSuccessiva", "Casella piena successiva", "Ctrl+Right", 0, 1};

/// In the order in which the grids' menu has them.
inline constexpr std::array Salti{
    SaltoSuccessivo,
    Salto{"pienaPrecedente", "Casella piena precedente", "Ctrl+Left", 0, -1},
    Salto{"pienaSotto", "Casella piena sotto", "Ctrl+Down", 1, 0},
    Salto{"pienaSopra", "Casella piena sopra", "Ctrl+Up", -1, 0},
    Salto{"scadenzeSuccessive", "Scadenze successive", "S", 0, 1, insieme(TipoImpegno::scadenze)},
    Salto{"scadenzePrecedenti", "Scadenze precedenti", "Shift+S", 0, -1, insieme(TipoImpegno::scadenze)},
    Salto{"praticheSuccessive", "Pratiche successive", "P", 0, 1, insieme(TipoImpegno::pratiche)},
    Salto{"pratichePrecedenti", "Pratiche precedenti", "Shift+P", 0, -1, insieme(TipoImpegno::pratiche)},
    Salto{"impegniSuccessivi", "Impegni vari successivi", "I", 0, 1, insieme(TipoImpegno::impegniVari)},
    Salto{"impegniPrecedenti", "Impegni vari precedenti", "Shift+I", 0, -1,
          insieme(TipoImpegno::impegniVari)},
    Salto{"noteSuccessive", "Note riservate successive", "N", 0, 1, insieme(TipoImpegno::noteRiservate)},
    Salto{"notePrecedenti", "Note riservate precedenti", "Shift+N", 0, -1,
          insieme(TipoImpegno::noteRiservate)},
};

/// Where the jump leads from the current cell of the visible grid; nothing where there is nothing to go to.
/// In a row of hours it stops where an appointment begins. Throws when the year's archive lacks the month.
std::optional<Casella> destinazione(const ControlliPlcal& controlli, const Archivi& archivi,
                                    const Salto& salto);

/// What the user reads when there is nothing to go to, UTF-8.
std::string saltoVuoto(const Salto& salto);

} // namespace planner
