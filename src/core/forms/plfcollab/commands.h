// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace planner {

/// Positions on the toolbar `Toolbar_pren`, counted from 1 with the separators.
enum class ComandoCollab : int {
    selezionaTutti = 1,
    deselezionaTutti = 2,
    soloSelezionati = 4,
    visualizzaTutti = 5,
    cerca = 7,
    ordina = 9,
    conferma = 11,
};

/// One button of the toolbar.
struct DescrizioneComandoCollab {
    ComandoCollab posizione;
    std::string_view didascalia; // Italian
    std::string_view immagine;
    std::string_view scorciatoia; // keyboard shortcut, empty for none
};

/// The buttons in their order; the positions between them are separators.
inline constexpr std::array ComandiCollab{
    DescrizioneComandoCollab{ComandoCollab::selezionaTutti, "Seleziona tutti", "seleziona_tutti", "Ctrl+A"},
    DescrizioneComandoCollab{ComandoCollab::deselezionaTutti, "Deseleziona tutti", "deseleziona_tutti",
                             "Ctrl+Shift+A"},
    DescrizioneComandoCollab{ComandoCollab::soloSelezionati, "Visualizza solo i selezionati",
                             "solo_selezionati", ""},
    DescrizioneComandoCollab{ComandoCollab::visualizzaTutti, "Visualizza tutti", "visualizza_tutti", ""},
    DescrizioneComandoCollab{ComandoCollab::cerca, "Cerca collaboratore", "cerca", "Ctrl+F"},
    DescrizioneComandoCollab{ComandoCollab::ordina, "Ordina alfabeticamante", "ordina", ""},
    DescrizioneComandoCollab{ComandoCollab::conferma, "Conferma selezioni", "conferma", "Return"},
};

/// What the user reads who confirms without a highlighted row. A row with a tick is "spuntata", the
/// highlighted one is "scelta", in every text of this window but the captions.
inline constexpr std::string_view TestoScegliere =
    "Scegliere un collaboratore prima di confermare: fare clic sulla sua riga (la spunta non basta).";

/// The buttons of the control array `ButtonFrecce`, by their index.
enum class Freccia : int { rigaSu, rigaGiu, paginaSu, paginaGiu, inizio, fine };

struct DescrizioneFreccia {
    Freccia indice;
    std::string_view nome; // tool tip and accessible name
    std::string_view immagine;
};

/// The arrows from the list's top to its bottom, as they stand beside it.
inline constexpr std::array FrecceCollab{
    DescrizioneFreccia{Freccia::inizio, "Inizio", "inizio"},
    DescrizioneFreccia{Freccia::paginaSu, "Pagina su", "pagina_su"},
    DescrizioneFreccia{Freccia::rigaSu, "Riga su", "riga_su"},
    DescrizioneFreccia{Freccia::rigaGiu, "Riga giù", "riga_giu"},
    DescrizioneFreccia{Freccia::paginaGiu, "Pagina giù", "pagina_giu"},
    DescrizioneFreccia{Freccia::fine, "Fine", "fine"},
};

} // namespace planner
