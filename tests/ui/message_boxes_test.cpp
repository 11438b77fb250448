// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace planner {

namespace {

struct SeenBox {
    QString title, text, button;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    bool pictureOnButton = false;
};

/// Shows the message and closes its box with the Enter key as soon as it stands.
SeenBox showAndConfirm(const Message& message) {
    SeenBox seen;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            poll.stop();
            seen = {box->windowTitle(), box->text(),       box->button(QMessageBox::Ok)->text(),
                    box->icon(),        box->textFormat(), !box->button(QMessageBox::Ok)->icon().isNull()};
            QTest::keyClick(box, Qt::Key_Return);
        }
    });
    poll.start(1);
    QtMessageBoxes().show(message);
    return seen;
}

} // namespace

TEST(MessageBoxesTest, TitleTextAndIconAreThoseOfTheMessage) {
    const SeenBox seen =
        showAndConfirm({MessageIcon::Information, "Planner", "Errore su File :C:\\arch\\wrighipl"});
    EXPECT_EQ(seen.title, QStringLiteral("Planner"));
    EXPECT_EQ(seen.text, QStringLiteral("Errore su File :C:\\arch\\wrighipl"));
    EXPECT_EQ(seen.icon, QMessageBox::Information);
    EXPECT_EQ(showAndConfirm({MessageIcon::Critical, "Planner", "x"}).icon, QMessageBox::Critical);
}

TEST(MessageBoxesTest, ItsButtonBearsAWordAlone) {
    const SeenBox seen = showAndConfirm({MessageIcon::Information, "Planner", "x"});
    EXPECT_EQ(seen.button, QStringLiteral("OK"));
    EXPECT_FALSE(seen.pictureOnButton);
}

TEST(MessageBoxesTest, MarkupInAMessageIsShownAsItIs) {
    const SeenBox seen = showAndConfirm({MessageIcon::Critical, "Planner", "<img src=\"/dev/stdin\"> %1 &A"});
    EXPECT_EQ(seen.text, QStringLiteral("<img src=\"/dev/stdin\"> %1 &A"));
    EXPECT_EQ(seen.format, Qt::PlainText);
}

namespace {

/// Asks and presses `key` as soon as the box stands; the words of its buttons come into `words`.
bool askAndPress(Qt::Key key, QStringList& words) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            poll.stop();
            for (const QAbstractButton* button : box->buttons()) {
                words << button->text().remove(QLatin1Char('&'));
            }
            QTest::keyClick(box, key);
        }
    });
    poll.start(1);
    return QtMessageBoxes().askToRetry({MessageIcon::Critical, "Planner", "x"});
}

} // namespace

TEST(MessageBoxesTest, TheRetryQuestionIsAnsweredByItsButtonsEnterAndEscape) {
    QStringList words;
    EXPECT_TRUE(askAndPress(Qt::Key_Return, words));
    words.sort();
    EXPECT_EQ(words, QStringList({QStringLiteral("Annulla"), QStringLiteral("Riprova")}));
    EXPECT_FALSE(askAndPress(Qt::Key_Escape, words));
}

} // namespace planner
