// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfcollab/commands.h"

#include <QToolBar>

namespace planner {

/// The toolbar `Toolbar_pren`: one action per command, with separators between.
class StaffToolbar : public QToolBar {
    Q_OBJECT
public:
    explicit StaffToolbar(QWidget* parent);

    QAction* command(ComandoCollab comando) const;

Q_SIGNALS:
    void ButtonClick(int indice);

private:
    void addCommand(const DescrizioneComandoCollab& described);
};

} // namespace planner
