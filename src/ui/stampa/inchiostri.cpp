// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/stampa/inchiostri.h"

#include "ui/kit/appearance.h"
#include "ui/kit/fitting_font.h"

#include <QtMath>

#include <algorithm>

namespace planner {

namespace {

/// The toolkit's letters come in whole steps: steps of a tenth of a point.
constexpr double Steps = 10;

QFont paperFont(double corpo, bool grassetto) {
    QFont font = qtFont(Carattere::normale, 1);
    font.setPixelSize(qRound(corpo * Steps));
    font.setBold(grassetto);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QRectF inSteps(const QRectF& place) {
    return {place.topLeft() * Steps, place.size() * Steps};
}

/// Has `paint` draw in tenths of a point.
template <typename Paint>
void paintInSteps(QPainter& painter, Paint paint) {
    painter.save();
    painter.scale(1 / Steps, 1 / Steps);
    paint();
    painter.restore();
}

/// Slanting lines of even distance over the whole page, seen through the place: neighbours join.
void paintHatching(QPainter& painter, const QRectF& place) {
    constexpr double distance = 4;
    constexpr double weight = 0.4;
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.setPen(QPen(QColor(inchiostri::Tratteggio), weight));
    const double last = place.right() + place.bottom();
    for (int line = qCeil((place.left() + place.top()) / distance); line * distance < last; ++line) {
        const double sum = line * distance;
        painter.drawLine(QPointF(sum - place.bottom(), place.bottom()),
                         QPointF(sum - place.top(), place.top()));
    }
    painter.restore();
}

} // namespace

double larghezzaSuCarta(const std::string& testo, double corpo, bool grassetto) {
    return QFontMetricsF(paperFont(corpo, grassetto)).horizontalAdvance(QString::fromStdString(testo)) /
           Steps;
}

void paintText(QPainter& painter, const QRectF& place, const TestoSuCarta& testo) {
    const FittingFont font(paperFont(testo.corpo, testo.grassetto));
    const FittedText fitted = font.fit(testo.testo, static_cast<int>(std::ceil(place.width() * Steps)));
    paintInSteps(painter, [&] {
        painter.setFont(fitted.font());
        painter.setPen(QColor(testo.colore));
        painter.drawText(inSteps(place),
                         static_cast<int>(testo.posto) | Qt::TextSingleLine | Qt::TextDontClip, fitted.shown);
    });
}

void paintWords(QPainter& painter, const QRectF& place, const TestoSuCarta& testo) {
    paintInSteps(painter, [&] {
        painter.setFont(paperFont(testo.corpo, testo.grassetto));
        painter.setPen(QColor(testo.colore));
        painter.drawText(inSteps(place), static_cast<int>(testo.posto) | Qt::TextWordWrap, testo.testo);
    });
}

void paintDayShade(QPainter& painter, const QRectF& place, GiornoStampa giorno) {
    if (giorno == GiornoStampa::fineSettimana || giorno == GiornoStampa::festivo) {
        painter.fillRect(place, QColor(inchiostri::FineSettimana));
    }
    if (giorno == GiornoStampa::festivo) {
        paintHatching(painter, place);
    }
}

void paintFrame(QPainter& painter, const QRectF& place, double weight, QRgb colour) {
    painter.save();
    QPen pen(QColor(colour), weight);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double inside = weight / 2;
    painter.drawRect(place.adjusted(inside, inside, -inside, -inside));
    painter.restore();
}

void paintBar(QPainter& painter, const QRectF& place) {
    constexpr double edge = 0.9;
    painter.fillRect(place, QColor(inchiostri::Fascia));
    paintFrame(painter, place, std::min(edge, place.height() / 3), inchiostri::BordoFascia);
}

} // namespace planner
