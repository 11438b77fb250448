// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/stampa/legenda.h"

#include <QPainter>
#include <QRectF>
#include <QString>

namespace planner {

/// How things look on paper. Each differs from the others in black and white too.
namespace inchiostri {

inline constexpr QRgb Carta = qRgb(255, 255, 255);
inline constexpr QRgb Testo = qRgb(0, 0, 0);
inline constexpr QRgb Festivo = qRgb(170, 0, 0);
inline constexpr QRgb Testata = qRgb(240, 240, 240);
inline constexpr QRgb FineSettimana = qRgb(226, 226, 226);
inline constexpr QRgb Tratteggio = qRgb(130, 130, 130); // of holidays
inline constexpr QRgb Linea = qRgb(170, 170, 170);
inline constexpr QRgb LineaForte = qRgb(70, 70, 70);
inline constexpr QRgb Fascia = qRgb(165, 200, 250);
inline constexpr QRgb BordoFascia = qRgb(20, 50, 110);
inline constexpr QRgb Segnato = qRgb(0, 0, 128);
inline constexpr QRgb Oggi = qRgb(0, 90, 45);

} // namespace inchiostri

inline QRectF rettangolo(const AreaStampa& area) {
    return {area.x, area.y, area.larghezza, area.altezza};
}

/// The width that a text takes on paper.
double larghezzaSuCarta(const std::string& testo, double corpo, bool grassetto);

/// One line of text, in letters of `corpo` points; too long for its place it shrinks, and is elided at last.
struct TestoSuCarta {
    QString testo;
    double corpo;
    bool grassetto = false;
    QRgb colore = inchiostri::Testo;
    Qt::Alignment posto = Qt::AlignCenter;
};
void paintText(QPainter& painter, const QRectF& place, const TestoSuCarta& testo);

/// The same on as many lines as it takes.
void paintWords(QPainter& painter, const QRectF& place, const TestoSuCarta& testo);

/// The shade of a day; nothing for a working day.
void paintDayShade(QPainter& painter, const QRectF& place, GiornoStampa giorno);

/// A frame inside the place's edges, `weight` points wide.
void paintFrame(QPainter& painter, const QRectF& place, double weight, QRgb colour);

/// An appointment's bar.
void paintBar(QPainter& painter, const QRectF& place);

} // namespace planner
