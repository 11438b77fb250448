// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace planner {

/// What a window says to a screen reader besides what has the focus. It never shows. For assistive programs
/// it is a status bar with one message in it: the place whose messages are spoken as they are, without the
/// name of what they are.
class Annuncio : public QWidget {
    Q_OBJECT
public:
    explicit Annuncio(QWidget* parent);

    /// Has the text spoken, if it is not empty and the window shows; behind another window of the program, as
    /// when a dialog goes, once this one has come back and what has the focus in it is said.
    void di(const QString& testo);
    /// What was said last.
    const QString& testo() const { return m_testo; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tell();

    QString m_testo;
    bool m_waiting = false;
};

} // namespace planner
