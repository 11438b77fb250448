// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <string>

namespace planner {

/// What the header's bar of a column says in words, UTF-8: "mercoledì 15 marzo 2006: 5 scadenze dello
/// studio", "14 liberi alle 10:30". Empty for a column without a bar, and in a grid that is not the visible
/// one.
std::string fraseColonna(const ControlliPlcal& controlli, TipoPlanner tipo, int colonna);

/// A name of the visible grid with the person's totals of the period shown, UTF-8: "Rossi Bruno: 12 scadenze
/// (3 concluse), 4 pratiche"; without deadlines in the window that has none. Empty for a row without a name.
std::string fraseTotali(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo, int riga);

} // namespace planner
