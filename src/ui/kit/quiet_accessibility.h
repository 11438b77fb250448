// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

namespace planner {

/// As long as it lives, assistive programs are told of no change. For what the toolkit announces as if the
/// focus had moved, although it stays where it is. What they ask is answered as ever.
class QuietAccessibility {
public:
    QuietAccessibility() : m_before(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}
    ~QuietAccessibility() { QAccessible::installUpdateHandler(m_before); }
    QuietAccessibility(const QuietAccessibility&) = delete;
    QuietAccessibility& operator=(const QuietAccessibility&) = delete;

private:
    QAccessible::UpdateHandler m_before;
};

} // namespace planner
