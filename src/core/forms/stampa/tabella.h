// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <string>

namespace planner {

/// The visible grid and its totals as a table for other programs.
struct TabellaCopiata {
    std::string testo; // the title, and then a line for each row; columns parted by tabs; UTF-8
    std::string html;  // the same as one table, UTF-8
};

/// One row for each of `righeStampate`: its name, what each day (each quarter of an hour, in a grid that
/// stands for one day) holds in words, and its totals. Texts are never markup. A grid must be visible.
TabellaCopiata tabellaCopiata(const ControlliPlcal& controlli, const modpl& sessione);

} // namespace planner
