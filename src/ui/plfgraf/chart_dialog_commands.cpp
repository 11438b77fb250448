// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_texts.h"
#include "forms/plfgraf/plfgraf.h"
#include "ports/message_boxes.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitted_label.h"
#include "ui/plfgraf/chart_dialog.h"
#include "ui/plfgraf/chart_export.h"
#include "ui/plfgraf/chart_view.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>

namespace planner {

void ChartDialog::addCommands() {
    m_chart->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (std::size_t command = 0; command < ComandiGrafico.size(); ++command) {
        QAction* action = makeCommand(static_cast<ComandoGrafico>(command));
        m_chart->addAction(action);
        m_buttons.push_back(makeButton(action));
    }
}

QAction* ChartDialog::makeCommand(ComandoGrafico command) {
    const DescrizioneComandoGrafico& described = ComandiGrafico.at(static_cast<std::size_t>(command));
    auto* action = new QAction(fromUtf8(described.didascalia), this);
    action->setObjectName(fromUtf8(described.nome));
    action->setShortcuts(qtKeys(described.scorciatoia));
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, [this, command] { run(command); });
    return action;
}

void ChartDialog::run(ComandoGrafico command) {
    switch (command) {
    case ComandoGrafico::copia:
        return copyValues();
    case ComandoGrafico::salva:
        return saveChart();
    case ComandoGrafico::stampa:
        return printChart();
    }
}

QPushButton* ChartDialog::makeButton(QAction* command) {
    auto* button = new QPushButton(command->text(), this);
    button->setObjectName(QStringLiteral("pulsante_") + command->objectName());
    button->setAutoDefault(false);
    const QString tip = captionWithKeys(command->text(), {command->shortcut()});
    button->setToolTip(plainToolTip(tip));
    button->setAccessibleDescription(tip); // else a screen reader would read the tool tip's markup
    connect(button, &QPushButton::clicked, command, &QAction::trigger);
    return button;
}

Drawing ChartDialog::drawing() const {
    return {m_chart->size(), fromUtf8(testoIntestazione(grafico())),
            [this](QPainter& painter, QSizeF size) { m_chart->paintChart(painter, size); }};
}

QString ChartDialog::fileName() const {
    return fromUtf8(nomeFileGrafico(grafico()));
}

void ChartDialog::copyValues() {
    QGuiApplication::clipboard()->setText(fromUtf8(tabellaValori(grafico())));
    announce(QStringLiteral("Valori copiati."));
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
    dialog.selectFile(fileName());
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().value(0);
    const QString error = saveDrawing(drawing(), path);
    if (error.isEmpty()) {
        announce(QStringLiteral("Grafico salvato in ") + path);
    } else {
        m_messaggi.critical("Il grafico non è stato salvato in " + path.toStdString() + ": " +
                            error.toStdString() + ".");
    }
}

void ChartDialog::printChart() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(fileName());
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, this);
    dialog.setObjectName(QStringLiteral("stampaGrafico"));
    if (dialog.exec() == QDialog::Accepted && !paintOnPage(drawing(), printer)) {
        m_messaggi.critical("Il grafico non è stato stampato: la stampante non lo ha accettato.");
    }
}

} // namespace planner
