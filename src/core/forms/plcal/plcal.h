// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/contenuti.h"
#include "forms/plcal/gesti.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/vista_plcal.h"
#include "forms/plfcollab/plfcollab.h"
#include "forms/tasti.h"
#include "ports/guard.h"
#include "ports/planner_window.h"

#include <optional>

namespace planner {

class plfgraf;
class plfimp;

/// The planner window's logic: its life from load to unload, and what its events do. The widgets are behind
/// `VistaPlcal`. A run-time error in an event is said in a message box, and the planner goes on.
class plcal : public PlannerWindow {
public:
    struct Porte {
        VistaPlcal& vista;
        MessageBoxes& messaggi;
        std::function<void(plfimp&)> finestraImpegno; // asks, modal; the answer is in the form
        plfcollab& collaboratori;
        std::function<void(plfgraf&)> finestraGrafici; // shows the visible chart, modal
        std::function<void(ComandoGriglia)> suCarta;   // copies or prints the visible grid; may ask, modal
    };

    plcal(modpl& sessione, ControlliPlcal& controlli, Contenuti& contenuti, const Porte& porte)
        : m_sessione(sessione), m_controlli(controlli), m_contenuti(contenuti), m_porte(porte) {}

    // The window as the engine sees it.
    bool isLoaded() const override { return m_loaded; }
    void load() override;
    void show() override;
    void bringToFront() override;
    void unload() override;
    void hide() override;

    // Its life.
    /// Key codes are those of the Windows virtual keys.
    void Form_Load();
    void Form_Activate();
    /// Escape closes the window; true when the key did something.
    bool Form_KeyDown(int tasto);
    void Form_Unload();

    /// Midnight has passed.
    void giornoCambiato();

    /// The user acted on a place of the visible grid: moves what `EffettiGesti` says. Places that it does not
    /// list, and those outside the grid, are ignored.
    void griglia_Gesto(const Gesto& gesto);
    /// The day was picked in the calendar itself; days outside the period change nothing.
    void calendario_DateClick(Data giorno);

    // Period buttons, by the index of their group.
    void bselm_Click(int indice) { premi("bselm", indice); }
    void bselg_Click(int indice) { premi("bselg", indice); }
    void bselA_Click(int indice);
    /// The button of the group.
    void pulsantePeriodo_Click(const PulsantePeriodo& pulsante);
    /// True when the button would move the period or answer the host.
    bool pulsantePeriodoAttivo(const PulsantePeriodo& pulsante) const { return mossa(pulsante).has_value(); }

    // Toolbar.
    /// Acts on the key of a button; a key that is not in the table does nothing.
    void Toolbar1_ButtonClick(std::string_view chiave);
    /// Refills the grid of the current kind at the level of detail that the toolbar shows.
    void refreshGrid();
    /// Copies, prints or reads the visible grid; nothing without one.
    void griglia_Comando(ComandoGriglia comando);

    // What the widgets show besides the controls.
    static constexpr std::string_view StatoIniziale = "Scegliere una casella: qui se ne legge il contenuto.";
    const PannelloDettagli& pannello() const { return m_pannello; }
    /// The status line, UTF-8: what is wrong with the data shown, if anything, and a sentence on the current
    /// cell.
    std::string stato() const;
    const Scala& scala() const { return m_scala; }

private:
    const RegoleTipo& tipo() const { return regole(*m_controlli.tipoVisibile); }
    Griglia& griglia() const { return *m_controlli.grigliaVisibile(); }
    /// Every event of the window runs in here: a run-time error is said and the window shows what there is.
    template <typename Command>
    void esegui(Command command) {
        runCommand(m_porte.messaggi, command);
        m_porte.vista.aggiorna();
    }

    // plcal_selection.cpp
    void applica(const EffettoGesto& effetto, const Gesto& gesto);
    void Click(Casella casella);
    void flxa_RowColChange(Casella casella);
    void SelChange(Scelta scelta);
    void flxa_SelChange(Casella casella);
    void selectStaff();
    void setStaff(IndiceCollaboratore indice);
    void markShownCell();
    void restoreMarks();
    void describeCurrentCell();
    void annunciaTotali(Mezzo mezzo);
    int rigaCursore() const;
    void posizionaCursore(int colonnaGiornaliera);

    // plcal_period.cpp
    std::optional<Data> mossa(const PulsantePeriodo& pulsante) const;
    void premi(std::string_view gruppo, int indice);
    void refill(Data giorno);
    void showPickedDay(Data giorno);

    // plcal_commands.cpp
    void reply(std::string_view azione);
    void consult();
    bool canConsult() const;
    /// Writes the status line and has it spoken.
    void annunciaStato(const std::string& testo);
    void insimp();
    void showStaffList();
    void showChart();
    void setDettagliato(bool dettagliato);

    modpl& m_sessione;
    ControlliPlcal& m_controlli;
    Contenuti& m_contenuti;
    Porte m_porte;
    bool m_loaded = false;
    Scala m_scala;
    PannelloDettagli m_pannello;
    std::string m_stato;
    std::string m_totaliDetti; // the last ones that were spoken
};

} // namespace planner
