// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/kinds/kind.h"
#include "engine/staff_list.h"
#include "ports/clock.h"
#include "ports/file_system.h"
#include "ports/message_boxes.h"

namespace planner {

/// Fills the planner window's contents from the archives. All state is in the session and in the window's
/// controls, so that any number of these may share them.
class Contenuti {
public:
    Contenuti(modpl& sessione, ControlliPlcal& controlli, FileSystem& files, MessageBoxes& messaggi,
              const Clock& orologio)
        : m_sessione(sessione), m_controlli(controlli), m_messaggi(messaggi), m_orologio(orologio),
          m_files(files) {}

    /// Reads the archive of the visible kind, and lays its grid out, fills and titles it. Nothing without a
    /// visible grid, as with the next two.
    void prepara(const std::string& collab = {});
    /// The same after the shown day has moved, as far as the day asks for it.
    void rinnova();
    /// Clears the grid and fills it at the toolbar's level of detail.
    void ricompila();
    /// Marks today in the visible grid.
    void segnaOggi();
    Data oggi() const { return m_orologio.today(); }

    /// Writes the title label for the period that the calendar shows.
    void Let_planner(const std::string& collab = {});

    /// Readers: a failure is shown in a message box (LeggiCollab: returned as false) and the tables keep what
    /// they have.
    void LeggiDati();
    void LeggiDatiAnnuali();
    bool LeggiCollab();
    void LeggiDatiPerGrafici();
    /// LeggiDatiAnnuali, with the calendar kept on its day.
    void leggiAnnoMostrato();

    /// Fills the selection list: one row per staff member, in the order of the archive, none checked, none
    /// selected, not sorted.
    void PopolaListaCollab(ListaCollaboratori& List_Prenotazione) const;

    /// The weekday of the shown month's first day, 1 = Sunday.
    std::int16_t Dayofweek() const { return m_controlli.PrimoGiornoSettimana(); }

    /// The grids of the three kinds: layout, fill, clear. A fill that had to leave records out says so once.
    void showgrid();
    void showgrid2() { planner::showgrid2(m_controlli.flxg); }
    void showgrid3();
    void PopolaGrid1();
    void PopolaGrid2();
    void PopolaGrid3();
    void PulisciGrid1() { clearStaffRows(m_controlli.Flxm, m_controlli.Toolbar1.dettagliato()); }
    void PulisciGrid2() { clearStaffRows(m_controlli.flxg, m_controlli.Toolbar1.dettagliato()); }
    void PulisciGrid3() { clearRows(m_controlli.flxa); }

    /// Look-ups in the staff table; see session/staff.h.
    IndiceCollaboratore IndCollaboratore(std::string_view codice) const {
        return m_sessione.indiceCodici.IndCollaboratore(codice);
    }
    std::string EstraiCollaboratore(std::string_view codice) const;

protected:
    modpl& m_sessione;
    ControlliPlcal& m_controlli;
    MessageBoxes& m_messaggi;
    const Clock& m_orologio;

private:
    void setGridRows();
    void announce(const EsitoRiempimento& esito);

    FileSystem& m_files;
};

} // namespace planner
