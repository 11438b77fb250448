// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/info_dialog.h"

#include "session/tipi_impegno.h"
#include "session/versione.h"
#include "ui/kit/appearance.h"
#include "ui/kit/pictures.h"
#include "ui/kit/plain_label.h"
#include "ui/kit/text.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>

namespace planner {

namespace {

/// The pictures are drawn for light cells, so they stand on one here too.
QLabel* pictureLabel(QWidget* parent, int picture) {
    constexpr int margin = 4;
    const int side = 5 * parent->fontMetrics().height() / 2;
    Pictures pictures;
    auto* label = new PlainLabel(parent);
    label->setPixmap(pictures.picture(picture, side, parent->devicePixelRatioF()));
    label->setAutoFillBackground(true);
    label->setMargin(margin);
    QPalette light = label->palette();
    light.setColor(QPalette::Window, qtColor(Colore::gialloChiaro));
    label->setPalette(light);
    return label;
}

QLabel* textLabel(QWidget* parent, const QString& text) {
    auto* label = new PlainLabel(parent);
    label->setText(text);
    return label;
}

QFont titleFont(QFont font) {
    constexpr double factor = 1.3;
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    return font;
}

void addLegend(QGridLayout& layout, QWidget* parent, bool dettagliato) {
    for (const VoceLegenda& entry : legendaDisegni(dettagliato)) {
        const int row = layout.rowCount();
        layout.addWidget(pictureLabel(parent, entry.immagine), row, 0, Qt::AlignCenter);
        layout.addWidget(textLabel(parent, fromUtf8(entry.significato)), row, 1);
    }
}

} // namespace

void showInfoDialog(QWidget* parent) {
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("informazioni"));
    dialog.setWindowTitle(QStringLiteral("Informazioni"));
    auto* layout = new QGridLayout(&dialog);
    layout->setColumnStretch(1, 1);
    layout->setHorizontalSpacing(12);
    QLabel* title = textLabel(&dialog, QStringLiteral("Planner grafico, versione ") + fromUtf8(versione()));
    title->setFont(titleFont(dialog.font()));
    layout->addWidget(title, 0, 0, 1, 2);
    addLegend(*layout, &dialog, /*dettagliato=*/true);
    addLegend(*layout, &dialog, /*dettagliato=*/false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons, layout->rowCount(), 0, 1, 2);
    dialog.exec();
}

} // namespace planner
