// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal.h"
#include "forms/plcal/sentences.h"

#include <algorithm>

namespace planner {

void plcal::bselA_Click(int indice) {
    if (indice == 1 || indice == 2) {
        reply(indice == 1 ? "P" : "S");
    }
}

/// An index that the group does not have refills the grid as it stands.
void plcal::premi(std::string_view gruppo, int indice) {
    esegui([&] {
        if (!m_controlli.tipoVisibile) {
            return;
        }
        const auto pulsante =
            std::find_if(PulsantiPeriodo.begin(), PulsantiPeriodo.end(), [&](const PulsantePeriodo& each) {
                return each.gruppo == gruppo && each.indice == indice;
            });
        const Data shown = m_controlli.calendario.Value();
        const Data target = pulsante == PulsantiPeriodo.end() ? shown : mossa(*pulsante).value_or(shown);
        if (pulsante != PulsantiPeriodo.end() && pulsante->ritiraRisposta && target.year() > shown.year()) {
            m_sessione.valret.clear();
            m_sessione.FinePlanner = false;
        }
        refill(target);
        if (target != shown) {
            m_porte.vista.annunciaConCasella(nomePeriodo(m_controlli));
        }
    });
}

void plcal::refill(Data giorno) {
    const Griglia::LockWindowUpdate lock(griglia());
    m_pannello.nascondiTotali();
    m_controlli.calendario.setValue(giorno);
    m_contenuti.rinnova();
    posizionaCursore(m_porte.vista.primaColonnaInVista());
    restoreMarks();
    describeCurrentCell();
}

void plcal::pulsantePeriodo_Click(const PulsantePeriodo& pulsante) {
    if (pulsante.gruppo == "bselm") {
        bselm_Click(pulsante.indice);
    } else if (pulsante.gruppo == "bselg") {
        bselg_Click(pulsante.indice);
    } else {
        bselA_Click(pulsante.indice);
    }
}

std::optional<Data> plcal::mossa(const PulsantePeriodo& pulsante) const {
    return regole(pulsante.tipo)
        .mossa(pulsante.riga, pulsante.successivo ? 1 : -1, m_controlli.calendario.Value(),
               m_sessione.periodo);
}

void plcal::calendario_DateClick(Data giorno) {
    esegui([&] { mostraGiorno(giorno); });
}

/// False for a day outside the period, which changes nothing.
bool plcal::mostraGiorno(Data giorno) {
    const Data shown = m_controlli.calendario.Value();
    if (!m_controlli.tipoVisibile || !tipo().limiti(m_sessione.periodo, shown).contiene(giorno)) {
        return false;
    }
    if (tipo().mostraAnche(giorno, shown)) {
        showPickedDay(giorno);
    } else {
        refill(giorno);
        m_porte.vista.annunciaConCasella(nomePeriodo(m_controlli));
    }
    return true;
}

/// The grid shows the day already: only calendar, cursor and what hangs on them move.
void plcal::showPickedDay(Data giorno) {
    const Griglia::LockWindowUpdate lock(griglia());
    m_controlli.calendario.setValue(giorno);
    posizionaCursore(m_porte.vista.primaColonnaInVista());
    if (tipo().perCollaboratore) {
        markShownCell();
    } else {
        SelChange(Scelta::totaliGiorno);
    }
    describeCurrentCell();
}

} // namespace planner
