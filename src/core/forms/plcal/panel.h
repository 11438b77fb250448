// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/design.h"

#include <array>
#include <string>

namespace planner {

/// What a label of the detail panel shows.
struct StatoEtichetta {
    std::string testo; // digits; empty for a total of 0
    bool visibile = false;
};

/// The detail panel's contents: the staff member's name and the totals, by their place in `EtichetteTotali`.
struct PannelloDettagli {
    std::string lblcollab; // Windows-1252
    bool lblcollabVisibile = false;
    std::array<StatoEtichetta, EtichetteTotali.size()> totali;

    /// Shows the totals of the staff member with the index, deadlines only where the window has them.
    void mostraTotali(const TabellaTotali& tabella, IndiceCollaboratore indice, bool varianteRidotta);
    /// Empties and hides the labels of the monthly and daily panel.
    void nascondiTotali();
    /// Shows a day's totals in the yearly panel, which stays in sight.
    void mostraGiorno(const ValoriContatori& valori);
    void svuotaAnnuali() { mostraGiorno({}); }
};

/// A number written with the format "####": rounded, digits only, nothing for 0.
std::string formatoTotale(double valore);

} // namespace planner
