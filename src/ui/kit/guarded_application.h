// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/message_boxes.h"

#include <QApplication>
#include <QSet>

#include <functional>

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

    /// What happens when the session manager, or the toolkit, wishes that the program end.
    void onQuit(std::function<void()> quit) { m_quit = std::move(quit); }

    bool notify(QObject* receiver, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    bool isRepeatedAnswer(const QObject& receiver, const QEvent& event);
    void report(const QString& trouble);

    quint64 m_released =
        0; // when Escape or Enter was last let go, by the window system's clock in milliseconds

    MessageBoxes* m_messaggi = nullptr;
    std::function<void()> m_quit;
    QSet<QString> m_said;
};

} // namespace planner
