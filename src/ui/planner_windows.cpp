// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/planner_windows.h"

#include "ui/kit/screen_scale.h"

#include <QScreen>

namespace planner {

PlannerWindows::PlannerWindows(modpl& sessione, ControlliPlcal& controlli, Contenuti& contenuti,
                               MessageBoxes& messaggi)
    : vista(sessione, controlli), finestraGrafici(messaggi),
      collaboratori(sessione, controlli.calendario, {vistaCollab, messaggi, alfabeto}),
      finestra(sessione, controlli, contenuti,
               {vista, messaggi, finestraImpegno, collaboratori, finestraGrafici}) {
    fitFontsTo(*vista.screen());
    vista.setForm(finestra);
    vistaCollab.setForm(collaboratori);
}

} // namespace planner
