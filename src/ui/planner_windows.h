// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/plcal.h"
#include "ui/kit/told_events.h"
#include "ui/plcal/plcal_window.h"
#include "ui/plfcollab/plfcollab_window.h"
#include "ui/ports/qt_collation.h"

#include <memory>

namespace planner {

/// All windows of the planner, wired to each other over one session.
struct PlannerWindows {
    PlannerWindows(modpl& sessione, ControlliPlcal& controlli, Contenuti& contenuti, MessageBoxes& messaggi);

    ToldEvents annunci; // before the windows make any
    /// The staff window, made when it is asked for.
    PlfcollabWindow& vistaCollab();

    PlcalWindow vista;
    QtCollation alfabeto;
    std::unique_ptr<PlfcollabWindow> elenco;
    plfcollab collaboratori;
    plcal finestra;
};

} // namespace planner
