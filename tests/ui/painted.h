// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <functional>

class QPainter;
class QWidget;

namespace planner::test {

/// What has been painted at some device pixel ratio, for tests that probe it. All places are in logical
/// pixels, so that a test is the same at every ratio.
class Painted {
public:
    /// Has `paint` fill a picture that is magenta at first.
    Painted(QSize size, int ratio, const std::function<void(QPainter&)>& paint);
    /// What a widget and its children show.
    explicit Painted(QWidget& widget);

    /// The pixel that holds the place.
    QRgb at(QPointF place) const;
    /// How many pixels of the area suit, as a share of one logical pixel each.
    double amount(const QRectF& area, const std::function<bool(QRgb)>& suits) const;
    bool any(const QRectF& area, const std::function<bool(QRgb)>& suits) const;
    /// True when all pixels of the area suit.
    bool all(const QRectF& area, const std::function<bool(QRgb)>& suits) const;

    /// True when the area shows details finer than a logical pixel; at ratio 1 there are none to show.
    bool isFine(const QRectF& area) const;

private:
    QRect devicePixels(const QRectF& area) const;

    QImage m_image;
};

/// Colours as they come out where letters and slanting lines are smoothed against their ground.
bool isDark(QRgb colour);
bool isRed(QRgb colour);
bool isNavy(QRgb colour);
bool isGrey(QRgb colour);
std::function<bool(QRgb)> is(QRgb wanted);
std::function<bool(QRgb)> isNot(QRgb unwanted);

} // namespace planner::test
