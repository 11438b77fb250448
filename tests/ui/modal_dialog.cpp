// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "modal_dialog.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace planner::test {

void whileModal(const std::function<void()>& open, const std::function<void(QDialog&)>& user) {
    QWidget* outer = QApplication::activeModalWidget();
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* dialog = modal != outer ? qobject_cast<QDialog*>(modal) : nullptr;
        if (dialog != nullptr && dialog->isVisible()) {
            poll.stop();
            // Before it is active, keys do not find their way in it.
            EXPECT_TRUE(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
            user(*dialog);
        }
    });
    poll.start(1);
    open();
}

} // namespace planner::test
