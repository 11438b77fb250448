// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/planner_windows.h"

#include "ui/plfgraf/chart_dialog.h"
#include "ui/plfimp/plfimp_dialog.h"
#include "ui/stampa/stampa_griglia.h"

namespace planner {

namespace {

bool suCarta(ComandoGriglia comando, DocumentoStampa documento, QWidget& parent, MessageBoxes& messaggi) {
    if (comando == ComandoGriglia::copia) {
        copiaGriglia(documento);
        return true;
    }
    documento.totali = comando == ComandoGriglia::stampaConTotali;
    return stampaGriglia(documento, parent, messaggi);
}

} // namespace

PlannerWindows::PlannerWindows(modpl& sessione, ControlliPlcal& controlli, Contenuti& contenuti,
                               MessageBoxes& messaggi)
    : vista(sessione, controlli),
      collaboratori(sessione, controlli.calendario,
                    {[this]() -> VistaPlfcollab& { return vistaCollab(); }, messaggi, alfabeto}),
      finestra(sessione, controlli, contenuti,
               {vista, messaggi, chiediImpegno, collaboratori,
                [&messaggi](plfgraf& form) { mostraGrafico(form, messaggi); },
                [&, this](ComandoGriglia comando) {
                    return suCarta(comando, {controlli, sessione, contenuti.oggi()}, vista, messaggi);
                },
                alfabeto}) {
    vista.setForm(finestra);
}

PlfcollabWindow& PlannerWindows::vistaCollab() {
    if (!elenco) {
        elenco = std::make_unique<PlfcollabWindow>(collaboratori);
    }
    return *elenco;
}

} // namespace planner
