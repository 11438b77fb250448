// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/qt/pictures.h"

#include "engine/session/staff.h"
#include "platform/qt/text.h"

#include <QPainter>
#include <QSvgRenderer>

namespace planner {

namespace {

constexpr std::array<std::string_view, TipiImpegno.size()> Drawings{"note", "impegni", "scadenze",
                                                                    "pratiche"};

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

} // namespace

Pictures::Pictures() : m_presence(loadDrawing("presenza")) {
    for (const std::string_view name : Drawings) {
        m_corners.push_back(loadDrawing(name));
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
    QPixmap pixmap(QSize(side, side) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
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

} // namespace planner
