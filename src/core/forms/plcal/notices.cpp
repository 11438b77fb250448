// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/notices.h"

#include "archive/numeric_value.h"
#include "engine/kinds/kind.h"

namespace planner {

namespace {

std::string notUpToDate(std::string_view file) {
    return "Dati non aggiornati: " + std::string(file) + " non si legge. ";
}

/// The archive's year is that of its first month.
std::string anotherYear(const ControlliPlcal& controlli, const modpl& sessione) {
    const double year = numericValue(sessione.archivi.PlannerAnnuale.front().anno.view());
    if (year == controlli.calendario.Year()) {
        return {};
    }
    return "L'archivio dell'anno è del " + std::to_string(static_cast<int>(year)) + ", non del " +
           std::to_string(controlli.calendario.Year()) + ". ";
}

} // namespace

std::string avvisoDati(const ControlliPlcal& controlli, const modpl& sessione) {
    if (!controlli.tipoVisibile) {
        return {};
    }
    const LettureArchivi& letture = sessione.letture;
    const std::string staff = letture.collaboratori ? "" : notUpToDate("wcollab");
    if (regole(*controlli.tipoVisibile).perCollaboratore) {
        return (letture.righe ? "" : notUpToDate("wrighipl")) + staff;
    }
    return (letture.annuale ? anotherYear(controlli, sessione) : notUpToDate("wplanner")) + staff;
}

std::string avvisoGrafici(const modpl& sessione) {
    const LettureArchivi& letture = sessione.letture;
    return (letture.grafici ? "" : notUpToDate("wgrafici")) +
           (letture.collaboratori ? "" : notUpToDate("wcollab"));
}

} // namespace planner
