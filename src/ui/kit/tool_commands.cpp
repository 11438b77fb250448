// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/tool_commands.h"

#include "ui/kit/appearance.h"
#include "ui/kit/controls.h"
#include "ui/kit/drawn_icon.h"

#include <QAction>
#include <QLayout>
#include <QToolBar>

#include <algorithm>

namespace planner {

namespace {

constexpr int IconSide = 24; // beside letters of the designed size
constexpr int SmallestIconSide = 16;
constexpr int Margin = 4;
constexpr int SmallestMargin = 1; // on a low screen every pixel is the captions'

/// Every caption stands on two lines, so that the buttons stay narrow and are of one height.
QString buttonText(const QString& caption) {
    const QString first = caption.section(QLatin1Char(' '), 0, 0);
    return first + QLatin1Char('\n') + caption.section(QLatin1Char(' '), 1);
}

void setMargin(QToolBar& bar, int margin) {
    bar.layout()->setContentsMargins(margin, margin, margin, margin);
}

} // namespace

void setUpToolBar(QToolBar& bar) {
    bar.setMovable(false);
    setMargin(bar, Margin);
    bar.setIconSize(QSize(IconSide, IconSide));
    bar.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
}

void fitPictures(QToolBar& bar, int height) {
    setMargin(bar, SmallestMargin);
    const double wanted = IconSide * bar.font().pointSizeF() / carattere(Carattere::normale).punti;
    const int rest = bar.sizeHint().height() - bar.iconSize().height();
    const int side = std::clamp(height - rest, SmallestIconSide, std::max(qRound(wanted), SmallestIconSide));
    bar.setIconSize(QSize(side, side));
    setMargin(bar, std::clamp(SmallestMargin + (height - rest - side) / 2, SmallestMargin, Margin));
}

void fitLetters(QToolBar& bar, QSize room) {
    constexpr double step = 0.95;
    constexpr double smallest = 7; // points
    QFont letters = bar.window()->font();
    const auto whole = [&] {
        if (bar.font().pointSizeF() != letters.pointSizeF()) {
            bar.setFont(letters);
        }
        const QSize hint = bar.sizeHint();
        const int spared = bar.iconSize().height() - SmallestIconSide;
        return hint.width() <= room.width() && hint.height() - spared <= room.height();
    };
    while (!whole() && letters.pointSizeF() * step >= smallest) {
        letters.setPointSizeF(letters.pointSizeF() * step);
    }
}

QAction* addToolCommand(QToolBar& bar, const ToolCommand& command) {
    const QList<QAction*> before = bar.actions();
    if (!before.isEmpty() && before.last()->data().toInt() + 1 < command.position) {
        bar.addSeparator();
    }
    const QString caption = fromUtf8(command.caption);
    QAction* action = bar.addAction(qtIcon(command.picture), caption);
    action->setData(command.position);
    action->setObjectName(command.name);
    action->setIconText(buttonText(caption));
    const QList<QKeySequence> keys = qtKeys(command.keys);
    action->setToolTip(captionWithKeys(caption, keys));
    nameButton(*bar.widgetForAction(action), caption, keys);
    bar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

} // namespace planner
