// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/command_bar.h"

#include "ui/kit/controls.h"
#include "ui/kit/text.h"
#include "ui/kit/tool_commands.h"

#include <QAction>
#include <QLayout>

namespace planner {

CommandBar::CommandBar(QWidget* parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("Toolbar1"));
    setUpToolBar(*this);
    for (const DescrizionePulsante& described : PulsantiToolbar) {
        addCommand(described);
    }
}

void CommandBar::addCommand(const DescrizionePulsante& described) {
    QAction* action =
        addToolCommand(*this, {static_cast<int>(described.posizione), fromUtf8(described.chiave),
                               described.didascalia, described.chiave, described.scorciatoia});
    action->setShortcuts(qtKeys(described.scorciatoia));
    action->setAutoRepeat(false); // a held key is not to reach the next request
    connect(action, &QAction::triggered, this, [this, &described] {
        Q_EMIT ButtonClick(
            QByteArray(described.chiave.data(), static_cast<qsizetype>(described.chiave.size())));
    });
    m_comandi.push_back({described.posizione, action});
}

void CommandBar::resizeEvent(QResizeEvent* event) {
    fitLetters(*this, size());
    fitPictures(*this, height());
    QToolBar::resizeEvent(event);
}

QAction* CommandBar::command(Pulsante pulsante) const {
    for (const Comando& comando : m_comandi) {
        if (comando.pulsante == pulsante) {
            return comando.action;
        }
    }
    return nullptr;
}

void CommandBar::update(const StatoToolbar& stato, QWidget* successor) {
    const auto usable = [&](const Comando& comando) {
        return stato.enabled(comando.pulsante) && stato.visible(comando.pulsante);
    };
    for (const Comando& comando : m_comandi) { // what comes first, so that the focus has where to go
        if (usable(comando)) {
            comando.action->setVisible(true);
            comando.action->setEnabled(true);
        }
    }
    for (const Comando& comando : m_comandi) {
        if (!usable(comando)) {
            passFocus(comando.pulsante, stato, successor);
            comando.action->setEnabled(stato.enabled(comando.pulsante));
            comando.action->setVisible(stato.visible(comando.pulsante));
        }
    }
}

void CommandBar::passFocus(Pulsante pulsante, const StatoToolbar& stato, QWidget* successor) {
    if (window()->focusWidget() != widgetForAction(command(pulsante))) {
        return;
    }
    const auto twin = gemello(pulsante);
    if (twin && stato.enabled(*twin)) {
        layout()->activate(); // the twin's button is not in its place before
        successor = widgetForAction(command(*twin));
    }
    if (successor != nullptr) {
        successor->setFocus();
    }
}

} // namespace planner
