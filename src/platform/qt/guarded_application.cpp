// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/qt/guarded_application.h"

#include "engine/guard.h"
#include "platform/qt/text.h"

#include <QKeyEvent>

namespace planner {

namespace {

bool isRepeatedAnswer(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& press = static_cast<const QKeyEvent&>(event);
    const int key = press.key();
    return press.isAutoRepeat() && (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter);
}

} // namespace

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    if (isRepeatedAnswer(*event)) {
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
