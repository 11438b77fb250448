// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/ftavtrmpl.h"

#include "archive/runtime_errors.h"

namespace planner {

Ftavtrmpl::Ftavtrmpl(mtavtrmpl& collegamento, FileSystem& files, PeriodicTimer& timer)
    : m_collegamento(collegamento), m_files(files), Timer1(timer),
      FileLockPl(collegamento.CartellaTransito() + "LockPl.lck") {}

Seguito Ftavtrmpl::Form_Load() {
    if (!m_files.fileExists(m_collegamento.PathTransito())) {
        m_collegamento.reportTransitFile();
        return Seguito::Termina;
    }
    if (m_collegamento.FlagAvvio() == "0") {
        m_files.deleteFile(m_collegamento.CartellaTransito() + "TvPlaOK.lck");
        return Seguito::Termina;
    }
    Timer1.setEnabled(true);
    return Seguito::Continua;
}

Seguito Ftavtrmpl::Timer1_Timer() {
    if (!m_files.fileExists(FileLockPl)) {
        return Seguito::Continua;
    }
    if (!m_files.fileExists(m_collegamento.PathTransito())) {
        return Seguito::Termina;
    }
    try {
        m_collegamento.readRequest();
    } catch (const FileError&) {
        return Seguito::Continua; // the host may be busy with the file; the next tick looks again
    }
    return serveRequest();
}

Seguito Ftavtrmpl::serveRequest() {
    Timer1.setEnabled(false);
    const bool written = m_collegamento.dispatch();
    if (written) {
        m_files.deleteFile(FileLockPl);
    }
    Timer1.setEnabled(true);
    if (!m_collegamento.finished()) {
        return Seguito::Continua;
    }
    m_collegamento.releaseEngine();
    return Seguito::Termina;
}

} // namespace planner
