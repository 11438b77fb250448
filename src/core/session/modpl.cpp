// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/modpl.h"

namespace planner {

void PeriodoSessione::setInizio(Data data) {
    const std::string text = formatDate(data);
    AnnoInizio = text.substr(0, 4);
    MeseInizio = text.substr(4, 2);
    GiornoInizio = text.substr(6, 2);
}

void PeriodoSessione::setFine(Data data) {
    const std::string text = formatDate(data);
    AnnoFine = text.substr(0, 4);
    MeseFine = text.substr(4, 2);
    GiornoFine = text.substr(6, 2);
}

} // namespace planner
