// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "modal_dialog.h"
#include "window_bench.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

struct DialogsTest : testing::Test {
    WindowBench bench;

    void insertEntry(const std::function<void(QDialog&)>& user) {
        whileModal([this] { bench.key(Qt::Key_N, Qt::ControlModifier); }, user);
    }
};

} // namespace

TEST_F(DialogsTest, EnterConfirmsTheFirstChoice) {
    bench.open("M");
    insertEntry([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Inserimento Impegni"));
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(QStringLiteral("Option1_0"))->isChecked());
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(bench.reply(), "20060315  I");
}

TEST_F(DialogsTest, TheSecondChoiceAnswersT) {
    bench.open("M");
    insertEntry([](QDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QRadioButton*>(QStringLiteral("Option1_1")), Qt::LeftButton,
                          Qt::NoModifier, QPoint(8, 8));
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("conferma")), Qt::LeftButton);
    });
    EXPECT_EQ(bench.reply(), "20060315  T");
}

TEST_F(DialogsTest, AnnullaAndEscapeAndTheCloseBoxAnswerNothing) {
    bench.open("M");
    insertEntry([](QDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("annulla")), Qt::LeftButton);
    });
    insertEntry([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    insertEntry([](QDialog& dialog) { dialog.close(); });
    EXPECT_EQ(bench.reply(), "");
    EXPECT_FALSE(bench.base.sessione.FinePlanner);
    EXPECT_TRUE(bench.vista.isVisible());
}

TEST_F(DialogsTest, TheArrowKeysChooseInTheDialog) {
    bench.open("M");
    insertEntry([](QDialog& dialog) {
        auto* first = dialog.findChild<QRadioButton*>(QStringLiteral("Option1_0"));
        first->setFocus();
        QTest::keyClick(first, Qt::Key_Down);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(bench.reply(), "20060315  T");
}

TEST_F(DialogsTest, ShiftF1ShowsNameVersionAndEveryPicturesMeaning) {
    bench.open("M");
    QStringList texts;
    whileModal([this] { bench.key(Qt::Key_F1, Qt::ShiftModifier); },
               [&](QDialog& dialog) {
                   for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                       EXPECT_EQ(label->textFormat(), Qt::PlainText);
                       texts << label->text();
                   }
                   dialog.close();
               });
    const QString all = texts.join(QLatin1Char('\n'));
    for (const char* word :
         {"Planner grafico, versione ", "Note riservate", "Impegni vari", "Scadenze", "Pratiche"}) {
        EXPECT_TRUE(all.contains(QLatin1String(word))) << word;
    }
    EXPECT_EQ(bench.reply(), "");
}

} // namespace planner::test
