// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/ftavtrmpl.h"

#include "ports/runtime_errors.h"

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

template <typename Work>
Seguito Ftavtrmpl::withoutTicks(Work work) {
    struct Pause {
        PeriodicTimer& timer;
        ~Pause() { timer.setEnabled(true); } // whatever happens: the host counts on the next tick
    };
    Timer1.setEnabled(false);
    const Pause pause{Timer1};
    return work();
}

Seguito Ftavtrmpl::Timer1_Timer() {
    if (!m_files.fileExists(FileLockPl)) {
        m_servita.reset();
        return Seguito::Continua;
    }
    if (!m_files.fileExists(m_collegamento.PathTransito())) {
        return Seguito::Termina;
    }
    const Seguito seguito = withoutTicks([this] { return lookAtRequest(); });
    if (seguito == Seguito::Termina) {
        m_collegamento.releaseEngine();
    }
    return seguito;
}

Seguito Ftavtrmpl::lookAtRequest() {
    if (!readRequest()) {
        return Seguito::Continua;
    }
    if (alreadyServed()) {
        completeAnswer();
        return Seguito::Continua;
    }
    serveRequest();
    return m_collegamento.finished() ? Seguito::Termina : Seguito::Continua;
}

bool Ftavtrmpl::readRequest() {
    try {
        m_collegamento.readRequest();
        m_guaioTransito.over();
        return true;
    } catch (const FileError&) {
        if (m_guaioTransito.firstTime()) {
            m_collegamento.reportTransitFile();
        }
        return false;
    }
}

bool Ftavtrmpl::alreadyServed() const {
    const TransitRequest& now = m_collegamento.richiesta();
    // A failed write can have left the request or the answer in the file.
    return m_servita && (now == m_servita->risposta || (!m_servita->scritta && now == m_servita->richiesta));
}

void Ftavtrmpl::serveRequest() {
    const TransitRequest richiesta = m_collegamento.richiesta();
    const bool scritta = m_collegamento.dispatch();
    m_servita = {richiesta, m_collegamento.richiesta(), scritta};
    if (scritta) {
        deleteMarker();
    }
}

void Ftavtrmpl::completeAnswer() {
    m_servita->scritta = m_servita->scritta || m_collegamento.repeatAnswer(m_servita->risposta);
    if (m_servita->scritta) {
        deleteMarker();
    }
}

void Ftavtrmpl::deleteMarker() {
    if (m_files.deleteFile(FileLockPl) || !m_files.fileExists(FileLockPl)) {
        m_guaioLock.over();
        m_servita.reset(); // the marker was away: whatever comes next is a new request
    } else if (m_guaioLock.firstTime()) {
        m_collegamento.reportMarker(FileLockPl);
    }
}

} // namespace planner
