// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/twips.h"
#include "ui/kit/text.h"

#include <QHelpEvent>
#include <QKeySequence>
#include <QToolTip>
#include <QWidget>

#include <functional>

class QBoxLayout;
class QKeyEvent;

namespace planner {

/// A place in pixels as the toolkit has it.
inline QRect qtRect(const Rettangolo& place) {
    return {place.Left, place.Top, place.Width, place.Height};
}

/// The keys that a table names in English, separated by "; "; none for an empty text.
QList<QKeySequence> qtKeys(std::string_view names);

/// What a tool tip says of a command: its caption and, if there are any, its keys in brackets.
QString captionWithKeys(const QString& caption, const QList<QKeySequence>& keys);

/// Names a button for assistive programs: it is called its caption, and described by its keys.
void nameButton(QWidget& button, const QString& caption, const QList<QKeySequence>& keys);

/// Brings the window before the user, from wherever it is: hidden, an icon, behind another one.
void showInFront(QWidget& window);

/// Whether the event tells a widget that its window has become the active one, or is so no longer.
inline bool changesActivation(const QEvent& event) {
    return event.type() == QEvent::WindowActivate || event.type() == QEvent::WindowDeactivate;
}

/// Answers an event that asks for a tool tip with the plain text that `textAt` gives for a position of the
/// widget, empty for none. False for any other event.
template <typename TextAt>
bool showToolTip(const QEvent& event, QWidget& widget, TextAt textAt) {
    if (event.type() != QEvent::ToolTip) {
        return false;
    }
    const auto& help = static_cast<const QHelpEvent&>(event);
    QToolTip::showText(help.globalPos(), plainToolTip(textAt(help.pos())), &widget);
    return true;
}

/// The key as forms know it: a virtual-key code, 0 for all but Escape.
int virtualKey(const QKeyEvent& event);
bool isEnter(const QKeyEvent& event);
/// Enter clicks the button that has the window's focus. False for any other key, and where none has it.
bool clickFocusedButton(const QWidget& window, const QKeyEvent& event);

/// One of a control array's option buttons.
struct Opzione {
    QString array;
    int indice;
    std::string_view didascalia;
    bool scelta;
};
/// Adds the option to the layout of its frame; `choose` hears the index when the user selects it.
void addOption(QBoxLayout& layout, const Opzione& opzione, std::function<void(int)> choose);

} // namespace planner
