// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPixmap>

#include <memory>
#include <vector>

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

private:
    QPixmap draw(int number, int side, qreal devicePixelRatio) const;

    std::vector<std::unique_ptr<QSvgRenderer>> m_corners; // by the digit of the picture key less one
    std::unique_ptr<QSvgRenderer> m_presence;
    QHash<quint64, QPixmap> m_drawn;
};

} // namespace planner
