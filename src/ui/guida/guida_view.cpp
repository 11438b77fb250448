// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/guida/guida_view.h"

#include "session/tipi_impegno.h"
#include "ui/guida/folded_search.h"
#include "ui/kit/appearance.h"
#include "ui/kit/legible.h"
#include "ui/kit/text.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QScrollBar>
#include <QTextTable>

#include <algorithm>

/// See `setUpAppearance`: these are looked for when the guide is opened first.
static void initGuida() {
    Q_INIT_RESOURCE(guida);
}

namespace planner {

namespace {

constexpr int CellPadding = 5;
constexpr int WidthRoundedUp = 1; // by which a table may be wider than the page

/// Behind folders or our own scheme.
QString fileNameIn(const QString& address) {
    return address.mid(
        std::max(address.lastIndexOf(QLatin1Char('/')), address.lastIndexOf(QLatin1Char(':'))) + 1);
}

QString resource(const QString& name) {
    return QStringLiteral(":/guida/") + name;
}

QString markdown() {
    initGuida();
    QFile file(resource(QStringLiteral("guida.md")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The picture of one of the cells' drawings by its file's name; 0 for no drawing.
int drawingCalled(const QString& name) {
    for (const TipoImpegno tipo : OrdineTipi) {
        if (name == fromUtf8(descrizione(tipo).disegno)) {
            return immagineTipi(insieme(tipo));
        }
    }
    return name == QStringLiteral("presenza") ? ImmaginePresenza : 0;
}

template <typename Visit>
void forEachPicture(const QTextDocument& document, Visit visit) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().isImageFormat()) {
                visit(part.fragment());
                break; // the change ends this walk; a paragraph has one
            }
        }
    }
}

} // namespace

GuidaView::GuidaView(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("testo"));
    setAccessibleName(QStringLiteral("Guida"));
    setUndoRedoEnabled(false);
    setOpenLinks(false);
    setTabChangesFocus(true);
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int most) {
        setHorizontalScrollBarPolicy(most > WidthRoundedUp ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    });
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    document()->setDefaultFont(font());
    document()->setDocumentMargin(12);
    setMarkdown(markdown());
    formatTables();
    moveCursor(QTextCursor::Start);
}

std::vector<GuidaView::Heading> GuidaView::headings() const {
    std::vector<Heading> found;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level > 0) {
            found.push_back({block.text(), level, block});
        }
    }
    return found;
}

void GuidaView::showHeading(const Heading& heading) {
    setTextCursor(QTextCursor(heading.block));
    const QRectF place = document()->documentLayout()->blockBoundingRect(heading.block);
    verticalScrollBar()->setValue(static_cast<int>(place.top()));
}

bool GuidaView::find(const QString& text, bool backward) {
    const QTextCursor found = findFolded(*document(), text, textCursor(), backward);
    if (!found.isNull()) {
        setTextCursor(found);
        ensureCursorVisible();
    }
    return !found.isNull();
}

void GuidaView::formatTables() {
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setBorder(1);
            format.setBorderCollapse(true);
            format.setBorderBrush(edgeColor(palette()));
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setCellPadding(CellPadding);
            table->setFormat(format);
        }
    }
}

void GuidaView::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (viewport()->width() != m_fitted) {
        m_fitted = viewport()->width();
        fitPictures();
    }
}

void GuidaView::fitPictures() {
    QTextCursor all(document());
    all.beginEditBlock();
    forEachPicture(*document(), [this](const QTextFragment& fragment) { fitPicture(fragment); });
    all.endEditBlock();
}

void GuidaView::fitPicture(const QTextFragment& fragment) {
    QTextImageFormat format = fragment.charFormat().toImageFormat();
    const QString name = fileNameIn(format.name());
    const QPixmap pixmap = pictureOf(name, m_fitted - 3 * static_cast<int>(document()->documentMargin()));
    // A name that no file of the system can have: the toolkit asks the system first.
    const QUrl own(QStringLiteral("guida:") + name);
    document()->addResource(QTextDocument::ImageResource, own, pixmap);
    format.setName(own.toString());
    format.setWidth(pixmap.deviceIndependentSize().width());
    format.setHeight(pixmap.deviceIndependentSize().height());
    QTextCursor cursor(document());
    cursor.setPosition(fragment.position());
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
}

/// As wide as it is, or as there is room for; drawings stand on a light ground, for which they are made.
QPixmap GuidaView::pictureOf(const QString& name, int width) const {
    const double ratio = devicePixelRatioF();
    if (const int drawing = drawingCalled(QFileInfo(name).baseName()); drawing != 0) {
        const int side = 2 * fontMetrics().height();
        QPixmap pixmap(QSize(side, side) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(qtColor(Colore::gialloChiaro));
        QPainter painter(&pixmap);
        m_pictures.render(painter, drawing, QRectF(0, 0, side, side));
        return pixmap;
    }
    QPixmap pixmap(resource(QStringLiteral("immagini/") + name));
    const int room = static_cast<int>(std::max(width, 1) * ratio);
    const int wanted = static_cast<int>(pixmap.width() * ratio);
    if (!pixmap.isNull() && std::min(room, wanted) != pixmap.width()) {
        pixmap = pixmap.scaledToWidth(std::min(room, wanted), Qt::SmoothTransformation);
    }
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QVariant GuidaView::loadResource(int, const QUrl&) {
    return {}; // what belongs to the guide is in the document already
}

} // namespace planner
