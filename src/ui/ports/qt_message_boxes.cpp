// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_message_boxes.h"

#include "ui/kit/text.h"

#include <QApplication>
#include <QMessageBox>

namespace planner {

namespace {

int answerTo(const Message& message, QMessageBox::StandardButtons buttons) {
    QMessageBox box(QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setIcon(message.icon == MessageIcon::Critical ? QMessageBox::Critical : QMessageBox::Information);
    box.setWindowTitle(fromUtf8(message.title));
    box.setText(fromUtf8(message.text));
    box.setStandardButtons(buttons);
    return box.exec();
}

} // namespace

void QtMessageBoxes::show(const Message& message) {
    answerTo(message, QMessageBox::Ok);
}

bool QtMessageBoxes::askToRetry(const Message& message) {
    return answerTo(message, QMessageBox::Retry | QMessageBox::Cancel) == QMessageBox::Retry;
}

} // namespace planner
