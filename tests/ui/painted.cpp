// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "painted.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace planner::test {

namespace {

constexpr int Much = 80; // between two channels of a colour

QImage blank(QSize size, int ratio) {
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    return image;
}

} // namespace

Painted::Painted(QSize size, int ratio, const std::function<void(QPainter&)>& paint)
    : m_image(blank(size, ratio)) {
    QPainter painter(&m_image);
    paint(painter);
}

Painted::Painted(QWidget& widget) : m_image(widget.grab().toImage().convertToFormat(QImage::Format_RGB32)) {}

QRgb Painted::at(QPointF place) const {
    const QPointF device = place * m_image.devicePixelRatio();
    return m_image.pixel(static_cast<int>(std::floor(device.x())), static_cast<int>(std::floor(device.y())));
}

QRect Painted::devicePixels(const QRectF& area) const {
    const double ratio = m_image.devicePixelRatio();
    const QPointF from = area.topLeft() * ratio;
    const QPointF to = area.bottomRight() * ratio;
    const QPoint first(static_cast<int>(std::floor(from.x())), static_cast<int>(std::floor(from.y())));
    const QPoint beyond(static_cast<int>(std::ceil(to.x())), static_cast<int>(std::ceil(to.y())));
    return QRect(first, beyond - QPoint(1, 1)).intersected(m_image.rect());
}

double Painted::amount(const QRectF& area, const std::function<bool(QRgb)>& suits) const {
    const QRect pixels = devicePixels(area);
    int count = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            count += suits(m_image.pixel(x, y)) ? 1 : 0;
        }
    }
    return count / (m_image.devicePixelRatio() * m_image.devicePixelRatio());
}

bool Painted::any(const QRectF& area, const std::function<bool(QRgb)>& suits) const {
    return amount(area, suits) > 0;
}

bool Painted::all(const QRectF& area, const std::function<bool(QRgb)>& suits) const {
    return !devicePixels(area).isEmpty() && !any(area, [&](QRgb colour) { return !suits(colour); });
}

bool Painted::isFine(const QRectF& area) const {
    const int ratio = static_cast<int>(m_image.devicePixelRatio());
    const QRect pixels = devicePixels(area.toAlignedRect());
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (m_image.pixel(x, y) != m_image.pixel(x / ratio * ratio, y / ratio * ratio)) {
                return true;
            }
        }
    }
    return ratio == 1;
}

bool isDark(QRgb colour) {
    constexpr int darkest = 110;
    return std::max({qRed(colour), qGreen(colour), qBlue(colour)}) < darkest;
}

bool isRed(QRgb colour) {
    return qRed(colour) - std::max(qGreen(colour), qBlue(colour)) > Much;
}

bool isNavy(QRgb colour) {
    return qBlue(colour) - std::max(qRed(colour), qGreen(colour)) > Much;
}

bool isGrey(QRgb colour) {
    constexpr int lightest = 235;
    const auto [low, high] = std::minmax({qRed(colour), qGreen(colour), qBlue(colour)});
    return high - low < 8 && high < lightest;
}

std::function<bool(QRgb)> is(QRgb wanted) {
    return [wanted](QRgb colour) { return (colour | 0xff000000U) == (wanted | 0xff000000U); };
}

std::function<bool(QRgb)> isNot(QRgb unwanted) {
    return [same = is(unwanted)](QRgb colour) { return !same(colour); };
}

} // namespace planner::test
