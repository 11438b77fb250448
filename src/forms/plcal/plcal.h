// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/clsplg.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/row_marks.h"
#include "forms/plcal/vista_plcal.h"
#include "forms/plfcollab/plfcollab.h"
#include "forms/plfgraf/finestra_grafici.h"
#include "forms/plfimp/plfimp.h"
#include "platform/ports/planner_window.h"

#include <functional>
#include <memory>
#include <optional>

namespace planner {

/// The planner window's logic: its life from load to unload, and what its events do. The widgets are behind
/// `VistaPlcal`. A run-time error in an event is said in a message box, and the planner goes on.
class plcal : public PlannerWindow {
public:
    using FabbricaMotore = std::function<std::unique_ptr<clsplg>()>;

    struct Porte {
        VistaPlcal& vista;
        MessageBoxes& messaggi;
        FinestraImpegno& finestraImpegno;
        plfcollab& collaboratori;
        FinestraGrafici& finestraGrafici;
    };

    plcal(modpl& sessione, ControlliPlcal& controlli, const Porte& porte, FabbricaMotore fabbrica);

    // The window as the engine sees it.
    bool isLoaded() const override { return m_loaded; }
    void load() override;
    void show() override;
    void bringToFront() override;
    void unload() override;
    void hide() override;

    // Its life.
    /// Key codes are those of the Windows virtual keys.
    static constexpr int TastoEscape = 27;
    void Form_Load();
    void Form_Activate();
    /// Escape closes the window; true when the key did something.
    bool Form_KeyDown(int tasto);
    void Form_Unload();

    // Cells of the visible grid, in the grid's own rows and columns; what lies outside it is ignored.
    /// The cell became the current one.
    void SelChange(int riga, int colonna);
    /// The cell was clicked: the calendar follows to its day.
    void Click(int riga, int colonna);
    /// The current cell moved: the calendar follows only while a navigation key is held down, since a mouse's
    /// move ends in a click.
    void RowColChange(int riga, int colonna, bool tastoTenuto);
    /// The day was picked in the calendar itself; days outside the period change nothing.
    void calendario_DateClick(Data giorno);

    // Period buttons, by the index of their group.
    void bselm_Click(int indice);
    void bselg_Click(int indice);
    void bselA_Click(int indice);
    /// The button of the group.
    void pulsantePeriodo_Click(const PulsantePeriodo& pulsante);
    /// True when the button would move the period or answer the host.
    bool pulsantePeriodoAttivo(const PulsantePeriodo& pulsante) const;

    // Toolbar.
    /// Acts on the key of a button; a key that is not in the table does nothing.
    void Toolbar1_ButtonClick(std::string_view chiave);
    /// Refills the grid of the current kind at the level of detail that the toolbar shows.
    void refreshGrid();

    // What the widgets show besides the controls.
    static constexpr std::string_view StatoIniziale = "Scegliere una casella: qui se ne legge il contenuto.";
    const PannelloDettagli& pannello() const { return m_pannello; }
    /// The status line: a sentence on the current cell, UTF-8.
    const std::string& stato() const { return m_stato; }
    const Scala& scala() const { return m_scala; }

private:
    clsplg& motore();
    template <typename Command>
    void esegui(Command command);

    // plcal_selection.cpp
    bool cellaDati(int riga, int colonna) const;
    void selectStaffCell(Griglia& griglia, int riga, int colonna);
    void setStaff(int indice);
    void showTotals(int indice);
    void flxa_SelChange(int riga, int colonna);
    void Flxm_Click(int colonna);
    void flxa_Click(int riga, int colonna);
    void describeCurrentCell();
    void afterRefill(int riga, int colonna);
    std::optional<int> columnOfShownDay() const;

    // plcal_period.cpp
    void showMonth(Data giorno);
    void showDay(Data giorno);

    // plcal_commands.cpp
    void reply(std::string_view azione);
    std::string composedReply(std::string_view azione) const;
    void consult();
    bool canConsult() const;
    void insimp();
    void showStaffList();
    void showChart();
    void setDettagliato(bool dettagliato);

    modpl& m_sessione;
    ControlliPlcal& m_controlli;
    Porte m_porte;
    FabbricaMotore m_fabbrica;
    std::unique_ptr<clsplg> m_motore; // made on first use, released at unload
    bool m_loaded = false;
    Scala m_scala;
    PannelloDettagli m_pannello;
    RowMarks m_marks; // of the visible grid
    std::string m_stato;
};

} // namespace planner
