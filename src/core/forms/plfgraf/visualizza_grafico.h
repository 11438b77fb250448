// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "forms/plfgraf/plfgraf.h"
#include "ports/message_boxes.h"

#include <optional>

namespace planner {

/// Builds the chart that suits the kind of planner; `IndiceCollab` is the selected staff member, if
/// any. True when there is a chart to show: the monthly one asks for a selected staff member in a message
/// box when there is none. Throws what the builders throw.
bool visualizzaGrafico(plfgraf& form, std::optional<TipoPlanner> tipo, IndiceCollaboratore IndiceCollab,
                       MessageBoxes& messaggi);

} // namespace planner
