// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/grafico.h"

#include <cstddef>
#include <string>

namespace planner {

/// Texts about a chart's values, in UTF-8.

/// Hours as hours and minutes, to the nearest minute: "7:30", "-1:15". Beyond a billion hours, where minutes
/// mean nothing, as a decimal number.
std::string testoOre(double ore);

/// A number with decimal comma and at most two decimals: "7,5".
std::string testoDecimale(double valore);

/// The value in a sentence: "15 marzo: 7,5 ore". Throws std::out_of_range past the last value.
std::string fraseValore(const Grafico& grafico, std::size_t numero);

/// All values as a table for other programs: a line of headings and one for each value, columns parted by
/// tabs, lines ended by "\n". Control characters in labels become blanks.
std::string tabellaValori(const Grafico& grafico);

} // namespace planner
