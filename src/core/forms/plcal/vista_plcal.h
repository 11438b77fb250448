// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/campi.h"
#include "forms/plcal/geometry.h"

#include <functional>
#include <string>
#include <vector>

namespace planner {

/// The planner window's widgets, as its logic drives them. What they show is in `ControlliPlcal` and in the
/// form's own data.
class VistaPlcal {
public:
    virtual ~VistaPlcal() = default;
    /// The size that the screen gives the window, in twips of a 96 dpi screen.
    virtual Dimensioni schermo() const = 0;
    /// Puts the controls where they belong, in twips.
    virtual void disponi(const std::vector<ControlloProgetto>& controlli, const Scala& scala) = 0;
    /// Shows the present contents of all controls: captions, calendar, toolbar, panel, visible grid and its
    /// current cell.
    virtual void aggiorna() = 0;
    /// Puts the period buttons into the corner of the visible grid.
    virtual void disponiPulsantiPeriodo() = 0;
    /// Makes `colonna` the first column in sight beside the fixed one.
    virtual void scorriA(int colonna) = 0;
    /// The first column in sight beside the fixed one.
    virtual int primaColonnaInVista() const = 0;
    /// Scrolls back to the grid's beginning, and from there as far as the current cell's row needs it.
    virtual void scorriAlCursore() = 0;
    /// Scrolls as little as it takes to have the current cell in sight.
    virtual void portaCursoreInVista() = 0;
    /// Opens a field for a text, to start from `testo`, UTF-8; one at a time. What the user confirms goes to
    /// `plcal::campo_Conferma`.
    virtual void apriCampo(const DescrizioneCampo& campo, const std::string& testo) = 0;
    /// Runs the action once the event that is being handled is over.
    virtual void rinvia(std::function<void()> azione) = 0;
    virtual void mostra() = 0;
    virtual void nascondi() = 0;
    virtual void portaDavanti() = 0;
    /// Suspends and resumes the window's repainting.
    virtual void LockWindowUpdate(bool locked) = 0;
    /// Shows the program's name and version and what each picture means, until the user closes it.
    virtual void mostraInformazioni() = 0;
    /// Has a screen reader say the text, UTF-8.
    virtual void annuncia(const std::string& testo) = 0;
    /// The same before the current cell, in one, with the next `aggiorna`; alone where the focus is not in
    /// the grid.
    virtual void annunciaConCasella(const std::string& testo) = 0;
    /// Shows the office's guide in a window of its own, which `nascondi` takes out of sight too.
    virtual void mostraGuida() = 0;
};

} // namespace planner
