// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

namespace planner {

/// False for what the toolkit announces and nobody perceives: the name of a widget that does not show, the
/// current item of a view that has not the focus, and what befalls the text of a field that has it not: a
/// screen reader would not name a field whose text it has heard of before.
bool isPerceived(const QAccessibleEvent& event);

/// The item that has the focus where the event says that its view has got it; null for any other event.
QAccessibleInterface* focusedItem(const QAccessibleEvent& event);

/// As long as it lives, assistive programs are told of what is perceived and of nothing else, and of the item
/// instead of the view that gets the focus. What they ask is answered as ever, but for the role of frames.
class ToldEvents {
public:
    ToldEvents();
    ~ToldEvents();
    ToldEvents(const ToldEvents&) = delete;
    ToldEvents& operator=(const ToldEvents&) = delete;

private:
    QAccessible::UpdateHandler m_before;
};

} // namespace planner
