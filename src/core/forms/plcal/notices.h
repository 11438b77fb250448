// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <string>

namespace planner {

/// What the user must know of the data shown, UTF-8: archives that could not be read, and a year's archive of
/// another year than the one shown. Empty when all is well.
std::string avvisoDati(const ControlliPlcal& controlli, const modpl& sessione);

/// The same for the charts' data.
std::string avvisoGrafici(const modpl& sessione);

} // namespace planner
