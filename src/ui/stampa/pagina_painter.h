// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/stampa/impaginazione.h"
#include "ui/kit/pictures.h"

#include <QRectF>

class QColor;
class QPainter;
class QString;

namespace planner {

/// Paints the pages of a document on any device. What is told apart on the screen by colours is told apart by
/// shades, hatching and weight too.
class PaginaPainter {
public:
    /// Both must live longer.
    PaginaPainter(const DocumentoStampa& documento, const Impaginazione& piano)
        : m_documento(documento), m_griglia(documento.griglia()), m_piano(piano) {}

    /// Paints a page, counted from 0, in points from the sheet's top left corner.
    void paint(QPainter& painter, std::size_t pagina);

private:
    // The frame of the page.
    void paintTitleAndFoot(QPainter& painter, std::size_t pagina);
    void paintLegend(QPainter& painter);
    void paintMeaning(QPainter& painter, int immagine, const QRectF& place);
    void paintSign(QPainter& painter, const VoceStampa& voce, const QRectF& place);

    // Pages of the grid.
    void paintGrid(QPainter& painter, const PaginaStampa& pagina);
    void paintShades(QPainter& painter, const PaginaStampa& pagina);
    void paintHeads(QPainter& painter);
    void paintRow(QPainter& painter, const Banda& riga);
    void paintCell(QPainter& painter, const QRectF& place, Casella casella);
    void paintBars(QPainter& painter, const Banda& riga);
    void paintLines(QPainter& painter, const TabellaPosta& tabella, const PaginaStampa& pagina);
    void paintMarks(QPainter& painter, const PaginaStampa& pagina);

    // Pages of totals.
    void paintTotals(QPainter& painter, const PaginaStampa& pagina);

    const DocumentoStampa& m_documento;
    const Griglia& m_griglia;
    const Impaginazione& m_piano;
    Pictures m_pictures;
};

} // namespace planner
