// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_dialog.h"

#include "forms/plfgraf/chart_export.h"
#include "forms/plfgraf/chart_texts.h"
#include "forms/plfgraf/chart_view.h"
#include "forms/screen_scale.h"
#include "platform/qt/appearance.h"
#include "platform/qt/plain_label.h"
#include "platform/qt/text.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRadioButton>
#include <QScreen>
#include <QStandardPaths>

namespace planner {

namespace {

constexpr int TastoEscape = 27;
constexpr double ScreenShare = 0.9; // of the screen, in each direction, that the window takes at first

const QString Suggerimento =
    QStringLiteral("Frecce o mouse: leggere i valori.  Tasto destro: copiare, salvare, stampare.");

QRect pixelRect(const Rettangolo& twips) {
    return {twips.Left / TwipsPerPixel, twips.Top / TwipsPerPixel, twips.Width / TwipsPerPixel,
            twips.Height / TwipsPerPixel};
}

QString chartName(const plfgraf& form) {
    const Grafico* chart = form.visibile();
    return chart == &form.MSChartm()   ? QStringLiteral("MSChartm")
           : chart == &form.MSChartg() ? QStringLiteral("MSChartg")
                                       : QStringLiteral("MSCharta");
}

const Rettangolo& chartPosition(const plfgraf& form) {
    const Grafico* chart = form.visibile();
    return chart == &form.MSChartm()   ? form.posizioneMSChartm()
           : chart == &form.MSChartg() ? form.posizioneMSChartg()
                                       : form.posizioneMSCharta();
}

} // namespace

ChartDialog::ChartDialog(plfgraf& form, MessageBoxes& messaggi, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint), m_form(form),
      m_messaggi(messaggi), m_fontFactor(fontFactorFor(*screen())),
      m_chart(new ChartView(*form.visibile(), m_fontFactor, this)), m_frame(makeFrame()),
      m_stato(new PlainLabel(this)) {
    setObjectName(QStringLiteral("plfgraf"));
    setWindowTitle(QStringLiteral("Planner"));
    setFont(qtFont(Carattere::normale, m_fontFactor));
    m_chart->setObjectName(chartName(form));
    m_chart->setAccessibleName(QStringLiteral("Grafico"));
    m_stato->setObjectName(QStringLiteral("stato"));
    m_stato->setText(Suggerimento);
    connect(m_chart, &ChartView::valuePointed, this, [this](const QModelIndex& index) {
        m_stato->setText(index.isValid() ? index.data(Qt::StatusTipRole).toString() : Suggerimento);
    });
    addActions();
    setMinimumSize(m_frame->sizeHint().width() * 2, m_frame->sizeHint().height() * 5);
    resize(screen()->availableSize() * ScreenShare);
    m_chart->setFocus();
}

QGroupBox* ChartDialog::makeFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Tipo Grafico"), this);
    frame->setObjectName(QStringLiteral("FrameTipo_Grafico"));
    frame->setAutoFillBackground(true);
    frame->setFont(qtFont(Carattere::normale, m_fontFactor));
    auto* layout = new QHBoxLayout(frame);
    for (int index = 0; index < static_cast<int>(OpzioniTipoGrafico.size()); ++index) {
        auto* option =
            new QRadioButton(fromUtf8(OpzioniTipoGrafico.at(static_cast<std::size_t>(index))), frame);
        option->setObjectName(QStringLiteral("OptTipoGrafico_") + QString::number(index));
        option->setChecked(index == m_form.OptTipoGrafico());
        connect(option, &QRadioButton::toggled, this, [this, index](bool checked) {
            if (checked) {
                m_form.OptTipoGrafico_Click(index);
                m_chart->refresh();
            }
        });
        layout->addWidget(option);
    }
    return frame;
}

void ChartDialog::addActions() {
    m_chart->setContextMenuPolicy(Qt::ActionsContextMenu);
    addCommand(QStringLiteral("copia"), QStringLiteral("Copia i valori"), QKeySequence::Copy,
               &ChartDialog::copyValues);
    addCommand(QStringLiteral("salva"), QStringLiteral("Salva il grafico…"), QKeySequence::Save,
               &ChartDialog::saveChart);
    addCommand(QStringLiteral("stampa"), QStringLiteral("Stampa…"), QKeySequence::Print,
               &ChartDialog::printChart);
}

QAction* ChartDialog::addCommand(const QString& name, const QString& text, QKeySequence::StandardKey keys,
                                 void (ChartDialog::*command)()) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, command);
    m_chart->addAction(action);
    return action;
}

void ChartDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && plfgraf::Form_KeyDown(TastoEscape)) {
        close();
    } else if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event); // a dialog would look for a default button
    }
}

void ChartDialog::resizeEvent(QResizeEvent*) {
    const QSize frame = m_frame->sizeHint() * TwipsPerPixel;
    m_form.setDimensioniFrame({frame.width(), frame.height()});
    m_form.Form_Resize({width() * TwipsPerPixel, height() * TwipsPerPixel});
    placeControls();
}

void ChartDialog::placeControls() {
    m_chart->setGeometry(pixelRect(chartPosition(m_form)));
    m_frame->setGeometry(pixelRect(m_form.posizioneFrameTipo_Grafico()));
    m_frame->raise();
    m_chart->setReserved(m_frame->geometry().translated(-m_chart->pos()));
    const int top = m_chart->geometry().bottom() + 1;
    m_stato->setGeometry(m_chart->x(), top, m_chart->width(), height() - top);
}

Drawing ChartDialog::drawing() const {
    return {m_chart->size(), [this](QPainter& painter, QSizeF size) { m_chart->paintChart(painter, size); }};
}

void ChartDialog::copyValues() {
    QGuiApplication::clipboard()->setText(fromUtf8(tabellaValori(*m_form.visibile())));
    m_stato->setText(QStringLiteral("Valori copiati."));
}

void ChartDialog::saveChart() {
    QFileDialog dialog(this, QStringLiteral("Salva il grafico"));
    dialog.setObjectName(QStringLiteral("salvaGrafico"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({QStringLiteral("Immagine (*.png)"), QStringLiteral("Disegno (*.svg)"),
                           QStringLiteral("Documento (*.pdf)")});
    const QStringList suffixes{QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")};
    dialog.setDefaultSuffix(suffixes.front());
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, &suffixes](const QString& filter) {
        dialog.setDefaultSuffix(suffixes.value(static_cast<int>(dialog.nameFilters().indexOf(filter))));
    });
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.setDirectory(documents.exists() ? documents : QDir::home());
    dialog.selectFile(QStringLiteral("grafico"));
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().value(0);
    const QString error = saveDrawing(drawing(), path);
    if (error.isEmpty()) {
        m_stato->setText(QStringLiteral("Grafico salvato in ") + path);
    } else {
        m_messaggi.critical("Il grafico non è stato salvato in " + path.toStdString() + ": " +
                            error.toStdString() + ".");
    }
}

void ChartDialog::printChart() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Planner"));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, this);
    dialog.setObjectName(QStringLiteral("stampaGrafico"));
    if (dialog.exec() == QDialog::Accepted && !paintOnPage(drawing(), printer)) {
        m_messaggi.critical("Il grafico non è stato stampato: la stampante non lo ha accettato.");
    }
}

} // namespace planner
