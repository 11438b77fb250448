// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/annuale.h"
#include "grids/giornaliera.h"
#include "grids/mensile.h"
#include "session/calendario.h"
#include "session/toolbar.h"

#include <optional>
#include <string>

namespace planner {

/// The kinds of planner; the letter is the one of the request.
enum class TipoPlanner : char { Mensile = 'M', Giornaliero = 'G', Annuale = 'A' };

/// What the planner window's controls hold, as plain data: the engine writes it, the window shows it. Texts
/// are Windows-1252.
struct ControlliPlcal {
    static constexpr std::string_view CaptionIniziale = "Planner grafico";

    std::string Caption{CaptionIniziale};
    std::string lbldescr; // title label
    Calendario calendario;
    StatoToolbar Toolbar1;
    Griglia Flxm{righeMensile(0), ColonneGiorni + 1, PrimaRigaMensile, Colore::gialloChiaro};
    Griglia flxg{righeGiornaliera(0), ColonneQuarti + 1, PrimaRigaGiornaliera, Colore::gialloChiaro};
    Griglia flxa{RigheAnnuale, ColonneGiorni + 1, 1, Colore::bianco};
    std::optional<TipoPlanner> tipoVisibile; // whose grid is the visible one

    /// The letter of that kind; empty when no grid is visible.
    std::string tipoplanner() const;
    /// The shown day of the session.
    Data DataSessione() const { return calendario.Value(); }
    /// The weekday of the shown month's first day, 1 = Sunday.
    std::int16_t PrimoGiornoSettimana() const {
        return primoGiornoSettimana(calendario.Year(), calendario.Month());
    }
    /// The grid of a kind.
    Griglia& griglia(TipoPlanner tipo);
    const Griglia& griglia(TipoPlanner tipo) const;
    /// The visible grid and its name; null and empty when none is.
    Griglia* grigliaVisibile() { return tipoVisibile ? &griglia(*tipoVisibile) : nullptr; }
    const Griglia* grigliaVisibile() const { return tipoVisibile ? &griglia(*tipoVisibile) : nullptr; }
    std::string_view nomeGrigliaVisibile() const;
};

} // namespace planner
