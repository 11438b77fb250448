// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QStaticText>
#include <QString>

#include <vector>

class QPainter;

namespace planner {

/// A font with the texts that have been written in it: to shape a text takes longer than to paint it, and a
/// grid has the same few texts over and over.
class Letters {
public:
    explicit Letters(const QFont& font) : m_font(font), m_metrics(font) {}

    const QFont& font() const { return m_font; }
    const QFontMetricsF& metrics() const { return m_metrics; }
    /// The pixels that the text takes: rounded, and as it is written on.
    int width(const QString& text) const { return qRound(advance(text)); }
    double advance(const QString& text) const { return known(text).advance; }
    /// Writes one line of plain text in the middle of the place's height, and of its width or from its left
    /// edge.
    void write(QPainter& painter, const QRect& place, const QString& text, bool centred) const;

private:
    struct Known {
        double advance = 0;
        QStaticText shaped; // once it is written
    };
    Known& known(const QString& text) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    mutable QHash<QString, Known> m_known;
};

/// What of a text is shown in its place, and in which letters.
struct FittedText {
    const Letters& letters; // of the FittingFont that made it
    QString shown;
    bool cut; // the text is not shown whole

    const QFont& font() const { return letters.font(); }
};

/// A font whose texts fit their places: one that is too long shrinks to nine tenths and, where the desktop
/// has larger letters than usual, by steps to nine tenths of the usual ones. One that is not whole even so is
/// elided at its end, in nine tenths.
class FittingFont {
public:
    static constexpr double Shrinking = 0.9;

    explicit FittingFont(const QFont& font = {});

    const QFont& font() const { return m_letters.front().font(); }
    /// The pixels that the text takes in that font.
    int width(const QString& text) const { return m_letters.front().width(text); }
    /// Fits one line of text into `width` pixels.
    FittedText fit(const QString& text, int width) const;

private:
    std::vector<Letters> m_letters; // from the largest to the smallest
};

/// The font, smaller where a line of it, accents and tails included, is higher than `height` pixels; as it is
/// for a height of 0.
QFont fontWithin(const QFont& font, int height);

} // namespace planner
