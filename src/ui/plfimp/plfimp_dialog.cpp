// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfimp/plfimp_dialog.h"

#include "forms/plfimp/plfimp.h"
#include "ui/kit/controls.h"

#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace planner {

namespace {

QGroupBox* makeOptions(QDialog& dialog, plfimp& form) {
    auto* frame = new QGroupBox(QStringLiteral("Tipo di inserimento"), &dialog);
    frame->setObjectName(QStringLiteral("Frame_vis"));
    auto* layout = new QVBoxLayout(frame);
    for (int index = 0; index < static_cast<int>(ScelteImpegno.size()); ++index) {
        const std::string_view caption = ScelteImpegno.at(static_cast<std::size_t>(index)).didascalia;
        addOption(*layout, {QStringLiteral("Option1_"), index, caption, index == form.Option1()},
                  [&form](int chosen) { form.Option1_Click(chosen); });
    }
    return frame;
}

/// A button of the dialog; `press` runs when it is pressed.
template <typename Press>
QPushButton* makeButton(QDialog& dialog, const QString& name, const QString& caption, Press press) {
    auto* button = new QPushButton(caption, &dialog);
    button->setObjectName(name);
    QObject::connect(button, &QPushButton::clicked, &dialog, press);
    return button;
}

} // namespace

void chiediImpegno(plfimp& form) {
    QDialog dialog(QApplication::activeWindow());
    dialog.setObjectName(QStringLiteral("plfimp"));
    dialog.setWindowTitle(QStringLiteral("Inserimento Impegni"));
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(makeOptions(dialog, form));
    auto* buttons = new QHBoxLayout;
    QPushButton* conferma = makeButton(dialog, QStringLiteral("conferma"), QStringLiteral("Conferma"), [&] {
        form.conferma_Click();
        dialog.accept();
    });
    conferma->setDefault(true);
    buttons->addWidget(conferma);
    buttons->addWidget(makeButton(dialog, QStringLiteral("annulla"), QStringLiteral("Annulla"), [&] {
        form.annulla_Click();
        dialog.reject();
    }));
    layout->addLayout(buttons);
    dialog.setMinimumWidth(dialog.sizeHint().width() * 3 / 2);
    dialog.exec();
}

} // namespace planner
