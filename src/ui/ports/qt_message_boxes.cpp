// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_message_boxes.h"

#include "ui/kit/text.h"

#include <QApplication>
#include <QMessageBox>

namespace planner {

void QtMessageBoxes::show(const Message& message) {
    QMessageBox box(QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setIcon(message.icon == MessageIcon::Critical ? QMessageBox::Critical : QMessageBox::Information);
    box.setWindowTitle(fromUtf8(message.title));
    box.setText(fromUtf8(message.text));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

} // namespace planner
