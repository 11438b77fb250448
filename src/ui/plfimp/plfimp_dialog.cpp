// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfimp/plfimp_dialog.h"

#include "ui/kit/text.h"

#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace planner {

namespace {

QGroupBox* makeOptions(QDialog& dialog, plfimp& form) {
    auto* frame = new QGroupBox(QStringLiteral("Tipo di inserimento"), &dialog);
    frame->setObjectName(QStringLiteral("Frame_vis"));
    auto* layout = new QVBoxLayout(frame);
    for (int index = 0; index < static_cast<int>(ScelteImpegno.size()); ++index) {
        const SceltaImpegno& choice = ScelteImpegno.at(static_cast<std::size_t>(index));
        auto* option = new QRadioButton(fromUtf8(choice.didascalia), frame);
        option->setObjectName(QStringLiteral("Option1_") + QString::number(index));
        option->setChecked(index == form.Option1());
        QObject::connect(option, &QRadioButton::toggled, &dialog, [&form, index](bool checked) {
            if (checked) {
                form.Option1_Click(index);
            }
        });
        layout->addWidget(option);
    }
    return frame;
}

QPushButton* makeButton(QDialog& dialog, const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, &dialog);
    button->setObjectName(name);
    return button;
}

} // namespace

void PlfimpDialog::chiedi(plfimp& form) {
    QDialog dialog(QApplication::activeWindow());
    dialog.setObjectName(QStringLiteral("plfimp"));
    dialog.setWindowTitle(QStringLiteral("Inserimento Impegni"));
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(makeOptions(dialog, form));
    auto* buttons = new QHBoxLayout;
    QPushButton* conferma = makeButton(dialog, QStringLiteral("conferma"), QStringLiteral("Conferma"));
    QPushButton* annulla = makeButton(dialog, QStringLiteral("annulla"), QStringLiteral("Annulla"));
    conferma->setDefault(true);
    QObject::connect(conferma, &QPushButton::clicked, &dialog, [&] {
        form.conferma_Click();
        dialog.accept();
    });
    QObject::connect(annulla, &QPushButton::clicked, &dialog, [&] {
        form.annulla_Click();
        dialog.reject();
    });
    buttons->addWidget(conferma);
    buttons->addWidget(annulla);
    layout->addLayout(buttons);
    dialog.setMinimumWidth(dialog.sizeHint().width() * 3 / 2);
    dialog.exec();
}

} // namespace planner
