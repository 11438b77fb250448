// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/visualizza_grafico.h"

namespace planner {

namespace {

/// The staff index that the daily chart always gets: it shows everybody, whoever is selected.
constexpr std::int16_t CollaboratoreGiornaliero = 1;

} // namespace

bool visualizzaGrafico(plfgraf& form, std::optional<TipoPlanner> tipo, std::int16_t IndiceCollab,
                       MessageBoxes& messaggi) {
    if (!tipo) {
        return false;
    }
    switch (*tipo) {
    case TipoPlanner::Mensile:
        if (IndiceCollab < 0) {
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
