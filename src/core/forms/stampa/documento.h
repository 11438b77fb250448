// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "engine/kinds/kind.h"
#include "session/modpl.h"

#include <string>
#include <vector>

namespace planner {

/// A sheet as it lies before the reader, in points (72 to the inch).
struct Carta {
    double larghezza, altezza;
};
inline constexpr Carta CartaA4{842, 595};
inline constexpr Carta CartaA3{1191, 842};

/// What is put on paper: the visible grid, of which there must be one, and its totals if they are wanted.
struct DocumentoStampa {
    const ControlliPlcal& controlli;
    const modpl& sessione;
    Data oggi; // the date of printing
    Carta carta = CartaA4;
    bool totali = false;

    const RegoleTipo& tipo() const { return regole(*controlli.tipoVisibile); }
    const Griglia& griglia() const { return *controlli.grigliaVisibile(); }
};

/// The title of the pages, as over the grid, and what stands opposite: the kind of planner or, where the grid
/// stands for one day, that day. UTF-8.
std::string titoloStampa(const ControlliPlcal& controlli);
std::string sottotitoloStampa(const ControlliPlcal& controlli);

/// Which of both says what is printed, as a file's name: the day, else the title. UTF-8.
std::string nomeStampa(const ControlliPlcal& controlli);

/// The data rows of the visible grid that hold something: a name or an entry.
std::vector<int> righeStampate(const ControlliPlcal& controlli);

/// Its columns: those that stand for a day or, where the whole grid stands for one, the hours of office and
/// with them all others from the first to the last that hold an appointment.
std::vector<int> colonneStampate(const ControlliPlcal& controlli);

/// The name of a row, or what stands in its place in the corner, UTF-8 without control characters.
std::string testoStampato(const Griglia& griglia, Casella casella);

/// What sort of day a data cell stands for, where the cells of a grid stand for several; a holiday on a
/// Sunday is a holiday.
enum class GiornoStampa : std::uint8_t { nessuno, feriale, fineSettimana, festivo };
GiornoStampa giornoStampato(const ControlliPlcal& controlli, Casella casella);

} // namespace planner
