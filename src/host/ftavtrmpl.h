// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/mtavtrmpl.h"
#include "platform/ports/periodic_timer.h"

#include <string>

namespace planner {

/// Polling mode: a hidden form whose timer looks for the host's marker file.
class Ftavtrmpl {
public:
    Ftavtrmpl(mtavtrmpl& collegamento, FileSystem& files, PeriodicTimer& Timer1);

    /// Starts the timer, unless the transit file is missing or the host only wants its marker removed.
    Seguito Form_Load();

    /// One tick: serves the request that the marker announces, if there is one. The marker goes after the
    /// answer is in the file and never before: an answer that could not be written leaves it, and the next
    /// tick serves the request again.
    Seguito Timer1_Timer();

private:
    Seguito serveRequest();

    mtavtrmpl& m_collegamento;
    FileSystem& m_files;
    PeriodicTimer& Timer1;
    std::string FileLockPl;
};

} // namespace planner
