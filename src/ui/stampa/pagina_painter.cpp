// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/stampa/pagina_painter.h"

#include "ui/kit/text.h"
#include "ui/stampa/inchiostri.h"

#include <algorithm>

namespace planner {

namespace {

constexpr double TextMargin = 4;
constexpr double LineWeight = 0.35;
constexpr double StrongLineWeight = 0.8;
constexpr double MarkWeight = 1.6; // of the selected row, of today
constexpr double CellMarkWeight = 2.2;
constexpr double SmallText = 7;

QRectF cellPlace(const Banda& riga, const Banda& colonna) {
    return {colonna.inizio, riga.inizio, colonna.ampiezza, riga.ampiezza};
}

QRectF namePlace(const TabellaPosta& tabella, const Banda& riga) {
    return {tabella.angolo.x, riga.inizio, tabella.angolo.larghezza, riga.ampiezza};
}

QRectF textPlace(const QRectF& place) {
    return place.adjusted(TextMargin, 0, -TextMargin, 0);
}

/// The largest square in the middle of a place.
QRectF squareIn(const QRectF& place, double margin) {
    const double side = std::min(place.width(), place.height()) - 2 * margin;
    return {place.center() - QPointF(side, side) / 2, QSizeF(side, side)};
}

double bottomOf(const PaginaStampa& pagina, const TabellaPosta& tabella) {
    return pagina.righe.empty() ? tabella.angolo.fondo() : pagina.righe.back().fine();
}

QString gridText(const Griglia& griglia, Casella casella) {
    return fromUtf8(testoStampato(griglia, casella));
}

/// A dark frame with a light one inside, in sight on any ground.
void paintToday(QPainter& painter, const QRectF& place) {
    paintFrame(painter, place, MarkWeight + StrongLineWeight, inchiostri::Carta);
    paintFrame(painter, place, MarkWeight, inchiostri::Oggi);
}

/// Days off in the header: in red for colour, and bold for black and white.
bool dayOff(const Cella& cella) {
    return cella.fineSettimana || cella.festivo;
}

} // namespace

void PaginaPainter::paint(QPainter& painter, std::size_t pagina) {
    const PaginaStampa& page = m_piano.pagine.at(pagina);
    paintTitleAndFoot(painter, pagina);
    if (page.totali) {
        paintTotals(painter, page);
    } else {
        paintGrid(painter, page);
        paintLegend(painter);
    }
}

void PaginaPainter::paintTitleAndFoot(QPainter& painter, std::size_t pagina) {
    const ControlliPlcal& controlli = m_documento.controlli;
    const bool totali = m_piano.pagine[pagina].totali;
    const QRectF title = rettangolo(m_piano.titolo);
    const double half = title.width() / 2;
    paintText(painter, title.adjusted(0, 0, -half, 0),
              {fromUtf8(titoloStampa(controlli)) + (totali ? QStringLiteral(" - totali") : QString()),
               CorpoTitolo, /*grassetto=*/true, inchiostri::Testo, Qt::AlignLeft | Qt::AlignVCenter});
    paintText(painter, title.adjusted(half, 0, 0, 0),
              {fromUtf8(sottotitoloStampa(controlli)), CorpoTitolo, false, inchiostri::Testo,
               Qt::AlignRight | Qt::AlignVCenter});
    const QRectF foot = rettangolo(m_piano.piede);
    paintText(painter, foot,
              {fromUtf8(testoStampatoIl(m_documento.oggi)), CorpoLegenda, false, inchiostri::Testo,
               Qt::AlignLeft | Qt::AlignVCenter});
    paintText(painter, foot,
              {fromUtf8(testoPagina(pagina, m_piano.pagine.size())), CorpoLegenda, false, inchiostri::Testo,
               Qt::AlignRight | Qt::AlignVCenter});
}

void PaginaPainter::paintLegend(QPainter& painter) {
    for (const VocePosta& posta : m_piano.legenda) {
        paintSign(painter, posta.voce, rettangolo(posta.campione));
        paintText(painter, rettangolo(posta.testo),
                  {fromUtf8(posta.voce.significato), CorpoLegenda, false, inchiostri::Testo,
                   Qt::AlignLeft | Qt::AlignVCenter});
    }
}

void PaginaPainter::paintSign(QPainter& painter, const VoceStampa& voce, const QRectF& place) {
    switch (voce.segno) {
    case SegnoStampa::disegno:
        return paintMeaning(painter, voce.immagine, place);
    case SegnoStampa::fineSettimana:
        return paintDayShade(painter, place, GiornoStampa::fineSettimana);
    case SegnoStampa::festivo:
        return paintDayShade(painter, place, GiornoStampa::festivo);
    case SegnoStampa::oggi:
        return paintToday(painter, place);
    case SegnoStampa::segnato:
        return painter.fillRect(place, QColor(inchiostri::Segnato));
    case SegnoStampa::fascia:
        return paintBar(painter, place.adjusted(0, 2, 0, -2));
    case SegnoStampa::evidenziata:
        painter.fillRect(QRectF(place.left(), place.top() + 2, place.width(), MarkWeight), Qt::black);
        return painter.fillRect(
            QRectF(place.left(), place.bottom() - 2 - MarkWeight, place.width(), MarkWeight), Qt::black);
    case SegnoStampa::scelta:
        return paintFrame(painter, place, CellMarkWeight, inchiostri::Testo);
    }
}

/// A single drawing takes the whole place: its corner is not what it means.
void PaginaPainter::paintMeaning(QPainter& painter, int immagine, const QRectF& place) {
    if (chiaveImmagine(immagine).size() == 1) {
        m_pictures.renderLine(painter, immagine, place);
    } else {
        m_pictures.render(painter, immagine, place);
    }
}

void PaginaPainter::paintGrid(QPainter& painter, const PaginaStampa& pagina) {
    paintShades(painter, pagina);
    paintHeads(painter);
    for (const Banda& riga : pagina.righe) {
        paintRow(painter, riga);
    }
    paintLines(painter, m_piano.griglia, pagina);
    for (const Banda& riga : pagina.righe) {
        paintBars(painter, riga);
    }
    paintMarks(painter, pagina);
}

void PaginaPainter::paintShades(QPainter& painter, const PaginaStampa& pagina) {
    const TabellaPosta& griglia = m_piano.griglia;
    painter.fillRect(rettangolo(griglia.angolo), QColor(inchiostri::Testata));
    painter.fillRect(QRectF(griglia.angolo.destra(), griglia.angolo.y,
                            griglia.destra() - griglia.angolo.destra(), griglia.angolo.altezza),
                     QColor(inchiostri::Testata));
    for (const Banda& riga : pagina.righe) {
        for (const Banda& colonna : griglia.colonne) {
            paintDayShade(painter, cellPlace(riga, colonna),
                          giornoStampato(m_documento.controlli, {riga.indice, colonna.indice}));
        }
    }
}

void PaginaPainter::paintHeads(QPainter& painter) {
    const TabellaPosta& griglia = m_piano.griglia;
    for (const Banda& riga : griglia.testa) {
        paintText(painter, textPlace(namePlace(griglia, riga)),
                  {gridText(m_griglia, {riga.indice, 0}), CorpoTesto, /*grassetto=*/true});
        for (const Banda& colonna : griglia.colonne) {
            const Cella& cella = m_griglia.cella(riga.indice, colonna.indice);
            const bool minutes = cella.ruolo == Ruolo::minuti;
            const bool off = dayOff(cella);
            paintText(painter, cellPlace(riga, colonna),
                      {gridText(m_griglia, {riga.indice, colonna.indice}), minutes ? SmallText : CorpoTesto,
                       off || cella.ruolo == Ruolo::ora, off ? inchiostri::Festivo : inchiostri::Testo});
        }
    }
}

void PaginaPainter::paintRow(QPainter& painter, const Banda& riga) {
    const TabellaPosta& griglia = m_piano.griglia;
    QRectF name = namePlace(griglia, riga);
    const int picture = m_griglia.cella(riga.indice, 0).immagine;
    if (picture != 0) { // an appointment without an hour
        const QRectF right = name.adjusted(name.width() - name.height(), 0, 0, 0);
        m_pictures.render(painter, picture, squareIn(right, 2));
        name.setRight(right.left() + TextMargin);
    }
    paintText(painter, textPlace(name),
              {gridText(m_griglia, {riga.indice, 0}), CorpoTesto,
               riga.indice == m_griglia.RigaEvidenziata() || !m_documento.tipo().perCollaboratore,
               inchiostri::Testo, Qt::AlignLeft | Qt::AlignVCenter});
    for (const Banda& colonna : griglia.colonne) {
        paintCell(painter, cellPlace(riga, colonna), {riga.indice, colonna.indice});
    }
}

void PaginaPainter::paintCell(QPainter& painter, const QRectF& place, Casella casella) {
    const Cella& cella = m_griglia.cella(casella);
    if (cella.segnato) {
        painter.fillRect(place, QColor(inchiostri::Segnato));
    }
    if (cella.immagine != 0 && !cella.impegno) { // a bar has its own
        m_pictures.render(painter, cella.immagine, squareIn(place, 1));
    }
    if (cella.testo != 0) {
        const bool off =
            dayOff(cella) || giornoStampato(m_documento.controlli, casella) == GiornoStampa::festivo;
        paintText(painter, place,
                  {gridText(m_griglia, casella), m_piano.corpoCaselle, off || cella.segnato,
                   cella.segnato ? inchiostri::Carta
                   : off         ? inchiostri::Festivo
                                 : inchiostri::Testo});
    }
}

void PaginaPainter::paintBars(QPainter& painter, const Banda& riga) {
    constexpr double smallestSquare = 16; // with a drawing in each corner
    for (const FasciaImpegno& fascia : m_griglia.fasce(riga.indice)) {
        const QRectF bar = rettangolo(areaFascia(m_piano.griglia, riga, fascia));
        paintBar(painter, bar);
        const QRectF inside = bar.adjusted(1, 1, -1, -1);
        const double side = std::min(inside.width(), inside.height());
        if (side >= smallestSquare) {
            m_pictures.render(painter, fascia.immagine, QRectF(inside.left(), inside.top(), side, side));
        } else {
            m_pictures.renderLine(painter, fascia.immagine, inside);
        }
    }
}

void PaginaPainter::paintLines(QPainter& painter, const TabellaPosta& tabella, const PaginaStampa& pagina) {
    const double right = tabella.destra();
    const double bottom = bottomOf(pagina, tabella);
    const auto across = [&](double y, double weight, QRgb colour) {
        painter.fillRect(QRectF(tabella.angolo.x, y - weight / 2, right - tabella.angolo.x, weight),
                         QColor(colour));
    };
    const auto down = [&](double x, bool strong) {
        const double weight = strong ? StrongLineWeight : LineWeight;
        painter.fillRect(QRectF(x - weight / 2, tabella.angolo.y, weight, bottom - tabella.angolo.y),
                         QColor(strong ? inchiostri::LineaForte : inchiostri::Linea));
    };
    for (const Banda& riga : pagina.righe) {
        across(riga.fine(), LineWeight, inchiostri::Linea);
    }
    for (const Banda& colonna : tabella.colonne) {
        down(colonna.fine(), !pagina.totali && finisceGruppo(m_griglia, colonna.indice));
    }
    for (const double y : {tabella.angolo.y, tabella.angolo.fondo(), bottom}) {
        across(y, StrongLineWeight, inchiostri::LineaForte);
    }
    for (const double x : {tabella.angolo.x, tabella.angolo.destra(), right}) {
        down(x, /*strong=*/true);
    }
}

void PaginaPainter::paintMarks(QPainter& painter, const PaginaStampa& pagina) {
    const TabellaPosta& griglia = m_piano.griglia;
    const auto markToday = [&](const Banda& riga, const Banda& colonna) {
        if (m_griglia.cella(riga.indice, colonna.indice).oggi) {
            paintToday(painter, cellPlace(riga, colonna));
        }
    };
    std::vector<Banda> columns = griglia.colonne;
    columns.push_back({0, griglia.angolo.x, griglia.angolo.larghezza});
    for (const Banda& colonna : columns) {
        std::for_each(griglia.testa.begin(), griglia.testa.end(),
                      [&](const Banda& riga) { markToday(riga, colonna); });
        for (const Banda& riga : pagina.righe) {
            markToday(riga, colonna);
            if (m_griglia.scelta({riga.indice, colonna.indice})) {
                paintFrame(painter, cellPlace(riga, colonna), CellMarkWeight, inchiostri::Testo);
            }
        }
    }
    for (const Banda& riga : pagina.righe) {
        if (riga.indice == m_griglia.RigaEvidenziata()) {
            for (const double y : {riga.inizio, riga.fine()}) {
                painter.fillRect(QRectF(griglia.angolo.x, y - MarkWeight / 2,
                                        griglia.destra() - griglia.angolo.x, MarkWeight),
                                 Qt::black);
            }
        }
    }
}

void PaginaPainter::paintTotals(QPainter& painter, const PaginaStampa& pagina) {
    const TabellaPosta& tabella = m_piano.totali;
    painter.fillRect(QRectF(tabella.angolo.x, tabella.angolo.y, tabella.destra() - tabella.angolo.x,
                            tabella.angolo.altezza),
                     QColor(inchiostri::Testata));
    paintText(painter, textPlace(rettangolo(tabella.angolo)),
              {fromUtf8(m_piano.numeri.nomeRighe), CorpoTesto, /*grassetto=*/true});
    for (const Banda& colonna : tabella.colonne) {
        paintWords(painter, textPlace(cellPlace(tabella.testa.front(), colonna)),
                   {fromUtf8(m_piano.numeri.nomi.at(static_cast<std::size_t>(colonna.indice))), CorpoTesto,
                    /*grassetto=*/true});
    }
    for (const Banda& riga : pagina.righe) {
        const TotaliMostrati::Riga& totals = m_piano.numeri.righe.at(static_cast<std::size_t>(riga.indice));
        paintText(
            painter, textPlace(namePlace(tabella, riga)),
            {fromUtf8(totals.nome), CorpoTesto, false, inchiostri::Testo, Qt::AlignLeft | Qt::AlignVCenter});
        for (const Banda& colonna : tabella.colonne) {
            const auto& number = totals.numeri.at(static_cast<std::size_t>(colonna.indice));
            if (number && *number != 0) {
                paintText(painter, textPlace(cellPlace(riga, colonna)),
                          {QString::number(*number), CorpoTesto});
            }
        }
    }
    paintLines(painter, tabella, pagina);
}

} // namespace planner
