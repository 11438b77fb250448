// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"

#include <array>
#include <string_view>

namespace planner {

/// A small button over a grid's corner that moves the period.
struct PulsantePeriodo {
    std::string_view gruppo; // "bselm", "bselg" or "bselA"
    int indice;              // of the control array
    TipoPlanner tipo;        // whose grid it stands on
    int riga;                // header row
    bool successivo;
    std::string_view suggerimento; // tool tip
    std::string_view immagine;
    std::string_view scorciatoia; // keyboard shortcuts, separated by "; "
    bool ritiraRisposta = false;  // a move into the next year withdraws a reply composed before
};

inline constexpr std::array PulsantiPeriodo{
    PulsantePeriodo{"bselm", 0, TipoPlanner::Mensile, 0, false, "Mese precedente", "precedente",
                    "Alt+Left; Ctrl+PgUp"},
    PulsantePeriodo{"bselm", 1, TipoPlanner::Mensile, 0, true, "Mese successivo", "successivo",
                    "Alt+Right; Ctrl+PgDown", /*ritiraRisposta=*/true},
    PulsantePeriodo{"bselm", 2, TipoPlanner::Mensile, 1, false, "Anno precedente", "anno_precedente",
                    "Ctrl+Alt+Left; Ctrl+Shift+PgUp"},
    PulsantePeriodo{"bselm", 3, TipoPlanner::Mensile, 1, true, "Anno successivo", "anno_successivo",
                    "Ctrl+Alt+Right; Ctrl+Shift+PgDown"},
    PulsantePeriodo{"bselg", 1, TipoPlanner::Giornaliero, 0, false, "Giorno precedente", "precedente",
                    "Alt+Left"},
    PulsantePeriodo{"bselg", 2, TipoPlanner::Giornaliero, 0, true, "Giorno successivo", "successivo",
                    "Alt+Right"},
    PulsantePeriodo{"bselA", 1, TipoPlanner::Annuale, 0, false, "Anno precedente", "anno_precedente",
                    "Alt+Left; Ctrl+Alt+Left; Ctrl+Shift+PgUp"},
    PulsantePeriodo{"bselA", 2, TipoPlanner::Annuale, 0, true, "Anno successivo", "anno_successivo",
                    "Alt+Right; Ctrl+Alt+Right; Ctrl+Shift+PgDown"},
};

/// A move of the period by key, where no button stands for it.
struct TastoPeriodo {
    TipoPlanner tipo; // in whose grid
    int mesi;
    std::string_view nome;
    std::string_view didascalia;  // Italian
    std::string_view scorciatoia; // of that grid alone
};

inline constexpr std::array TastiPeriodo{
    TastoPeriodo{TipoPlanner::Giornaliero, -1, "meseIndietro", "Un mese indietro", "Ctrl+PgUp"},
    TastoPeriodo{TipoPlanner::Giornaliero, 1, "meseAvanti", "Un mese avanti", "Ctrl+PgDown"},
};

} // namespace planner
