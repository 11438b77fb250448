// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/pictures.h"

#include "session/tipi_impegno.h"
#include "ui/kit/text.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace planner {

namespace {

/// The corner's square: half the picture's side, with half a gap to its neighbours.
QRectF cornerOf(std::size_t corner, const QRectF& square) {
    constexpr double gap = 1;
    const double half = (square.width() - gap) / 2;
    const double left = corner % 2 == 0 ? 0 : half + gap;
    const double top = corner < 2 ? 0 : half + gap;
    return {square.left() + left, square.top() + top, half, half};
}

/// By the digit of the picture key.
std::string_view drawingOf(char digit) {
    return TipiImpegno.at(static_cast<std::size_t>(digit - '1')).disegno;
}

QPixmap transparent(QSize size, qreal devicePixelRatio) {
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

Pictures::Pictures() = default;
Pictures::~Pictures() = default;

QSvgRenderer& Pictures::drawing(std::string_view name) const {
    std::unique_ptr<QSvgRenderer>& renderer = m_drawings[name];
    if (!renderer) {
        renderer = std::make_unique<QSvgRenderer>(QStringLiteral(":/planner/") + fromUtf8(name) +
                                                  QStringLiteral(".svg"));
    }
    return *renderer;
}

const QPixmap& Pictures::picture(int number, int side, qreal devicePixelRatio) {
    const auto ratio = static_cast<quint64>(devicePixelRatio * 100);
    const quint64 key = (ratio << 32) | (static_cast<quint64>(side) << 8) | static_cast<quint64>(number);
    auto found = m_drawn.find(key);
    if (found == m_drawn.end()) {
        found = m_drawn.insert(key, draw(number, side, devicePixelRatio));
    }
    return *found;
}

QPixmap Pictures::draw(int number, int side, qreal devicePixelRatio) const {
    const std::string_view key = chiaveImmagine(number);
    if (side <= 0 || (key.empty() && number != ImmaginePresenza)) {
        return {};
    }
    QPixmap pixmap = transparent({side, side}, devicePixelRatio);
    QPainter painter(&pixmap);
    render(painter, number, QRectF(0, 0, side, side));
    return pixmap;
}

void Pictures::render(QPainter& painter, int number, const QRectF& square) const {
    if (number == ImmaginePresenza) {
        drawing("presenza").render(&painter, square);
    }
    for (const char digit : chiaveImmagine(number)) {
        const auto corner = static_cast<std::size_t>(digit - '1');
        drawing(TipiImpegno.at(corner).disegno).render(&painter, cornerOf(corner, square));
    }
}

void Pictures::renderLine(QPainter& painter, int number, const QRectF& place) const {
    const std::string_view key = chiaveImmagine(number);
    const bool across = place.width() > place.height();
    const double length = across ? place.width() : place.height();
    const double thickness = across ? place.height() : place.width();
    const double side =
        std::min(thickness, length / static_cast<double>(std::max<std::size_t>(key.size(), 1)));
    QRectF square(place.topLeft(), QSizeF(side, side));
    if (key.empty()) {
        return render(painter, number, square);
    }
    for (const char digit : key) {
        drawing(drawingOf(digit)).render(&painter, square);
        square.translate(across ? side : 0, across ? 0 : side);
    }
}

const QPixmap& Pictures::line(int number, QSize room, qreal devicePixelRatio) {
    const auto ratio = static_cast<quint64>(devicePixelRatio * 100);
    const quint64 key = (ratio << 40) | (static_cast<quint64>(room.width()) << 24) |
                        (static_cast<quint64>(room.height()) << 8) | static_cast<quint64>(number);
    auto found = m_lines.find(key);
    if (found == m_lines.end()) {
        found = m_lines.insert(key, drawLine(number, room, devicePixelRatio));
    }
    return *found;
}

QPixmap Pictures::drawLine(int number, QSize room, qreal devicePixelRatio) const {
    const std::string_view key = chiaveImmagine(number);
    if (key.empty()) {
        return draw(number, std::min(room.width(), room.height()), devicePixelRatio);
    }
    const int count = static_cast<int>(key.size());
    const int side = std::min(room.width() / count, room.height()); // each drawing has a margin of its own
    if (side <= 0) {
        return {};
    }
    QPixmap pixmap = transparent({side * count, side}, devicePixelRatio);
    QPainter painter(&pixmap);
    int left = 0;
    for (const char digit : key) {
        drawing(drawingOf(digit)).render(&painter, QRectF(left, 0, side, side));
        left += side;
    }
    return pixmap;
}

} // namespace planner
