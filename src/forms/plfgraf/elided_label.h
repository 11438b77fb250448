// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/qt/plain_label.h"

namespace planner {

/// A line of text that is cut with an ellipsis where it is longer than its place; the whole text is then its
/// tool tip.
class ElidedLabel : public PlainLabel {
    Q_OBJECT
public:
    using PlainLabel::PlainLabel;

    /// Shows a text; a screen reader gets `spoken`, or the same text when it is empty.
    void setWhole(const QString& text, const QString& spoken = {});
    /// The text as if there were room for all of it.
    const QString& whole() const { return m_whole; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    QString m_whole;
};

} // namespace planner
