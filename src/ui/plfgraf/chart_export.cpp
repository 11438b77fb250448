// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/chart_export.h"

#include "ui/kit/saved_file.h"

#include <QFileInfo>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace planner {

namespace {

bool writePng(const Drawing& drawing, QIODevice& file) {
    constexpr double sharpness = 2; // picture points per screen pixel
    QImage image((drawing.size * sharpness).toSize(), QImage::Format_RGB32);
    if (image.isNull()) {
        return false;
    }
    image.setDevicePixelRatio(sharpness);
    QPainter painter(&image);
    drawing.paint(painter, drawing.size);
    painter.end();
    image.setText(QStringLiteral("Title"), drawing.title);
    return image.save(&file, "PNG");
}

bool writeSvg(const Drawing& drawing, QIODevice& file) {
    constexpr int resolution = 96;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(resolution);
    generator.setSize(drawing.size.toSize());
    generator.setViewBox(QRectF({}, drawing.size));
    QPainter painter;
    if (!painter.begin(&generator)) {
        return false;
    }
    drawing.paint(painter, drawing.size);
    return painter.end();
}

bool writePdf(const Drawing& drawing, QIODevice& file) {
    QPdfWriter writer(&file);
    writer.setTitle(drawing.title);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    return paintOnPage(drawing, writer);
}

using Writer = bool (*)(const Drawing&, QIODevice&);

Writer writerFor(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("png")   ? writePng
           : suffix == QLatin1String("svg") ? writeSvg
           : suffix == QLatin1String("pdf") ? writePdf
                                            : nullptr;
}

} // namespace

QString saveDrawing(const Drawing& drawing, const QString& path) {
    const Writer write = writerFor(path);
    if (write == nullptr) {
        return QStringLiteral("il nome deve finire con .png, .svg o .pdf");
    }
    return saveWhole(path, [&](QIODevice& file) { return write(drawing, file); });
}

bool paintOnPage(const Drawing& drawing, QPagedPaintDevice& device) {
    QPainter painter;
    if (drawing.size.isEmpty() || !painter.begin(&device)) {
        return false;
    }
    const QSizeF page = painter.viewport().size();
    const double scale = page.width() / drawing.size.width();
    painter.scale(scale, scale);
    drawing.paint(painter, page / scale);
    return painter.end();
}

} // namespace planner
