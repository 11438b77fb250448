// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/controls.h"

#include "forms/tasti.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QRadioButton>

namespace planner {

QList<QKeySequence> qtKeys(std::string_view names) {
    return QKeySequence::listFromString(fromUtf8(names));
}

QString captionWithKeys(const QString& caption, const QList<QKeySequence>& keys) {
    const QString text = QKeySequence::listToString(keys, QKeySequence::NativeText);
    return text.isEmpty() ? caption : QStringLiteral("%1 (%2)").arg(caption, text);
}

void nameButton(QWidget& button, const QString& caption, const QList<QKeySequence>& keys) {
    button.setAccessibleName(caption);
    button.setAccessibleDescription(QKeySequence::listToString(keys, QKeySequence::NativeText));
}

void showInFront(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

int virtualKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape ? TastoEscape : 0;
}

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool clickFocusedButton(const QWidget& window, const QKeyEvent& event) {
    auto* button = isEnter(event) ? qobject_cast<QAbstractButton*>(window.focusWidget()) : nullptr;
    if (button != nullptr) {
        button->click();
    }
    return button != nullptr;
}

void addOption(QBoxLayout& layout, const Opzione& opzione, std::function<void(int)> choose) {
    auto* button = new QRadioButton(fromUtf8(opzione.didascalia), layout.parentWidget());
    button->setObjectName(opzione.array + QString::number(opzione.indice));
    button->setChecked(opzione.scelta);
    QObject::connect(button, &QRadioButton::toggled, button,
                     [index = opzione.indice, choose = std::move(choose)](bool checked) {
                         if (checked) {
                             choose(index);
                         }
                     });
    layout.addWidget(button);
}

} // namespace planner
