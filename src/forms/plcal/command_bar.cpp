// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/command_bar.h"

#include "platform/qt/appearance.h"
#include "platform/qt/text.h"

#include <QAction>
#include <QToolButton>

namespace planner {

namespace {

constexpr int IconSide = 24;

/// A caption of two words stands on two lines, so that the buttons stay narrow.
QString buttonText(std::string_view caption) {
    QString text = fromUtf8(caption);
    const qsizetype blank = text.indexOf(QLatin1Char(' '));
    return blank < 0 ? text + QLatin1Char('\n') : text.replace(blank, 1, QLatin1Char('\n'));
}

QString tipText(const DescrizionePulsante& described) {
    const QString caption = fromUtf8(described.didascalia);
    return described.scorciatoia.empty()
               ? caption
               : caption + QStringLiteral(" (") + fromUtf8(described.scorciatoia) + QLatin1Char(')');
}

} // namespace

CommandBar::CommandBar(const std::function<bool(Pulsante)>& available, QWidget* parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("Toolbar1"));
    setMovable(false);
    setIconSize(QSize(IconSide, IconSide));
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    for (const DescrizionePulsante& described : PulsantiToolbar) {
        addCommand(described);
        m_comandi.back().available = available(described.posizione);
    }
}

void CommandBar::addCommand(const DescrizionePulsante& described) {
    const bool afterSeparator = m_comandi.empty() || static_cast<int>(described.posizione) >
                                                         static_cast<int>(m_comandi.back().pulsante) + 1;
    if (afterSeparator && !m_comandi.empty()) {
        addSeparator();
    }
    QAction* action = addAction(qtIcon(described.chiave), fromUtf8(described.didascalia));
    action->setObjectName(fromUtf8(described.chiave));
    action->setIconText(buttonText(described.didascalia));
    action->setToolTip(tipText(described));
    action->setShortcut(QKeySequence(fromUtf8(described.scorciatoia)));
    widgetForAction(action)->setAccessibleName(fromUtf8(described.didascalia));
    widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    connect(action, &QAction::triggered, this, [this, &described] {
        Q_EMIT ButtonClick(
            QByteArray(described.chiave.data(), static_cast<qsizetype>(described.chiave.size())));
    });
    m_comandi.push_back({described.posizione, action, false});
}

QAction* CommandBar::command(Pulsante pulsante) const {
    for (const Comando& comando : m_comandi) {
        if (comando.pulsante == pulsante) {
            return comando.action;
        }
    }
    return nullptr;
}

void CommandBar::update(const StatoToolbar& stato) {
    for (const Comando& comando : m_comandi) {
        comando.action->setEnabled(comando.available && stato.enabled(comando.pulsante));
        comando.action->setVisible(stato.visible(comando.pulsante));
    }
}

} // namespace planner
