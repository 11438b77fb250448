// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <string>

class QToolBar;

namespace planner::test {

/// What and where a widget is, for failure messages.
std::string describe(const QWidget& widget);

/// The direct children that are in sight.
QWidgetList visibleChildren(const QWidget& parent);

/// Says which of the sibling widgets stand over each other; empty when none do.
std::string overlaps(const QWidgetList& siblings);

/// Says which commands of the toolbar are not in sight, or not wholly; empty when none.
std::string cutCommands(QToolBar& bar);

/// True when letters of the font can be read on a screen of 96 dpi.
bool legible(const QFont& font);

/// The height that letters with their accents and tails take.
int lineHeight(const QFont& font);

/// The tool tip that appears where the mouse rests at the point of the widget; empty for none.
QString toolTipAt(QWidget& widget, const QPoint& point);

} // namespace planner::test
