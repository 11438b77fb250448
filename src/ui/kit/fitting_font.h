// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QString>

#include <vector>

namespace planner {

/// What of a text is shown in its place, and in which font.
struct FittedText {
    const QFont& font; // of the FittingFont that made it
    QString shown;
    bool cut; // the text is not shown whole
};

/// A font whose texts fit their places: one that is too long shrinks to nine tenths, then is elided at its
/// end. Where the desktop has larger letters than usual, it shrinks to nine tenths of the usual ones in
/// between.
class FittingFont {
public:
    static constexpr double Shrinking = 0.9;

    explicit FittingFont(const QFont& font = {});

    const QFont& font() const { return m_letters.front().font; }
    /// Fits one line of text into `width` pixels.
    FittedText fit(const QString& text, int width) const;

private:
    struct Letters {
        QFont font;
        QFontMetrics metrics;
        explicit Letters(const QFont& of) : font(of), metrics(of) {}
    };
    std::vector<Letters> m_letters; // from the largest to the smallest
};

/// The font, smaller where a line of it, accents and tails included, is higher than `height` pixels; as it is
/// for a height of 0.
QFont fontWithin(const QFont& font, int height);

} // namespace planner
