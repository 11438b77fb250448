// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/staff_list.h"
#include "forms/plfcollab/commands.h"
#include "forms/plfcollab/vista_plfcollab.h"
#include "ports/collation.h"
#include "ports/message_boxes.h"
#include "session/calendario.h"
#include "session/modpl.h"

#include <functional>

namespace planner {

/// The staff selection window's logic. The widgets are behind `VistaPlfcollab`. A run-time error in a command
/// is said in a message box, and the planner goes on.
class plfcollab {
public:
    struct Porte {
        std::function<VistaPlfcollab&()> vista; // the window, made when it is asked for
        MessageBoxes& messaggi;
        const Collation& alfabeto;
    };

    /// How many positions of checked rows can be remembered.
    static constexpr int MassimoRicordate = 101;

    /// `calendario` is the planner window's: the answer's date is the one it shows.
    plfcollab(modpl& sessione, const Calendario& calendario, const Porte& porte);

    /// The list's contents. Whoever changes its rows from outside shows the window anew.
    ListaCollaboratori& List_Prenotazione() { return m_lista; }
    const ListaCollaboratori& List_Prenotazione() const { return m_lista; }

    /// Shows the window with what the list holds now; a window in sight comes to the front.
    void show();
    /// Closes the window without an answer; nothing when it is not shown.
    void unload();
    bool isShown() const { return m_shown; }

    /// The button at a position of the toolbar, see `ComandoCollab`; other positions do nothing.
    void Toolbar_pren_ButtonClick(int indice);
    /// The arrow of an index, see `Freccia`; other indexes do nothing.
    void ButtonFrecce_Click(int indice);
    /// The user selected the row, or none; a row outside the list counts as none.
    void List_Prenotazione_ItemClick(std::optional<int> riga);
    /// The user set or cleared the row's check box; a row outside the list does nothing.
    void List_Prenotazione_ItemCheck(int riga, bool spuntata);
    /// Searches the last text again; asks for one when there is none.
    void cercaAncora();

    /// How many rows have a tick, and how many were taken out, UTF-8: "3 spuntati su 12, 4 tolti
    /// dall'elenco".
    std::string conteggio() const;

private:
    template <typename Command>
    void esegui(Command command);

    void mostraSoloSpuntate();
    void righeCambiate();
    void spuntaRicordate();
    void cerca();
    void cercaTesto();
    std::optional<int> trova(const std::string& testo) const;
    void ordina();
    void conferma();

    modpl& m_sessione;
    const Calendario& m_calendario;
    Porte m_porte;
    ListaCollaboratori m_lista;
    std::vector<int> m_ricordate; // positions from 1, ascending
    std::string m_testoCercato;   // the last one, UTF-8
    bool m_shown = false;
};

/// One sentence on a staff member for a screen reader, UTF-8: "Rossi Bruno, RB, Avvocato, spuntato".
std::string fraseCollaboratore(const RigaCollaboratore& riga);

} // namespace planner
