// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"

#include <string>

namespace planner::test {

/// A grid as a table of text, one line for each row: height, column 0, then four characters for each other
/// column: text or "#" and picture, and one letter for its colours ("r" red, "n" navy text, "." on light
/// grey, ":" red on light grey, "*" white on navy, "=" on light blue, "?" anything else). A font other than
/// the plain one follows column 0 ("b" bold, "a" the year's).
std::string tabella(const Griglia& griglia);

/// The cells of one row that are not plain and empty, equal neighbours together: `0 "Rossi" | 33 #8= |
/// 34-36 =`. Fonts other than the plain one follow in brackets.
std::string elencoRiga(const Griglia& griglia, int riga);

} // namespace planner::test
