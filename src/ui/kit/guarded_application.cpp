// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/guarded_application.h"

#include "ports/guard.h"
#include "ui/kit/controls.h"

#include <QKeyEvent>
#include <QSessionManager>

namespace planner {

namespace {

constexpr quint64 SamePress = 5; // ms between a release and a press that no finger makes

bool isAnswer(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape || isEnter(event);
}

} // namespace

GuardedApplication::GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {
    const auto neverRestart = [](QSessionManager& session) {
        session.setRestartHint(QSessionManager::RestartNever);
    };
    // Either is when the session manager is told, and it believes the last.
    connect(this, &QGuiApplication::saveStateRequest, this, neverRestart, Qt::DirectConnection);
    connect(this, &QGuiApplication::commitDataRequest, this, neverRestart, Qt::DirectConnection);
}

bool GuardedApplication::isRepeatedAnswer(const QObject& receiver, const QEvent& event) {
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (!isAnswer(key)) {
        return false;
    }
    const bool press = event.type() == QEvent::KeyPress;
    // A key comes to the window first, with its time. The toolkit knows a repetition, which is a release and
    // a press in one moment, only if both have come when it looks. Once more, without a time, comes a key
    // that a screen reader has seen and hands back.
    const bool timed = receiver.isWindowType() && key.timestamp() != 0;
    const bool held = timed && press && key.timestamp() - m_released < SamePress;
    if (timed && !press) {
        m_released = key.timestamp();
    }
    return press && (held || key.isAutoRepeat());
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    if (isRepeatedAnswer(*receiver, *event)) {
        event->accept();
        return true;
    }
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        report(fromUtf8(operazioneNonRiuscita(error)));
    } catch (...) {
        report(QStringLiteral("Errore imprevisto."));
    }
    return true;
}

bool GuardedApplication::event(QEvent* event) {
    if (event->type() == QEvent::Quit && m_quit) {
        m_quit();
        return true;
    }
    return QApplication::event(event);
}

void GuardedApplication::report(const QString& trouble) {
    if (m_said.contains(trouble)) {
        return; // a painting that fails would say so with every painting
    }
    m_said.insert(trouble);
    const auto say = [this, trouble] {
        if (m_messaggi != nullptr) {
            m_messaggi->critical(trouble.toStdString());
        }
    };
    QMetaObject::invokeMethod(this, say, Qt::QueuedConnection);
}

} // namespace planner
