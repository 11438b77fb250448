// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/plcal.h"
#include "ports/guard.h"

namespace planner {

/// Every event of the window runs in here: a run-time error is said and the window shows what there is.
template <typename Command>
void plcal::esegui(Command command) {
    runCommand(m_porte.messaggi, command);
    m_porte.vista.aggiorna();
}

} // namespace planner
