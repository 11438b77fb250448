// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/geometry.h"
#include "forms/plcal/kinds/period_buttons.h"
#include "session/totals.h"

#include <array>
#include <string_view>
#include <vector>

namespace planner {

/// A total of the detail panel: a static caption and the label that shows the number.
struct EtichettaTotale {
    std::string_view nome;        // of the number's label
    std::string_view didascalia;  // shown beside it
    bool annuale;                 // of the yearly panel; else of the monthly and daily one
    int colonna, riga;            // place in the panel, from 0
    Totale totale;                // that the number is
    std::string_view nomeInFrase; // of the yearly ones
    std::string_view singolare;   // the same of one

    /// Hidden in the window variant "B".
    constexpr bool scadenze() const { return diScadenze(totale); }
    /// Moved up to the deadlines' row in that variant.
    constexpr bool pratiche() const {
        return totale == Totale::pratiche || totale == Totale::praticheConcluse;
    }
};

inline constexpr std::array EtichetteTotali{
    EtichettaTotale{"Lblscad", "Scadenze", false, 0, 0, Totale::scadenze, {}, {}},
    EtichettaTotale{"Lblscadeva", "di cui concluse", false, 1, 0, Totale::scadenzeConcluse, {}, {}},
    EtichettaTotale{"lblpra", "Pratiche", false, 0, 1, Totale::pratiche, {}, {}},
    EtichettaTotale{"Lblpraeva", "di cui concluse", false, 1, 1, Totale::praticheConcluse, {}, {}},
    EtichettaTotale{"lblpers", "Impegni vari", false, 2, 0, Totale::impegniVari, {}, {}},
    EtichettaTotale{"Lblnotes", "Note riservate", false, 2, 1, Totale::noteRiservate, {}, {}},
    EtichettaTotale{"scad", "Scadenze", true, 0, 0, Totale::scadenze, "scadenze", "scadenza"},
    EtichettaTotale{"scaev", "di cui concluse", true, 1, 0, Totale::scadenzeConcluse, "scadenze concluse",
                    "scadenza conclusa"},
    EtichettaTotale{"prat", "Pratiche", true, 0, 1, Totale::pratiche, "pratiche", "pratica"},
    EtichettaTotale{"praev", "di cui concluse", true, 1, 1, Totale::praticheConcluse, "pratiche concluse",
                    "pratica conclusa"},
    // A day's counters 8, 7 and 11 have other names than those of an appointment.
    EtichettaTotale{"nriv", "Note riservate", true, 2, 0, Totale::impegniVari, "note riservate",
                    "nota riservata"},
    EtichettaTotale{"bnot", "Block Notes", true, 0, 2, Totale::noteRiservate, "block notes", "block notes"},
    EtichettaTotale{"blkev", "di cui conclusi", true, 1, 2, Totale::altro, "block notes conclusi",
                    "block notes concluso"},
};

/// True when the panel of the kind and window variant shows the total at all.
bool totaleVisibile(const EtichettaTotale& etichetta, std::optional<TipoPlanner> tipo, bool varianteRidotta);

/// Where a total's caption and number stand, in twips, as designed.
Rettangolo posizioneDidascalia(const EtichettaTotale& etichetta, bool varianteRidotta);
Rettangolo posizioneNumero(const EtichettaTotale& etichetta, bool varianteRidotta);

/// Every control of the planner window as designed.
std::vector<ControlloProgetto> controlliPlcal();

/// The smallest window, in twips, in which the controls scaled by `scala` stand beside each other, with
/// header and a detailed row of the grid in sight.
Dimensioni dimensioniMinime(const Scala& scala);

/// The first column in sight when the daily grid is shown: eight o'clock.
inline constexpr int PrimaColonnaGiornaliera = 33;

} // namespace planner
