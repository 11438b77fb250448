// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "forms/plcal/plcal.h"
#include "forms/plcal/sentences.h"
#include "forms/plcal/yearly_day.h"
#include "ports/runtime_errors.h"

#include <algorithm>

namespace planner {

namespace {

/// The labels of the monthly and daily panel, and the category of totals that each shows.
struct EtichettaCategoria {
    std::string_view etichetta;
    int categoria;
};
constexpr std::array EtichetteCategorie{
    EtichettaCategoria{"Lblscad", 0},    EtichettaCategoria{"lblpra", 1},
    EtichettaCategoria{"lblpers", 2},    EtichettaCategoria{"Lblnotes", 3},
    EtichettaCategoria{"Lblscadeva", 4}, EtichettaCategoria{"Lblpraeva", 5}};

} // namespace

void plcal::griglia_Gesto(const Gesto& gesto) {
    const auto luogo = luogoDi(m_controlli, gesto.riga, gesto.colonna);
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
        moved ? flxa_RowColChange(gesto.riga, gesto.colonna) : Click(gesto.riga, gesto.colonna);
    }
    const bool onName = effetto.cursore == MossaCursore::rigaDelNome;
    griglia().setCurrent(gesto.riga, onName ? tipo().colonnaGiorno(m_controlli.calendario, griglia().Col())
                                            : gesto.colonna);
    SelChange(effetto.scelta);
    describeCurrentCell();
}

void plcal::Click(int riga, int colonna) {
    if (const auto giorno = giornoCella(m_controlli, *m_controlli.tipoVisibile, riga, colonna)) {
        m_controlli.calendario.setValue(*giorno);
    }
}

void plcal::flxa_RowColChange(int riga, int colonna) {
    if (m_sessione.CalendarioAttivo) {
        Click(riga, colonna);
    }
}

void plcal::SelChange(Scelta scelta) {
    if (scelta == Scelta::totaliGiorno) {
        flxa_SelChange(griglia().Row(), griglia().Col());
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
    const int indice = riga - griglia().FixedRows();
    setStaff(indice);
    m_marks.highlight(griglia(), riga);
    m_pannello.lblcollab = "Impegni di " + std::string(griglia().TextMatrix(riga, 0));
    m_pannello.lblcollabVisibile = true;
    showTotals(indice);
}

void plcal::setStaff(int indice) {
    if (!tipo().unGiorno) {
        m_sessione.IndiceCollab = roundTo16Bit(indice);
    }
    const auto& staff = m_sessione.archivi.Collaboratori;
    if (static_cast<std::size_t>(indice) < staff.size()) {
        m_sessione.collab = staff[static_cast<std::size_t>(indice)].codice.text();
    }
}

void plcal::showTotals(int indice) {
    for (const EtichettaCategoria& shown : EtichetteCategorie) {
        const bool deadlines = shown.categoria == 0 || shown.categoria == 4;
        if (!(deadlines && m_sessione.varianteRidotta())) {
            m_pannello[shown.etichetta] = {
                formatoTotale(m_sessione.TotaliImpegni.at(indice, shown.categoria)), /*visibile=*/true};
        }
    }
}

void plcal::flxa_SelChange(int riga, int colonna) {
    m_pannello.svuotaAnnuali();
    if (!giornoSegnato(m_sessione.archivi, riga, colonna)) {
        m_marks.unmark(m_controlli.flxa); // what is marked is the day whose totals are shown
        return;
    }
    for (const TotaleGiorno& totale : totaliGiorno(m_sessione.archivi, riga, colonna)) {
        m_pannello[totale.campo->etichetta].testo = formatoTotale(totale.valore);
    }
    m_marks.markDay(m_controlli.flxa, riga, colonna);
}

void plcal::markShownCell() {
    const int riga = m_marks.RigaEvidenziata();
    if (m_marks.EvidenziazioneAttiva() && (!tipo().unGiorno || griglia().Row() == riga)) {
        m_marks.highlight(griglia(), riga); // gives the cell marked before the row's colour
        m_marks.markCell(griglia(), riga, tipo().colonnaGiorno(m_controlli.calendario, griglia().Col()));
    }
}

void plcal::describeCurrentCell() {
    m_stato = fraseCella(m_controlli, m_sessione, tipo().tipo, griglia().Row(), griglia().Col());
}

int plcal::rigaCursore() const {
    const int first = griglia().FixedRows();
    const int wanted = !tipo().perCollaboratore          ? m_controlli.calendario.Month()
                       : m_marks.EvidenziazioneAttiva()  ? m_marks.RigaEvidenziata()
                       : m_sessione.IndiceRichiesto >= 0 ? first + m_sessione.IndiceRichiesto
                                                         : first;
    return std::clamp(wanted, first, griglia().Rows() - 1);
}

void plcal::posizionaCursore(int colonnaGiornaliera) {
    if (m_controlli.tipoVisibile) {
        griglia().setCurrent(rigaCursore(), tipo().colonnaGiorno(m_controlli.calendario, colonnaGiornaliera));
    }
}

void plcal::restoreMarks() {
    if (!m_marks.EvidenziazioneAttiva()) {
        return;
    }
    const int riga = std::min(m_marks.RigaEvidenziata(), griglia().Rows() - 1);
    m_marks.forget();
    m_marks.highlight(griglia(), riga);
    markShownCell();
}

} // namespace planner
