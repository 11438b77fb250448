// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/kinds/gesture_effects.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace planner {

/// By which means the user acts on a place of a grid.
enum class Mezzo : std::uint8_t { clic, clicDestro, doppioClic, frecce, spazio, invio, assistenza };

/// What the user did on a grid, one value for each gesture. What the toolkit does by itself is none.
struct Gesto {
    Casella casella;
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

/// What a gesture on the place does in the kind; null when it does nothing.
const EffettoGesto* effettoGesto(TipoPlanner tipo, Luogo luogo);

/// What the place in the visible grid is; nothing for header, corner and what lies outside. The name of a row
/// to spare is a name, as that of a month is.
std::optional<Luogo> luogoDi(const ControlliPlcal& controlli, Casella casella);

/// The day that a cell of the kind's grid stands for; nothing for a cell that stands for none. Any row and
/// column may be asked for.
std::optional<Data> giornoCella(const ControlliPlcal& controlli, TipoPlanner tipo, Casella casella);

} // namespace planner
