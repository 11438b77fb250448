// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "engine/motore.h"
#include "engine/staff_list.h"
#include "ports/clock.h"
#include "ports/event_pump.h"
#include "ports/file_system.h"
#include "ports/message_boxes.h"
#include "ports/planner_window.h"
#include "session/modpl.h"

namespace planner {

/// What the engine works with; `main` wires it.
struct Ambiente {
    modpl& sessione;
    ControlliPlcal& controlli;
    PlannerWindow& finestra;
    FileSystem& files;
    MessageBoxes& messaggi;
    EventPump& eventi;
    const Clock& orologio;
};

/// The planner engine: serves a request, reads the archives, and lays out, fills and clears the grids. All
/// state is in the session and in the window's controls, so that any number of engines may share them.
class clsplg : public Motore {
public:
    explicit clsplg(const Ambiente& ambiente) : m(ambiente) {}

    void WPlanner(std::string& tipoplanner, const std::string& startdate, const std::string& enddate,
                  const std::string& PathArchivi, const std::string& tipocall, std::string& collab,
                  std::string& valret, std::string& Windowcaption, std::string& planrichiesto) override;

    /// Unloads the planner window.
    void WUscita();

    /// Sets up session, archives, grid and captions for a request; WPlanner then shows the window. `chiave`
    /// is the kind followed by the day to show as yyyymmdd, `collab` the incoming staff code.
    void Init_planner(const std::string& chiave, const std::string& startdate, const std::string& enddate,
                      const std::string& collab);

    /// Writes the title label for the period that the calendar shows.
    void Let_planner(const std::string& collab = {});

    /// Readers: a failure is shown in a message box (LeggiCollab: returned as false) and the tables keep what
    /// they have.
    void LeggiDati();
    void LeggiDatiAnnuali();
    bool LeggiCollab();
    void LeggiDatiPerGrafici();

    /// Fills the selection list: one row per staff member, in the order of the archive, none checked, none
    /// selected, not sorted.
    void PopolaListaCollab(ListaCollaboratori& List_Prenotazione) const;

    /// Weekday of the first day of the shown month, into the session.
    void Dayofweek();

    /// The grids of the three kinds: layout, fill, clear. A fill that had to leave records out says so once.
    void showgrid();
    void showgrid2();
    void showgrid3();
    void PopolaGrid1();
    void PopolaGrid2();
    void PopolaGrid3();
    void PulisciGrid1();
    void PulisciGrid2();
    void PulisciGrid3();

    /// Look-ups in the staff table; see engine/session/staff.h.
    std::int16_t IndCollaboratore(std::string_view codice) const;
    std::string EstraiCollaboratore(std::string_view codice) const;

private:
    void openSession(const std::string& Windowcaption, const std::string& PathArchivi);
    void prepareMonthly();
    void prepareDaily();
    void prepareYearly();
    void prepareKind(const std::string& collab);
    void setToolbarForKind();
    void setGridRows();
    void announce(const EsitoRiempimento& esito);
    std::string archivePath(std::string_view file) const;
    std::string monthlyTitle() const;
    std::string dailyTitle() const;
    std::string yearlyTitle(const std::string& collab) const;

    Ambiente m;
};

} // namespace planner
