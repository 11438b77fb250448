// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/campi.h"

#include <QFrame>

#include <functional>

class QLabel;
class QLineEdit;

namespace planner {

/// A small field over the window for one text. Enter (or F3) confirms, Escape closes the field alone, and so
/// does leaving it; keys that the field has no use for go no further.
class PromptField : public QFrame {
    Q_OBJECT
public:
    explicit PromptField(QWidget* parent);

    /// `confirm` hears the text as often as the user confirms one, and says whether the field is done.
    void open(const DescrizioneCampo& campo, const QString& text,
              std::function<bool(const QString&)> confirm);

Q_SIGNALS:
    /// The field has closed and leaves the focus to others.
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* makeEdit(const DescrizioneCampo& campo);
    void confirm();
    void leave();

    QLabel* m_caption;
    QLineEdit* m_edit = nullptr; // a new one for each text; none before the first
    std::function<bool(const QString&)> m_confirm;
};

} // namespace planner
