// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace planner {

/// By which means the user acts on a place of a grid.
enum class Mezzo : std::uint8_t { clic, clicDestro, doppioClic, frecce, spazio, invio, assistenza };

/// What the user did on a grid, one value for each gesture. What the toolkit does by itself is none.
struct Gesto {
    int riga, colonna; // the grid's own; column 0 is the name
    Mezzo mezzo = Mezzo::clic;
};

/// A means, as the guide names it, and what follows once it has moved what it moves.
struct DescrizioneMezzo {
    Mezzo mezzo;
    std::string_view nome;
    bool menu = false;
    bool consulta = false;
};

inline constexpr std::array Mezzi{DescrizioneMezzo{Mezzo::clic, "clic"},
                                  DescrizioneMezzo{Mezzo::clicDestro, "clic destro", true},
                                  DescrizioneMezzo{Mezzo::doppioClic, "doppio clic", false, true},
                                  DescrizioneMezzo{Mezzo::frecce, "frecce, Inizio, Fine, Pagina"},
                                  DescrizioneMezzo{Mezzo::spazio, "barra spaziatrice"},
                                  DescrizioneMezzo{Mezzo::invio, "Invio", false, true},
                                  DescrizioneMezzo{Mezzo::assistenza, "lettore di schermo"}};

constexpr const DescrizioneMezzo& descrizione(Mezzo mezzo) {
    return Mezzi.at(static_cast<std::size_t>(mezzo));
}

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

/// What a gesture on the place does in the kind; null when it does nothing.
const EffettoGesto* effettoGesto(TipoPlanner tipo, Luogo luogo);

/// What the place in the visible grid is; nothing for header, corner and what lies outside. The name of a row
/// to spare is a name, as that of a month is.
std::optional<Luogo> luogoDi(const ControlliPlcal& controlli, int riga, int colonna);

/// The day that a cell of the kind's grid stands for; nothing for a cell that stands for none. Any row and
/// column may be asked for.
std::optional<Data> giornoCella(const ControlliPlcal& controlli, TipoPlanner tipo, int riga, int colonna);

/// The column that stands for the shown day in the monthly grid, or in the month's row of the yearly one.
/// Throws SubscriptError when a monthly header has no first day.
int colonnaGiornoMostrato(const ControlliPlcal& controlli);

} // namespace planner
