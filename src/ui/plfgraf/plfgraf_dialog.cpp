// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/plfgraf_dialog.h"

#include "ui/plfgraf/chart_dialog.h"

#include <QApplication>

namespace planner {

void PlfgrafDialog::mostra(plfgraf& form) {
    ChartDialog dialog(form, m_messaggi, QApplication::activeWindow());
    dialog.exec();
}

} // namespace planner
