// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPixmap>
#include <QSize>

#include <map>
#include <memory>
#include <string_view>

class QPainter;
class QSvgRenderer;

namespace planner {

/// The day cells' pictures, 1 to 16, drawn sharp for any size. Pictures 1 to 15 are made of four drawings,
/// one corner each; picture 16 is a drawing of its own.
class Pictures {
public:
    Pictures();
    ~Pictures();

    /// A square picture of `side` logical pixels; null for any number but 1 to 16.
    const QPixmap& picture(int number, int side, qreal devicePixelRatio);
    /// Paints the same into any square; nothing for any number but 1 to 16. Vector drawings stay such.
    void render(QPainter& painter, int number, const QRectF& square) const;

    /// Paints its drawings one behind the other along the place's longer side, as large as it lets them be
    /// and beginning at its top left corner.
    void renderLine(QPainter& painter, int number, const QRectF& place) const;

    /// The same drawings side by side from left to right, as large as the room in logical pixels lets them
    /// be; null for any number but 1 to 16.
    const QPixmap& line(int number, QSize room, qreal devicePixelRatio);

private:
    QPixmap draw(int number, int side, qreal devicePixelRatio) const;
    QPixmap drawLine(int number, QSize room, qreal devicePixelRatio) const;
    QSvgRenderer& drawing(std::string_view name) const;

    mutable std::map<std::string_view, std::unique_ptr<QSvgRenderer>> m_drawings; // read when first drawn
    QHash<quint64, QPixmap> m_drawn;
    QHash<quint64, QPixmap> m_lines;
};

} // namespace planner
