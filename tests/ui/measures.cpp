// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "measures.h"

#include <QAction>
#include <QCoreApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

#include <cmath>
#include <sstream>
#include <stdexcept>

namespace planner::test {

std::string describe(const QWidget& widget) {
    std::ostringstream text;
    const QRect place = widget.geometry();
    text << widget.metaObject()->className() << " " << widget.objectName().toStdString() << " at "
         << place.x() << "," << place.y() << " " << place.width() << "x" << place.height();
    return text.str();
}

QWidgetList visibleChildren(const QWidget& parent) {
    QWidgetList shown;
    for (auto* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow()) {
            shown << child;
        }
    }
    return shown;
}

std::string overlaps(const QWidgetList& siblings) {
    std::string found;
    for (qsizetype i = 0; i < siblings.size(); ++i) {
        for (qsizetype k = i + 1; k < siblings.size(); ++k) {
            if (siblings[i]->geometry().intersects(siblings[k]->geometry())) {
                found += describe(*siblings[i]) + " over " + describe(*siblings[k]) + "\n";
            }
        }
    }
    return found;
}

std::string cutCommands(QToolBar& bar) {
    std::string cut;
    for (QAction* action : bar.actions()) {
        const QWidget* button = bar.widgetForAction(action);
        if (!action->isVisible() || action->isSeparator()) {
            continue;
        }
        const QSize wanted = button->sizeHint();
        const bool whole = button->isVisible() && bar.rect().contains(button->geometry()) &&
                           button->width() >= wanted.width() && button->height() >= wanted.height();
        if (!whole) {
            cut += describe(*button) + ", needs " + std::to_string(wanted.width()) + "x" +
                   std::to_string(wanted.height()) + ": " + action->text().toStdString() + "\n";
        }
    }
    return cut;
}

bool legible(const QFont& font) {
    constexpr int smallest = 9; // pixels
    return QFontInfo(font).pixelSize() >= smallest;
}

int lineHeight(const QFont& font) {
    const QFontMetricsF metrics(font);
    return static_cast<int>(std::ceil(metrics.ascent() + metrics.descent()));
}

QString toolTipAt(QWidget& widget, const QPoint& point) {
    QToolTip::hideText();
    if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); })) {
        throw std::runtime_error("a former tool tip stays");
    }
    QHelpEvent rest(QEvent::ToolTip, point, widget.mapToGlobal(point));
    QCoreApplication::sendEvent(&widget, &rest);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace planner::test
