// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "forms/plcal/plcal_guard.h"
#include "forms/plcal/sentences.h"
#include "forms/plcal/yearly_day.h"

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

bool plcal::cellaDati(int riga, int colonna) const {
    const Griglia* griglia = m_controlli.grigliaVisibile();
    return griglia != nullptr && riga >= griglia->FixedRows() && riga < griglia->Rows() &&
           colonna >= Griglia::FixedCols() && colonna < griglia->Cols();
}

void plcal::SelChange(int riga, int colonna) {
    if (!cellaDati(riga, colonna)) {
        return;
    }
    esegui([&] {
        Griglia& griglia = *m_controlli.grigliaVisibile();
        griglia.setCurrent(riga, colonna);
        describeCurrentCell();
        if (m_controlli.tipoVisibile == TipoPlanner::Annuale) {
            flxa_SelChange(riga, colonna);
        } else {
            selectStaffCell(griglia, riga, colonna);
        }
    });
}

void plcal::selectStaffCell(Griglia& griglia, int riga, int colonna) {
    const Griglia::LockWindowUpdate lock(griglia);
    m_pannello.nascondiTotali();
    if (trimRight(griglia.TextMatrix(riga, 0)).empty()) {
        return; // a row to spare: nobody is selected anew
    }
    const int indice = riga - griglia.FixedRows();
    setStaff(indice);
    m_marks.highlight(griglia, riga);
    m_marks.markCell(griglia, riga, colonna);
    m_pannello.lblcollab = "Impegni di " + std::string(griglia.TextMatrix(riga, 0));
    m_pannello.lblcollabVisibile = true;
    showTotals(indice);
}

void plcal::setStaff(int indice) {
    if (m_controlli.tipoVisibile == TipoPlanner::Mensile) {
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
        return;
    }
    for (const TotaleGiorno& totale : totaliGiorno(m_sessione.archivi, riga, colonna)) {
        m_pannello[totale.campo->etichetta].testo = formatoTotale(totale.valore);
    }
    m_marks.markDay(m_controlli.flxa, riga, colonna);
}

void plcal::Click(int riga, int colonna) {
    if (!cellaDati(riga, colonna)) {
        return;
    }
    esegui([&] {
        if (m_controlli.tipoVisibile == TipoPlanner::Mensile) {
            Flxm_Click(colonna);
        } else if (m_controlli.tipoVisibile == TipoPlanner::Annuale) {
            flxa_Click(riga, colonna);
        }
    });
}

void plcal::Flxm_Click(int colonna) {
    constexpr int lastColumnOfFirstDay = 6; // in column 7 at the latest the month has begun
    const Griglia& Flxm = m_controlli.Flxm;
    int blanks = 0;
    while (blanks < lastColumnOfFirstDay && trim(Flxm.TextMatrix(1, blanks + 1)).empty()) {
        ++blanks;
    }
    const int day = colonna - blanks;
    if (!trim(Flxm.TextMatrix(1, colonna)).empty() && day >= 1) {
        const Calendario& calendario = m_controlli.calendario;
        m_controlli.calendario.setValue(dateFromTexts(std::to_string(day), std::to_string(calendario.Month()),
                                                      std::to_string(calendario.Year())));
    }
}

void plcal::flxa_Click(int riga, int colonna) {
    const std::string_view text = trim(m_controlli.flxa.TextMatrix(riga, colonna));
    if (!text.empty()) {
        m_controlli.calendario.setValue(
            dateFromTexts(text, std::to_string(riga), std::to_string(m_controlli.calendario.Year())));
    }
}

void plcal::RowColChange(int riga, int colonna, bool tastoTenuto) {
    if (m_sessione.CalendarioAttivo && tastoTenuto) {
        Click(riga, colonna);
    }
}

void plcal::describeCurrentCell() {
    const Griglia& griglia = *m_controlli.grigliaVisibile();
    m_stato = fraseCella(m_controlli, m_sessione, griglia.Row(), griglia.Col());
}

std::optional<int> plcal::columnOfShownDay() const {
    if (m_controlli.tipoVisibile != TipoPlanner::Mensile) {
        return std::nullopt;
    }
    return columnOfFirstDay(m_controlli.Flxm) + m_controlli.calendario.Day() - 1;
}

void plcal::afterRefill(int riga, int colonna) {
    const bool selected = m_marks.EvidenziazioneAttiva();
    m_marks.forget();
    if (!selected || !cellaDati(riga, colonna)) {
        return;
    }
    Griglia& griglia = *m_controlli.grigliaVisibile();
    griglia.setCurrent(riga, colonna);
    if (!trimRight(griglia.TextMatrix(riga, 0)).empty()) {
        m_marks.highlight(griglia, riga);
        m_marks.markCell(griglia, riga, colonna);
    }
    describeCurrentCell();
}

} // namespace planner
