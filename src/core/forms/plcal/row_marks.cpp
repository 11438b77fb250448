// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/row_marks.h"

namespace planner {

namespace {

void paintRow(Griglia& griglia, int riga, Colore colore) {
    for (int column = Griglia::FixedCols(); column < griglia.Cols(); ++column) {
        griglia.setCellBackColor(riga, column, colore);
    }
}

} // namespace

void RowMarks::highlight(Griglia& griglia, int riga) {
    const Griglia::LockWindowUpdate lock(griglia);
    if (m_EvidenziazioneAttiva && m_RigaEvidenziata == riga) {
        if (m_markedRow == riga) { // the rest of the row is yellow already
            griglia.setCellBackColor(riga, m_markedCol, Colore::giallo);
        }
        return;
    }
    if (m_EvidenziazioneAttiva && m_RigaEvidenziata < griglia.Rows()) {
        paintRow(griglia, m_RigaEvidenziata, Colore::gialloChiaro);
    }
    paintRow(griglia, riga, Colore::giallo);
    m_RigaEvidenziata = riga;
    m_EvidenziazioneAttiva = true;
}

void RowMarks::markCell(Griglia& griglia, int riga, int colonna) {
    const Griglia::LockWindowUpdate lock(griglia);
    if (!m_EvidenziazioneAttiva) {
        restoreMarked(griglia);
    }
    remember(griglia, riga, colonna);
    griglia.setCellBackColor(riga, colonna, Colore::ciano);
}

void RowMarks::markDay(Griglia& griglia, int riga, int colonna) {
    const Griglia::LockWindowUpdate lock(griglia);
    restoreMarked(griglia);
    remember(griglia, riga, colonna);
    griglia.setCellBackColor(riga, colonna, Colore::ciano);
    griglia.setCellForeColor(riga, colonna, Colore::nero);
}

void RowMarks::unmark(Griglia& griglia) {
    restoreMarked(griglia);
    m_markedRow = -1;
    m_markedCol = -1;
}

void RowMarks::restoreMarked(Griglia& griglia) {
    const bool marked = m_markedRow >= griglia.FixedRows() && m_markedRow < griglia.Rows() &&
                        m_markedCol >= Griglia::FixedCols() && m_markedCol < griglia.Cols();
    if (marked) {
        griglia.setCellBackColor(m_markedRow, m_markedCol, m_savedBack);
        griglia.setCellForeColor(m_markedRow, m_markedCol, m_savedFore);
    }
}

void RowMarks::remember(const Griglia& griglia, int riga, int colonna) {
    const Cella& cell = griglia.cella(riga, colonna);
    m_markedRow = riga;
    m_markedCol = colonna;
    m_savedBack = cell.sfondo;
    m_savedFore = cell.colore;
}

void RowMarks::forget() {
    *this = RowMarks{};
}

} // namespace planner
