// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/visualizza_grafico.h"

namespace planner {

namespace {

/// The staff index that the daily chart always gets: it shows everybody, whoever is selected.
constexpr IndiceCollaboratore CollaboratoreGiornaliero{1};

} // namespace

bool visualizzaGrafico(plfgraf& form, std::optional<TipoPlanner> tipo, IndiceCollaboratore IndiceCollab,
                       MessageBoxes& messaggi) {
    if (!tipo) {
        return false;
    }
    switch (*tipo) {
    case TipoPlanner::Mensile:
        if (!IndiceCollab.presente()) {
            messaggi.information("Selezionare un collaboratore prima di visualizzare il grafico.");
            return false;
        }
        form.VisualizzaGraficoMensile(IndiceCollab);
        return true;
    case TipoPlanner::Giornaliero:
        form.VisualizzaGraficoGiornaliero(CollaboratoreGiornaliero);
        return true;
    case TipoPlanner::Annuale:
        form.VisualizzaGraficoAnnuale();
        return true;
    }
    return false;
}

} // namespace planner
