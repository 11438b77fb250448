// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/session/toolbar.h"

#include <QToolBar>

#include <vector>

namespace planner {

/// The toolbar `Toolbar1`: one action per command, with separators between.
class CommandBar : public QToolBar {
    Q_OBJECT
public:
    explicit CommandBar(QWidget* parent);

    /// Shows which commands can be used.
    void update(const StatoToolbar& stato);
    QAction* command(Pulsante pulsante) const;

Q_SIGNALS:
    void ButtonClick(const QByteArray& chiave);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void addCommand(const DescrizionePulsante& described);

    struct Comando {
        Pulsante pulsante;
        QAction* action;
    };
    std::vector<Comando> m_comandi;
};

} // namespace planner
