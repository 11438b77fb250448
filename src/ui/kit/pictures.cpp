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

std::unique_ptr<QSvgRenderer> loadDrawing(std::string_view name) {
    return std::make_unique<QSvgRenderer>(QStringLiteral(":/planner/") + fromUtf8(name) +
                                          QStringLiteral(".svg"));
}

/// The corner's square: half the picture's side, with half a gap to its neighbours.
QRectF cornerOf(std::size_t corner, int side) {
    constexpr double gap = 1;
    const double half = (side - gap) / 2;
    const double left = corner % 2 == 0 ? 0 : half + gap;
    const double top = corner < 2 ? 0 : half + gap;
    return {left, top, half, half};
}

QPixmap transparent(QSize size, qreal devicePixelRatio) {
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

Pictures::Pictures() : m_presence(loadDrawing("presenza")) {
    for (const DescrizioneImpegno& tipo : TipiImpegno) {
        m_corners.push_back(loadDrawing(tipo.disegno));
    }
}

Pictures::~Pictures() = default;

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
    if (number == ImmaginePresenza) {
        m_presence->render(&painter, QRectF(0, 0, side, side));
    }
    for (const char digit : key) {
        const auto corner = static_cast<std::size_t>(digit - '1');
        m_corners.at(corner)->render(&painter, cornerOf(corner, side));
    }
    return pixmap;
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
        m_corners.at(static_cast<std::size_t>(digit - '1'))->render(&painter, QRectF(left, 0, side, side));
        left += side;
    }
    return pixmap;
}

} // namespace planner
