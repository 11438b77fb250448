// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/stampa/stampa_griglia.h"

#include "forms/stampa/tabella.h"
#include "ports/message_boxes.h"
#include "ui/kit/saved_file.h"
#include "ui/kit/text.h"
#include "ui/stampa/inchiostri.h"
#include "ui/stampa/pagina_painter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPageRanges>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

namespace planner {

namespace {

constexpr double PointsPerInch = 72;
constexpr double PngDotsPerInch = 150;

void scaleToPoints(QPainter& painter, double dotsPerInch) {
    painter.scale(dotsPerInch / PointsPerInch, dotsPerInch / PointsPerInch);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

QImage paintImage(PaginaPainter& pages, const Carta& carta, std::size_t page, double dotsPerInch) {
    constexpr double inchesPerMetre = 39.37;
    const QSizeF size = QSizeF(carta.larghezza, carta.altezza) * (dotsPerInch / PointsPerInch);
    QImage image(size.toSize(), QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    image.setDotsPerMeterX(qRound(dotsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(qRound(dotsPerInch * inchesPerMetre));
    image.fill(Qt::white);
    QPainter painter(&image);
    scaleToPoints(painter, dotsPerInch);
    pages.paint(painter, page);
    return image;
}

QPageSize pageSizeOf(const Carta& carta) {
    return QPageSize(QSizeF(carta.altezza, carta.larghezza), QPageSize::Point, {}, QPageSize::FuzzyMatch);
}

/// Landscape, and painted to the edges: the layout has margins of its own.
void setUpPages(QPagedPaintDevice& device, const Carta& carta) {
    device.setPageSize(pageSizeOf(carta));
    device.setPageOrientation(QPageLayout::Landscape);
    device.setPageMargins({});
}

QString documentName(const DocumentoStampa& documento) {
    return fromUtf8(nomeStampa(documento.controlli));
}

bool printPages(QPainter& painter, QPagedPaintDevice& device, const DocumentoStampa& documento) {
    const Impaginazione piano = impagina(documento, larghezzaSuCarta);
    PaginaPainter pages(documento, piano);
    const QPageRanges wanted = device.pageRanges();
    scaleToPoints(painter, device.logicalDpiX());
    bool first = true;
    for (std::size_t page = 0; page < piano.pagine.size(); ++page) {
        if (!wanted.isEmpty() && !wanted.contains(static_cast<int>(page) + 1)) {
            continue;
        }
        if (!first && !device.newPage()) {
            return false;
        }
        first = false;
        pages.paint(painter, page);
    }
    return true;
}

} // namespace

bool printOn(QPagedPaintDevice& device, const DocumentoStampa& documento) {
    QPainter painter;
    return painter.begin(&device) && printPages(painter, device, documento) && painter.end();
}

bool stampaGriglia(DocumentoStampa documento, QWidget& parent, MessageBoxes& messaggi) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(documentName(documento));
    printer.setFullPage(true);
    setUpPages(printer, documento.carta);
    QPrintDialog dialog(&printer, &parent);
    dialog.setObjectName(QStringLiteral("stampaGriglia"));
    dialog.setWindowTitle(documento.totali ? QStringLiteral("Stampa con i totali")
                                           : QStringLiteral("Stampa"));
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    const QSizeF sheet = printer.pageLayout().fullRect(QPageLayout::Point).size();
    documento.carta = {sheet.width(), sheet.height()};
    const bool printed = printOn(printer, documento);
    if (!printed) {
        messaggi.critical("Il planner non è stato stampato: la stampante non lo ha accettato.");
    }
    return printed;
}

QString savePdf(const DocumentoStampa& documento, const QString& path) {
    return saveWhole(path, [&](QIODevice& file) {
        QPdfWriter writer(&file);
        writer.setTitle(documentName(documento));
        setUpPages(writer, documento.carta);
        return printOn(writer, documento);
    });
}

QStringList pngNames(const QString& path, std::size_t pages) {
    if (pages == 1) {
        return {path};
    }
    const QString suffix = QStringLiteral(".png");
    const bool suffixed = path.endsWith(suffix, Qt::CaseInsensitive);
    const QString stem = suffixed ? path.chopped(suffix.size()) : path;
    QStringList names;
    for (std::size_t page = 1; page <= pages; ++page) {
        names.append(stem + QLatin1Char('-') + QString::number(page) +
                     (suffixed ? path.right(suffix.size()) : suffix));
    }
    return names;
}

QString savePng(const DocumentoStampa& documento, const QString& path) {
    const Impaginazione piano = impagina(documento, larghezzaSuCarta);
    PaginaPainter pages(documento, piano);
    const QStringList names = pngNames(path, piano.pagine.size());
    for (std::size_t page = 0; page < piano.pagine.size(); ++page) {
        const QString& name = names.at(static_cast<qsizetype>(page));
        QString error = saveWhole(name, [&](QIODevice& file) {
            return paintImage(pages, documento.carta, page, PngDotsPerInch).save(&file, "PNG");
        });
        if (!error.isEmpty()) {
            return error;
        }
    }
    return {};
}

QImage pageImage(const DocumentoStampa& documento, std::size_t page, double dotsPerInch) {
    const Impaginazione piano = impagina(documento, larghezzaSuCarta);
    PaginaPainter pages(documento, piano);
    return paintImage(pages, documento.carta, page, dotsPerInch);
}

void copiaGriglia(const DocumentoStampa& documento) {
    const TabellaCopiata tabella = tabellaCopiata(documento.controlli, documento.sessione);
    auto* data = new QMimeData; // the clipboard's
    data->setText(fromUtf8(tabella.testo));
    data->setHtml(fromUtf8(tabella.html));
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace planner
