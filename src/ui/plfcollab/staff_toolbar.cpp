// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfcollab/staff_toolbar.h"

#include "ui/kit/text.h"
#include "ui/kit/tool_commands.h"

#include <QAction>

namespace planner {

namespace {

QString objectNameOf(ComandoCollab comando) {
    return QStringLiteral("Toolbar_pren_") + QString::number(static_cast<int>(comando));
}

} // namespace

StaffToolbar::StaffToolbar(QWidget* parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("Toolbar_pren"));
    setAccessibleName(QStringLiteral("Comandi"));
    setUpToolBar(*this);
    int next = static_cast<int>(ComandiCollab.front().posizione);
    for (const DescrizioneComandoCollab& described : ComandiCollab) {
        if (static_cast<int>(described.posizione) > next) {
            addSeparator();
        }
        addCommand(described);
        next = static_cast<int>(described.posizione) + 1;
    }
}

void StaffToolbar::addCommand(const DescrizioneComandoCollab& described) {
    QAction* action = addToolCommand(*this, {objectNameOf(described.posizione), described.didascalia,
                                             described.immagine, described.scorciatoia});
    if (described.posizione != ComandoCollab::conferma) { // Enter is for the button that has the focus, first
        action->setShortcut(QKeySequence(fromUtf8(described.scorciatoia)));
    }
    connect(action, &QAction::triggered, this,
            [this, &described] { Q_EMIT ButtonClick(static_cast<int>(described.posizione)); });
}

QAction* StaffToolbar::command(ComandoCollab comando) const {
    return findChild<QAction*>(objectNameOf(comando), Qt::FindDirectChildrenOnly);
}

} // namespace planner
