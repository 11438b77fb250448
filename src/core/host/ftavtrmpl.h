// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/mtavtrmpl.h"
#include "ports/periodic_timer.h"

#include <optional>
#include <string>
#include <utility>

namespace planner {

/// A trouble that goes on is said once, and again only after it was over.
class SaidOnce {
public:
    /// True when the trouble has not been said since it was over.
    bool firstTime() { return !std::exchange(m_said, true); }
    void over() { m_said = false; }

private:
    bool m_said = false;
};

/// Polling mode: a hidden form whose timer looks for the host's marker file.
class Ftavtrmpl {
public:
    Ftavtrmpl(mtavtrmpl& collegamento, FileSystem& files, PeriodicTimer& Timer1);

    /// Starts the timer, unless the transit file is missing or the host only wants its marker removed.
    Seguito Form_Load();

    /// One tick: serves the request that the marker announces, if there is one. The marker goes after the
    /// answer is in the file and never before; it stays when the user gives up an answer that cannot be
    /// written, which ends the program. A request is served once, until the marker was away or the record is
    /// another. A transit file that cannot be read and a marker that cannot be deleted are said once and
    /// tried again silently at each tick.
    Seguito Timer1_Timer();

    /// The end from outside, in whatever state: answers a request under way with "E" and deletes the marker.
    /// Says nothing; false when the host could not be told.
    bool congedo();

private:
    /// No tick comes while the planner or a message is open.
    template <typename Work>
    Seguito withoutTicks(Work work);
    Seguito lookAtRequest();
    bool readRequest();
    bool alreadyServed() const { return m_risposta && m_collegamento.richiesta() == *m_risposta; }
    Seguito serveRequest();
    void deleteMarker();
    bool markerIsGone();

    mtavtrmpl& m_collegamento;
    FileSystem& m_files;
    PeriodicTimer& Timer1;
    std::string FileLockPl;
    std::optional<TransitRequest> m_risposta; // to a request whose marker is still there
    SaidOnce m_guaioTransito;
    SaidOnce m_guaioLock;
};

} // namespace planner
