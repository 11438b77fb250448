// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

#include <functional>

class QPagedPaintDevice;
class QPainter;

namespace planner {

/// Something to put into a file or on paper, in pixels of a 96 dpi screen: `size` on the screen; `title` for
/// the file's description; `paint` fills any size.
struct Drawing {
    QSizeF size;
    QString title;
    std::function<void(QPainter&, QSizeF)> paint;
};

/// Writes the drawing to a file, in the format that its name ends with: ".png", ".svg" or ".pdf". An existing
/// file is replaced only when all is written. Returns what went wrong, in Italian; empty when nothing did.
QString saveDrawing(const Drawing& drawing, const QString& path);

/// Paints the drawing as wide as on the screen on a page, which it fills. False when the device does not take
/// it.
bool paintOnPage(const Drawing& drawing, QPagedPaintDevice& device);

} // namespace planner
