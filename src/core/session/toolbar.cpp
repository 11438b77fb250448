// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/toolbar.h"

namespace planner {

StatoToolbar::StatoToolbar() {
    reset(/*dettagliato=*/true);
}

void StatoToolbar::reset(bool dettagliato) {
    m_enabled.set();
    m_visible.set();
    setDettagliato(dettagliato);
}

void StatoToolbar::setDettagliato(bool dettagliato) {
    setEnabled(Pulsante::dettno, dettagliato);
    setVisible(Pulsante::dettno, dettagliato);
    setEnabled(Pulsante::dettsi, !dettagliato);
    setVisible(Pulsante::dettsi, !dettagliato);
}

} // namespace planner
