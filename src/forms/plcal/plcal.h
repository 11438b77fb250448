// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/clsplg.h"
#include "forms/plcal/design.h"
#include "forms/plcal/vista_plcal.h"
#include "platform/ports/planner_window.h"

#include <functional>
#include <memory>

namespace planner {

/// The planner window's logic: its life from load to unload, and what its events do. The widgets are behind
/// `VistaPlcal`.
class plcal : public PlannerWindow {
public:
    using FabbricaMotore = std::function<std::unique_ptr<clsplg>()>;

    plcal(modpl& sessione, ControlliPlcal& controlli, VistaPlcal& vista, MessageBoxes& messaggi,
          FabbricaMotore fabbrica);

    bool isLoaded() const override { return m_loaded; }
    void load() override;
    void show() override;
    void bringToFront() override;
    void unload() override;
    void hide() override;

    /// Key codes are those of the Windows virtual keys.
    static constexpr int TastoEscape = 27;

    void Form_Load();
    void Form_Activate();
    /// Escape closes the window; true when the key did something.
    bool Form_KeyDown(int tasto);
    void Form_Unload();

    /// True for the commands that there are.
    static bool comandoDisponibile(Pulsante pulsante);
    void Toolbar1_ButtonClick(Pulsante pulsante);

    /// Refills the grid of the current kind at the level of detail that the toolbar shows.
    void refreshGrid();

    const Scala& scala() const { return m_scala; }

private:
    clsplg& motore();

    modpl& m_sessione;
    ControlliPlcal& m_controlli;
    VistaPlcal& m_vista;
    MessageBoxes& m_messaggi;
    FabbricaMotore m_fabbrica;
    std::unique_ptr<clsplg> m_motore; // made on first use, released at unload
    bool m_loaded = false;
    Scala m_scala;
};

} // namespace planner
