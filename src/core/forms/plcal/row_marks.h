// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"

namespace planner {

/// The highlighted row and the marked cell of a grid. They are part of the cells' colours: after a grid has
/// been cleared nothing is marked any more.
class RowMarks {
public:
    /// Paints the row's cells yellow, and the row highlighted before plain again; column 0 keeps its colours.
    void highlight(Griglia& griglia, int riga);

    /// Paints the cell cyan. The cell marked before gets its colours back, unless a row highlight, which
    /// repaints whole rows, has done so.
    void markCell(Griglia& griglia, int riga, int colonna);

    /// The same in a grid without row highlight: the marked cell's text becomes black.
    void markDay(Griglia& griglia, int riga, int colonna);

    /// Gives the cell that markDay marked its colours back.
    void unmark(Griglia& griglia);

    /// Forgets what was marked, for a grid that has been cleared.
    void forget();

    bool EvidenziazioneAttiva() const { return m_EvidenziazioneAttiva; }
    int RigaEvidenziata() const { return m_RigaEvidenziata; }

private:
    void restoreMarked(Griglia& griglia);
    void remember(const Griglia& griglia, int riga, int colonna);

    bool m_EvidenziazioneAttiva = false;
    int m_RigaEvidenziata = -1;
    int m_markedRow = -1; // negative for none
    int m_markedCol = -1;
    Colore m_savedBack = Colore::predefinito;
    Colore m_savedFore = Colore::predefinito;
};

} // namespace planner
