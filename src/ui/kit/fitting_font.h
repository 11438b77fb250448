// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QString>

namespace planner {

/// What of a text is shown in its place, and in which font.
struct FittedText {
    const QFont& font; // of the FittingFont that made it
    QString shown;
    bool cut; // the text is not shown whole
};

/// A font whose texts fit their places: one that is too long shrinks to nine tenths, then is elided at its
/// end.
class FittingFont {
public:
    static constexpr double Shrinking = 0.9;

    explicit FittingFont(const QFont& font = {});

    const QFont& font() const { return m_font; }
    /// Fits one line of text into `width` pixels.
    FittedText fit(const QString& text, int width) const;

private:
    QFont m_font;
    QFont m_smaller;
    QFontMetrics m_metrics;
    QFontMetrics m_smallerMetrics;
};

} // namespace planner
