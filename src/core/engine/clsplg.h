// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/contenuti.h"
#include "engine/motore.h"
#include "ports/event_pump.h"
#include "ports/planner_window.h"

namespace planner {

struct DateInArrivo;

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

/// The planner engine: over what fills the window's contents, all that lives as long as a request.
class clsplg : public Contenuti, public Motore {
public:
    explicit clsplg(const Ambiente& a)
        : Contenuti(a.sessione, a.controlli, a.files, a.messaggi, a.orologio), m_finestra(a.finestra),
          m_eventi(a.eventi) {}

    void WPlanner(std::string& tipoplanner, const std::string& startdate, const std::string& enddate,
                  const std::string& PathArchivi, const std::string& tipocall, std::string& collab,
                  std::string& valret, std::string& Windowcaption, std::string& planrichiesto) override;

    void chiusura(std::string& collab, std::string& valret) const override;

    /// Unloads the planner window.
    void WUscita();

    /// Sets up session, archives, grid and captions for a request; WPlanner then shows the window. `chiave`
    /// is the kind followed by the day to show as yyyymmdd, `collab` the incoming staff code.
    void Init_planner(const std::string& chiave, const std::string& startdate, const std::string& enddate,
                      const std::string& collab);

private:
    void openSession(const std::string& Windowcaption, const std::string& PathArchivi);
    void setUp(std::string_view tipoplanner, const DateInArrivo& date, const std::string& collab);
    void setToolbarForKind();
    void fillForKind(std::string_view tipoplanner, const std::string& collab);

    PlannerWindow& m_finestra;
    EventPump& m_eventi;
};

} // namespace planner
