// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "modal_dialog.h"
#include "ui/kit/fitted_label.h"
#include "ui/plfgraf/chart_view.h"
#include "window_bench.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace planner::test {

/// The chart window over the planner's, on an office of three with a few hours worked.
struct ChartBench : testing::Test {
    WindowBench bench;

    ChartBench() {
        bench.base.putRighe({RigaPlanner{}, RigaPlanner{}, RigaPlanner{}});
        bench.base.putGrafici(
            {rigaGrafico("RB", "20060314", "0004:00"), rigaGrafico("RB", "20060315", "0007:30"),
             rigaGrafico("BI", "20060315", "0006:45"), rigaGrafico("BI", "20060401", "0160:00")});
    }

    /// Opens the chart of a kind of planner; Rossi is the selected staff member.
    void openChart(std::string_view tipo, const std::function<void(QDialog&)>& user) {
        bench.open(tipo);
        if (tipo == "M") {
            bench.click(3, 15);
        }
        whileModal([this] { bench.finestra.Toolbar1_ButtonClick("grafici"); },
                   [&](QDialog& dialog) {
                       user(dialog);
                       dialog.close();
                   });
    }

    static ChartView& chart(QDialog& dialog) { return *dialog.findChild<ChartView*>(); }
    static FittedLabel& line(QDialog& dialog) {
        return *dialog.findChild<FittedLabel*>(QStringLiteral("stato"));
    }
    static QString status(QDialog& dialog) { return line(dialog).text(); }
    static void choose(QDialog& dialog, int option) {
        auto* button = dialog.findChild<QRadioButton*>(QStringLiteral("OptTipoGrafico_%1").arg(option));
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
    }
    static void hover(ChartView& view, int row) {
        const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
        QMouseEvent move(QEvent::MouseMove, place, view.viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &move);
    }
    /// Saves Rossi's chart through the context menu's command; returns what the window then says.
    QString saveAs(const QString& path) {
        QString said;
        openChart("M", [&](QDialog& dialog) {
            whileModal([&] { trigger(dialog, "salva"); },
                       [&](QDialog& saving) {
                           saving.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
                           QTest::keyClick(&saving, Qt::Key_Return);
                       });
            said = status(dialog);
        });
        return said;
    }
    static QPushButton& button(QDialog& dialog, const char* command) {
        return *dialog.findChild<QPushButton*>(QStringLiteral("pulsante_") + QLatin1String(command));
    }
    /// The name under which the file dialog offers to save the chart.
    static QString offeredName(QDialog& dialog) {
        QString name;
        whileModal([&] { trigger(dialog, "salva"); },
                   [&](QDialog& saving) {
                       name = saving.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
                       saving.close();
                   });
        return name;
    }
    static void trigger(QDialog& dialog, const char* command) {
        dialog.findChild<QAction*>(QLatin1String(command))->trigger();
    }
};

} // namespace planner::test
