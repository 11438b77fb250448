// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"

#include <array>
#include <cstdint>

namespace planner {

/// What a place of a grid is to the user. Header and corner are none that a gesture could mean.
enum class Luogo : std::uint8_t { giorno, senzaGiorno, nome, rigaInPiu };

/// Where the cursor goes.
enum class MossaCursore : std::uint8_t { casella, rigaDelNome };

/// What becomes of the selected staff member and the totals shown.
enum class Scelta : std::uint8_t { collaboratore, nasconde, totaliGiorno };

/// What a gesture on a place moves, whatever its means.
struct EffettoGesto {
    TipoPlanner tipo;
    Luogo luogo;
    bool giorno; // the shown day becomes the cell's, if it stands for one
    MossaCursore cursore;
    Scelta scelta;
};

/// A place that is not listed moves nothing.
inline constexpr std::array EffettiGesti{
    EffettoGesto{TipoPlanner::Mensile, Luogo::giorno, true, MossaCursore::casella, Scelta::collaboratore},
    EffettoGesto{TipoPlanner::Mensile, Luogo::senzaGiorno, false, MossaCursore::casella, Scelta::nasconde},
    EffettoGesto{TipoPlanner::Mensile, Luogo::nome, false, MossaCursore::rigaDelNome, Scelta::collaboratore},
    EffettoGesto{TipoPlanner::Mensile, Luogo::rigaInPiu, true, MossaCursore::casella, Scelta::nasconde},
    EffettoGesto{TipoPlanner::Giornaliero, Luogo::giorno, false, MossaCursore::casella,
                 Scelta::collaboratore},
    EffettoGesto{TipoPlanner::Giornaliero, Luogo::nome, false, MossaCursore::rigaDelNome,
                 Scelta::collaboratore},
    EffettoGesto{TipoPlanner::Giornaliero, Luogo::rigaInPiu, false, MossaCursore::casella, Scelta::nasconde},
    EffettoGesto{TipoPlanner::Annuale, Luogo::giorno, true, MossaCursore::casella, Scelta::totaliGiorno},
    EffettoGesto{TipoPlanner::Annuale, Luogo::senzaGiorno, false, MossaCursore::casella,
                 Scelta::totaliGiorno},
};

} // namespace planner
