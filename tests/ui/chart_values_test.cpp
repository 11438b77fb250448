// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "chart_bench.h"
#include "ui/plfgraf/chart_model.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

#include <gmock/gmock.h>

namespace planner::test {

namespace {

struct ChartValuesTest : ChartBench {};

} // namespace

TEST_F(ChartValuesTest, TheArrowKeysWalkTheValues) {
    openChart("M", [](QDialog& dialog) {
        QTest::keyClick(&chart(dialog), Qt::Key_Right);
        EXPECT_EQ(status(dialog), QStringLiteral("1 marzo: 0:00"));
        QTest::keyClick(&chart(dialog), Qt::Key_Right);
        EXPECT_EQ(status(dialog), QStringLiteral("2 marzo: 0:00"));
        QTest::keyClick(&chart(dialog), Qt::Key_Left);
        EXPECT_EQ(status(dialog), QStringLiteral("1 marzo: 0:00"));
        QTest::keyClick(&chart(dialog), Qt::Key_End);
        EXPECT_EQ(status(dialog), QStringLiteral("31 marzo: 0:00"));
    });
}

TEST_F(ChartValuesTest, InAPieTheArrowKeysWalkTheSlices) {
    openChart("M", [](QDialog& dialog) {
        choose(dialog, 2);
        chart(dialog).setFocus();
        QTest::keyClick(&chart(dialog), Qt::Key_Home);
        EXPECT_EQ(status(dialog), QStringLiteral("14 marzo: 4:00, 35 %"));
        QTest::keyClick(&chart(dialog), Qt::Key_Right);
        EXPECT_EQ(status(dialog), QStringLiteral("15 marzo: 7:30, 65 %"));
        QTest::keyClick(&chart(dialog), Qt::Key_Right);
        EXPECT_EQ(status(dialog), QStringLiteral("15 marzo: 7:30, 65 %"));
    });
}

TEST_F(ChartValuesTest, TheMouseReadsTheValueUnderIt) {
    openChart("G", [](QDialog& dialog) {
        hover(chart(dialog), 1);
        EXPECT_EQ(status(dialog), QStringLiteral("Rossi Bruno (RB): 7:30"));
        choose(dialog, 2);
        hover(chart(dialog), 0);
        EXPECT_EQ(status(dialog), QStringLiteral("Bianchi Rosa (BI): 6:45, 47 %"));
    });
}

TEST_F(ChartValuesTest, AToolTipReadsTheValueToo) {
    openChart("M", [](QDialog& dialog) {
        ChartView& view = chart(dialog);
        const QPoint place = view.visualRect(view.model()->index(14, 0)).center();
        QHelpEvent help(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view.viewport(), &help);
        EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("15 marzo: 7:30")));
        QToolTip::hideText();
    });
}

TEST_F(ChartValuesTest, AScreenReaderReadsEachValueAsOneSentence) {
    openChart("M", [](QDialog& dialog) {
        ChartView& view = chart(dialog);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
        EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Grafico"));
        ASSERT_EQ(accessible->childCount(), 31);
        EXPECT_EQ(accessible->child(14)->text(QAccessible::Name),
                  QStringLiteral("15 marzo: 7 ore e 30 minuti"));
        EXPECT_EQ(accessible->child(0)->text(QAccessible::Name), QStringLiteral("1 marzo: nessuna ora"));
    });
}

TEST_F(ChartValuesTest, TheModelKeepsTheToolkitsRules) {
    openChart("A", [](QDialog& dialog) {
        QAbstractItemModelTester tester(chart(dialog).model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
        EXPECT_EQ(chart(dialog).model()->rowCount(), 12);
    });
}

TEST_F(ChartValuesTest, UpAndLeftGoBackDownAndRightGoOn) {
    openChart("M", [](QDialog& dialog) {
        const std::vector<std::pair<Qt::Key, QString>> steps{
            {Qt::Key_Down, QStringLiteral("1 marzo: 0:00")}, {Qt::Key_Right, QStringLiteral("2 marzo: 0:00")},
            {Qt::Key_Down, QStringLiteral("3 marzo: 0:00")}, {Qt::Key_Up, QStringLiteral("2 marzo: 0:00")},
            {Qt::Key_Left, QStringLiteral("1 marzo: 0:00")}, {Qt::Key_Up, QStringLiteral("1 marzo: 0:00")},
            {Qt::Key_End, QStringLiteral("31 marzo: 0:00")}, {Qt::Key_Down, QStringLiteral("31 marzo: 0:00")},
            {Qt::Key_Home, QStringLiteral("1 marzo: 0:00")}};
        for (const auto& [key, expected] : steps) {
            QTest::keyClick(&chart(dialog), key);
            EXPECT_EQ(status(dialog), expected) << key;
        }
    });
}

TEST_F(ChartValuesTest, AModelAnswersEveryRoleForEveryIndex) {
    const auto ask = [](const QAbstractItemModel& model, const QModelIndex& index) {
        for (int role = 0; role <= Qt::UserRole + 300; ++role) {
            EXPECT_NO_THROW(model.data(index, role)) << role;
            EXPECT_NO_THROW(model.headerData(index.row(), Qt::Horizontal, role)) << role;
            EXPECT_NO_THROW(model.headerData(index.row(), Qt::Vertical, role)) << role;
        }
    };
    for (const std::string tipo : {"M", "G", "A"}) {
        openChart(tipo, [&](QDialog& dialog) {
            const QAbstractItemModel& model = *chart(dialog).model();
            const Grafico empty;
            const ChartModel shorter(empty, nullptr);
            for (const int kind : {0, 2}) {
                choose(dialog, kind);
                for (int row = 0; row < model.rowCount(); ++row) {
                    ask(model, model.index(row, 0));
                }
                ask(model, {});
                ask(shorter, model.index(0, 0)); // another model's
            }
        });
    }
}

TEST_F(ChartValuesTest, AModelKeepsAnExceptionFromBelow) {
    Grafico grafico;
    grafico.etichette = {"1", "2"};
    grafico.serie = {{"Rossi", {7.5}, ColoreSerie}}; // the second row lacks its value, and both their names
    const ChartModel model(grafico, nullptr);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("7:30"));
    EXPECT_FALSE(model.index(1, 0).data().isValid());
    for (int row = 0; row < 2; ++row) {
        EXPECT_FALSE(model.index(row, 0).data(Qt::AccessibleTextRole).isValid());
        EXPECT_FALSE(model.index(row, 0).data(Qt::StatusTipRole).isValid());
        EXPECT_FALSE(model.index(row, 0).data(Qt::ToolTipRole).isValid());
    }
    const QModelIndex gone = model.index(1, 0);
    grafico = Grafico{};
    EXPECT_FALSE(model.data(gone, Qt::DisplayRole).isValid()) << "the row is gone";
}

} // namespace planner::test
