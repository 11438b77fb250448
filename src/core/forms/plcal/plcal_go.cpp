// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal.h"

// Where the user goes by key.

namespace planner {

void plcal::griglia_Salto(const Salto& salto) {
    std::optional<Casella> casella;
    esegui([&] {
        casella = destinazione(m_controlli, m_sessione.archivi, salto);
        if (!casella && m_controlli.tipoVisibile) {
            m_stato = saltoVuoto(salto);
        }
    });
    if (casella) {
        griglia_Gesto({*casella, Mezzo::frecce});
        m_porte.vista.portaCursoreInVista();
    }
}

} // namespace planner
