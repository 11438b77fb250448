// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/elided_label.h"

#include "platform/qt/text.h"

namespace planner {

void ElidedLabel::setWhole(const QString& text, const QString& spoken) {
    m_whole = text;
    setAccessibleName(spoken.isEmpty() ? text : spoken);
    fit();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    PlainLabel::resizeEvent(event);
    fit();
}

void ElidedLabel::fit() {
    const QString shown = fontMetrics().elidedText(m_whole, Qt::ElideRight, width());
    setText(shown);
    setToolTip(shown == m_whole ? QString() : plainToolTip(m_whole));
}

} // namespace planner
