// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/qt/tool_commands.h"

#include "platform/qt/appearance.h"
#include "platform/qt/text.h"

#include <QAction>
#include <QToolBar>

namespace planner {

namespace {

constexpr int IconSide = 24;

/// Every caption stands on two lines, so that the buttons stay narrow and are of one height.
QString buttonText(const QString& caption) {
    const QString first = caption.section(QLatin1Char(' '), 0, 0);
    return first + QLatin1Char('\n') + caption.section(QLatin1Char(' '), 1);
}

QString tipText(const QString& caption, const QKeySequence& keys) {
    return keys.isEmpty() ? caption
                          : QStringLiteral("%1 (%2)").arg(caption, keys.toString(QKeySequence::NativeText));
}

} // namespace

void setUpToolBar(QToolBar& bar) {
    bar.setMovable(false);
    bar.setIconSize(QSize(IconSide, IconSide));
    bar.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
}

QAction* addToolCommand(QToolBar& bar, const ToolCommand& command) {
    const QString caption = fromUtf8(command.caption);
    QAction* action = bar.addAction(qtIcon(command.picture), caption);
    action->setObjectName(command.name);
    action->setIconText(buttonText(caption));
    action->setToolTip(tipText(caption, QKeySequence(fromUtf8(command.keys))));
    bar.widgetForAction(action)->setAccessibleName(caption);
    bar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

} // namespace planner
