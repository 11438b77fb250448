// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/clsplg.h"
#include "platform/system/system_clock.h"
#include "platform/system/system_file_system.h"
#include "ui/planner_windows.h"
#include "ui/ports/qt_event_pump.h"
#include "ui/ports/qt_message_boxes.h"

namespace planner {

/// Makes a sample archive of the year 2006 in an existing folder.
void makeSample(const std::string& folder, int staff, int records);

/// What `main` wires, without a host, over such an archive.
class SamplePlanner {
public:
    explicit SamplePlanner(const std::string& folder);

    /// Reads the archives and fills January's grid, as for a request.
    void prepare();
    /// Serves a request for January's monthly planner up to where it waits for the user, all painted.
    void show();
    PlannerWindows& finestre() { return m_finestre; }

private:
    std::unique_ptr<clsplg> newEngine();

    SystemFileSystem m_files;
    SystemClock m_orologio;
    QtMessageBoxes m_messaggi;
    QtEventPump m_eventi;
    modpl m_sessione;
    ControlliPlcal m_controlli;
    Contenuti m_contenuti{m_sessione, m_controlli, m_files, m_messaggi, m_orologio};
    PlannerWindows m_finestre{m_sessione, m_controlli, m_contenuti, m_messaggi};
};

} // namespace planner
