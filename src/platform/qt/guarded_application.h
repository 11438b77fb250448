// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ports/message_boxes.h"

#include <QApplication>
#include <QSet>

class QKeyEvent;

namespace planner {

/// The toolkit's application with a guard around every event. What an event's handler throws is said once,
/// after the event, and the planner goes on. Escape and Enter that come because the key is held down reach
/// nobody: a held key answers one window, not those that come into sight behind it.
class GuardedApplication : public QApplication {
    Q_OBJECT
public:
    using QApplication::QApplication;

    /// Where troubles are said; until it is set, and after `nullptr`, they are only kept from the toolkit.
    void setMessages(MessageBoxes* messaggi) { m_messaggi = messaggi; }

    /// A new request begins: the release of the key that ended the last one may have gone to another program.
    void forgetKeys() { m_answer = {}; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    /// The last Escape or Enter, by the window system's clock in milliseconds.
    struct AnswerKey {
        int key = 0;
        bool down = false; // its release has not been seen
        quint64 pressed = 0, released = 0;

        /// Takes the event in; true when it only repeats the press before.
        bool isHeld(const QKeyEvent& event, bool press);
    };

    bool isRepeatedAnswer(const QObject& receiver, const QEvent& event);
    void report(const QString& trouble);

    AnswerKey m_answer;

    MessageBoxes* m_messaggi = nullptr;
    QSet<QString> m_said;
};

} // namespace planner
