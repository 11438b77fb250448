// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/ftavtrmpl.h"

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
        m_risposta.reset();
        return Seguito::Continua;
    }
    if (!m_files.fileExists(m_collegamento.PathTransito())) {
        return Seguito::Termina;
    }
    const Seguito seguito = withoutTicks([this] { return lookAtRequest(); });
    if (seguito != Seguito::Continua) {
        m_collegamento.releaseEngine();
    }
    return seguito;
}

Seguito Ftavtrmpl::lookAtRequest() {
    if (!readRequest()) {
        return Seguito::Continua;
    }
    if (alreadyServed()) {
        deleteMarker();
        return Seguito::Continua;
    }
    return serveRequest();
}

bool Ftavtrmpl::readRequest() {
    const bool done = m_collegamento.tryToRead();
    if (done) {
        m_guaioTransito.over();
    } else if (m_guaioTransito.firstTime()) {
        m_collegamento.reportTransitFile();
    }
    return done;
}

Seguito Ftavtrmpl::serveRequest() {
    if (!m_collegamento.dispatch()) {
        return Seguito::Rinuncia;
    }
    m_risposta = m_collegamento.richiesta();
    deleteMarker();
    return m_collegamento.finished() ? Seguito::Termina : Seguito::Continua;
}

bool Ftavtrmpl::markerIsGone() {
    return m_files.deleteFile(FileLockPl) || !m_files.fileExists(FileLockPl);
}

void Ftavtrmpl::deleteMarker() {
    if (markerIsGone()) {
        m_guaioLock.over();
        m_risposta.reset(); // the marker was away: whatever comes next is a new request
    } else if (m_guaioLock.firstTime()) {
        m_collegamento.reportMarker(FileLockPl);
    }
}

bool Ftavtrmpl::congedo() {
    if (!m_collegamento.serving()) {
        if (!m_files.fileExists(FileLockPl) || !m_files.fileExists(m_collegamento.PathTransito())) {
            return true; // nobody has asked, or wants an answer
        }
        if (m_collegamento.tryToRead() && alreadyServed()) {
            return markerIsGone();
        }
    }
    return m_collegamento.answerWithClose() && markerIsGone();
}

} // namespace planner
