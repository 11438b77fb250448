// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/drawn_icon.h"

#include "ui/kit/text.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyleOption>
#include <QSvgRenderer>

namespace planner {

namespace {

class DrawingEngine : public QIconEngine {
public:
    explicit DrawingEngine(QString file) : m_file(std::move(file)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const QSize square = actualSize(rect.size(), mode, state);
        const double ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, square, rect),
                            pixmap(square * ratio, mode, state));
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        const int side = std::min(size.width(), size.height());
        return {side, side};
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(actualSize(size, mode, state));
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        renderer().render(&painter);
        painter.end();
        QStyleOption option;
        option.palette = QApplication::palette();
        return mode == QIcon::Normal ? drawn
                                     : QApplication::style()->generatedIconPixmap(mode, drawn, &option);
    }
    /// For those who show icons outside of the program: window managers scale the next larger one.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {{16, 16}, {32, 32}, {64, 64}}; }
    QIconEngine* clone() const override { return new DrawingEngine(m_file); }

private:
    QSvgRenderer& renderer() {
        if (!m_renderer) {
            m_renderer = std::make_unique<QSvgRenderer>(m_file);
        }
        return *m_renderer;
    }

    QString m_file;
    std::unique_ptr<QSvgRenderer> m_renderer;
};

class ArrowEngine : public QIconEngine {
public:
    explicit ArrowEngine(QStyle::PrimitiveElement arrow) : m_arrow(arrow) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QStyleOption option;
        option.rect = rect;
        option.palette = QApplication::palette();
        option.state = mode == QIcon::Disabled ? QStyle::State_None : QStyle::State_Enabled;
        QApplication::style()->drawPrimitive(m_arrow, &option, painter);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new ArrowEngine(m_arrow); }

private:
    QStyle::PrimitiveElement m_arrow;
};

} // namespace

QIcon qtIcon(std::string_view name) {
    return QIcon(new DrawingEngine(QStringLiteral(":/planner/") + fromUtf8(name) + QStringLiteral(".svg")));
}

QIcon arrowIcon(QStyle::PrimitiveElement arrow) {
    return QIcon(new ArrowEngine(arrow));
}

} // namespace planner
