// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/contenuti.h"
#include "forms/plcal/campi.h"
#include "forms/plcal/gesti.h"
#include "forms/plcal/ingrandimento.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/salti.h"
#include "forms/plcal/vista_plcal.h"
#include "forms/plfcollab/plfcollab.h"
#include "forms/tasti.h"
#include "ports/collation.h"
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
        /// Copies or prints the visible grid; may ask, modal. True when that was done.
        std::function<bool(ComandoGriglia)> suCarta;
        const Collation& alfabeto;
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
    /// Moves the shown day by the key's months, to the last day of a month that lacks it; outside the period
    /// the status line says so and nothing moves.
    void tastoPeriodo(const TastoPeriodo& tasto);
    /// Takes the cursor where the jump leads, as an arrow does; where it leads nowhere the status line says
    /// so.
    void griglia_Salto(const Salto& salto);
    /// The user has confirmed a field's text, UTF-8: goes there. False when there is nowhere to go, which the
    /// status line then says; the field stays open.
    bool campo_Conferma(CampoGriglia campo, const std::string& testo);
    /// A command of the visible grid; without one there is the guide alone.
    void griglia_Comando(ComandoGriglia comando);

    // What the widgets show besides the controls.
    static constexpr std::string_view StatoIniziale = "Scegliere una casella: qui se ne legge il contenuto.";
    const PannelloDettagli& pannello() const { return m_pannello; }
    /// The status line, UTF-8: what is wrong with the data shown, if anything, and a sentence on the current
    /// cell.
    std::string stato() const;
    const Scala& scala() const { return m_scala; }
    const Ingrandimento& ingrandimento() const { return m_ingrandimento; }

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
    bool mostraGiorno(Data giorno);

    // plcal_go.cpp
    /// Writes the status line and has it spoken.
    void annunciaStato(const std::string& testo);
    void ingrandita();
    void suCarta(ComandoGriglia comando);
    void apriCampo(CampoGriglia campo);
    bool cercaPersona();
    std::optional<int> rigaCercata() const;
    bool vaiAllaData(const std::string& testo);
    bool vaiA(Data giorno);

    // plcal_commands.cpp
    void reply(std::string_view azione);
    void consult();
    bool canConsult() const;
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
    Ingrandimento m_ingrandimento;
    PannelloDettagli m_pannello;
    std::string m_stato;
    std::string m_totaliDetti;  // the last ones that were spoken
    std::string m_testoCercato; // the last one, UTF-8
};

} // namespace planner
