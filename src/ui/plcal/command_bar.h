// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/toolbar.h"

#include <QToolBar>

#include <vector>

namespace planner {

/// The toolbar `Toolbar1`: one action per command, with separators between.
class CommandBar : public QToolBar {
    Q_OBJECT
public:
    explicit CommandBar(QWidget* parent);

    /// Shows which commands can be used. A button that goes while it has the focus passes it to its twin,
    /// else to `successor`, never to another command; null for nobody.
    void update(const StatoToolbar& stato, QWidget* successor);
    QAction* command(Pulsante pulsante) const;

Q_SIGNALS:
    void ButtonClick(const QByteArray& chiave);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void addCommand(const DescrizionePulsante& described);
    void passFocus(Pulsante pulsante, const StatoToolbar& stato, QWidget* successor);

    struct Comando {
        Pulsante pulsante;
        QAction* action;
    };
    std::vector<Comando> m_comandi;
};

} // namespace planner
