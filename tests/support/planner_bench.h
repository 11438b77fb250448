// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/readers.h"
#include "engine/clsplg.h"
#include "support/builders.h"
#include "support/fakes.h"
#include "support/memory_file_system.h"

namespace planner::test {

/// A planner engine with everything around it faked: archives in memory, a window that only notes what it is
/// told, a user who acts by script, and 15 March 2006 as today.
struct PlannerBench {
    static constexpr Data Oggi{std::chrono::year{2006}, std::chrono::March, std::chrono::day{15}};
    static constexpr const char* Cartella = "C:\\arch";

    Journal journal;
    modpl sessione;
    ControlliPlcal controlli;
    FakeWindow finestra{journal};
    MemoryFileSystem files{journal};
    RecordingMessages messaggi{journal};
    ScriptedPump eventi{journal};
    FixedClock orologio{Oggi};
    clsplg motore{{sessione, controlli, finestra, files, messaggi, eventi, orologio}};

    /// A small office (Bianchi "BI", Rossi "RB", Verdi "7 ") without any entries.
    PlannerBench();

    void putRighe(const std::vector<RigaPlanner>& righe) { put(FileRighe, bytesOf(righe)); }
    void putCollaboratori(const std::vector<Collaboratore>& staff) { put(FileCollaboratori, bytesOf(staff)); }
    void putAnnuale(const std::vector<MesePlanner>& mesi) { put(FileAnnuale, bytesOf(mesi)); }
    void putGrafici(const std::vector<RigaGrafico>& righe) { put(FileGrafici, bytesOf(righe)); }
    void put(std::string_view file, std::string bytes) { files.put(path(file), std::move(bytes)); }
    static std::string path(std::string_view file) { return Cartella + std::string(file); }

    /// Sets the planner up for a request, as WPlanner does before it waits for the user: a kind, the day to
    /// show (yyyymmdd), and the request's period.
    void init(std::string_view tipo, std::string_view giorno = "00000000",
              std::string_view startdate = "20060101", std::string_view enddate = "20061231",
              std::string_view collab = "  ");

    /// Serves a whole request; the user's actions come from `eventi`. The in/out texts come back in `call`.
    void serve(WPlannerCall& call);
    /// Serves a request of the given flags whose user closes at once.
    void serveAndClose(std::string_view tipo, std::string_view modo = " ", std::string_view tipocall = " ",
                       std::string_view planrichiesto = " ");
    /// The request that `serve` passes on: monthly, 2006, no incoming day.
    static WPlannerCall richiestaMensile();

    /// An action of the user that ends the session with the answer.
    Action answers(std::string valret, std::string collab = "  ");
};

} // namespace planner::test
