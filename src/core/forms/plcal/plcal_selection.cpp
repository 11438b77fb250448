// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "forms/plcal/lettura.h"
#include "forms/plcal/plcal.h"
#include "forms/plcal/sentences.h"
#include "forms/plcal/yearly_day.h"

#include <algorithm>
#include <utility>

namespace planner {

void plcal::griglia_Gesto(const Gesto& gesto) {
    const auto luogo = luogoDi(m_controlli, gesto.casella);
    const EffettoGesto* effetto = luogo ? effettoGesto(*m_controlli.tipoVisibile, *luogo) : nullptr;
    if (effetto == nullptr) {
        return;
    }
    try {
        applica(*effetto, gesto);
    } catch (const std::exception& error) {
        // No box inside a press: it would swallow the release.
        m_porte.vista.rinvia(
            [this, text = operazioneNonRiuscita(error)] { m_porte.messaggi.critical(text); });
    }
    if (descrizione(gesto.mezzo).consulta && *luogo == Luogo::giorno) {
        Toolbar1_ButtonClick("consult");
    } else {
        m_porte.vista.aggiorna();
    }
}

void plcal::applica(const EffettoGesto& effetto, const Gesto& gesto) {
    const Griglia::LockWindowUpdate lock(griglia());
    if (effetto.giorno) {
        const bool moved = !tipo().perCollaboratore && gesto.mezzo == Mezzo::frecce;
        moved ? flxa_RowColChange(gesto.casella) : Click(gesto.casella);
    }
    const bool onName = effetto.cursore == MossaCursore::rigaDelNome;
    griglia().setCurrent(
        {gesto.casella.riga,
         onName ? tipo().colonnaGiorno(m_controlli.calendario, griglia().Col()) : gesto.casella.colonna});
    SelChange(effetto.scelta);
    describeCurrentCell();
    annunciaTotali(gesto.mezzo);
}

/// Of the staff member that the user selects on purpose: the arrows select too, at every step.
void plcal::annunciaTotali(Mezzo mezzo) {
    if (mezzo == Mezzo::frecce || mezzo == Mezzo::invio || mezzo == Mezzo::doppioClic ||
        !m_pannello.lblcollabVisibile) {
        return;
    }
    const std::string totals =
        utf8FromCp1252(m_pannello.lblcollab) + ": " + totaliRiga(m_controlli, m_sessione, griglia().Row());
    if (totals != std::exchange(m_totaliDetti, totals)) {
        m_porte.vista.annuncia(totals);
    }
}

void plcal::Click(Casella casella) {
    if (const auto giorno = giornoCella(m_controlli, *m_controlli.tipoVisibile, casella)) {
        m_controlli.calendario.setValue(*giorno);
    }
}

void plcal::flxa_RowColChange(Casella casella) {
    if (m_sessione.CalendarioAttivo) {
        Click(casella);
    }
}

void plcal::SelChange(Scelta scelta) {
    if (scelta == Scelta::totaliGiorno) {
        flxa_SelChange(griglia().corrente());
        return;
    }
    m_pannello.nascondiTotali();
    if (scelta == Scelta::collaboratore && !trimRight(griglia().TextMatrix(griglia().Row(), 0)).empty()) {
        selectStaff();
    }
    markShownCell();
}

void plcal::selectStaff() {
    const int riga = griglia().Row();
    const IndiceCollaboratore indice = indiceDiRiga(griglia(), riga);
    setStaff(indice);
    griglia().evidenzia(riga);
    m_pannello.lblcollab = "Impegni di " + std::string(griglia().TextMatrix(riga, 0));
    m_pannello.lblcollabVisibile = true;
    m_pannello.mostraTotali(m_sessione.TotaliImpegni, indice, m_sessione.varianteRidotta());
}

void plcal::setStaff(IndiceCollaboratore indice) {
    if (!tipo().unGiorno) {
        m_sessione.IndiceCollab = indice;
    }
    if (const Collaboratore* staff = trovaCollaboratore(m_sessione.archivi.Collaboratori, indice)) {
        m_sessione.collab = staff->codice.text();
    }
}

void plcal::flxa_SelChange(Casella casella) {
    m_pannello.mostraGiorno(valoriGiorno(m_sessione.archivi, casella));
    if (!giornoSegnato(m_sessione.archivi, casella)) {
        m_controlli.flxa.scegliNessuna(); // what is marked is the day whose totals are shown
        return;
    }
    m_controlli.flxa.scegli(casella);
}

void plcal::markShownCell() {
    const int riga = griglia().RigaEvidenziata();
    if (griglia().EvidenziazioneAttiva() && (!tipo().unGiorno || griglia().Row() == riga)) {
        griglia().scegli({riga, tipo().colonnaGiorno(m_controlli.calendario, griglia().Col())});
    }
}

void plcal::describeCurrentCell() {
    m_stato = fraseCella(m_controlli, m_sessione, tipo().tipo, griglia().corrente());
}

int plcal::rigaCursore() const {
    const int first = griglia().FixedRows();
    const int wanted = !tipo().perCollaboratore           ? m_controlli.calendario.Month()
                       : griglia().EvidenziazioneAttiva() ? griglia().RigaEvidenziata()
                       : m_sessione.IndiceRichiesto.presente()
                           ? rigaCollaboratore(griglia(), m_sessione.IndiceRichiesto)
                           : first;
    return std::clamp(wanted, first, griglia().Rows() - 1);
}

void plcal::posizionaCursore(int colonnaGiornaliera) {
    if (m_controlli.tipoVisibile) {
        griglia().setCurrent(
            {rigaCursore(), tipo().colonnaGiorno(m_controlli.calendario, colonnaGiornaliera)});
    }
}

void plcal::restoreMarks() {
    if (griglia().EvidenziazioneAttiva()) {
        griglia().evidenzia(std::min(griglia().RigaEvidenziata(), griglia().Rows() - 1));
        markShownCell();
    }
}

} // namespace planner
