// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "chart_bench.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>

#include <gmock/gmock.h>

namespace planner::test {

namespace {

using testing::SizeIs;

struct ChartWindowTest : ChartBench {};

} // namespace

TEST_F(ChartWindowTest, EachKindOfPlannerHasItsChart) {
    const std::vector<std::pair<std::string, QString>> charts{{"M", QStringLiteral("MSChartm")},
                                                              {"G", QStringLiteral("MSChartg")},
                                                              {"A", QStringLiteral("MSCharta")}};
    for (const auto& [tipo, name] : charts) {
        openChart(tipo, [&name = name](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Planner"));
            EXPECT_THAT(dialog.findChildren<ChartView*>(), SizeIs(1));
            EXPECT_EQ(chart(dialog).objectName(), name);
            EXPECT_TRUE(dialog.isModal());
        });
    }
}

TEST_F(ChartWindowTest, EscapeClosesIt) {
    bench.open("G");
    bool closed = false;
    whileModal([this] { bench.finestra.Toolbar1_ButtonClick("grafici"); },
               [&](QDialog& dialog) {
                   QTest::keyClick(&dialog, Qt::Key_A); // any other key does nothing
                   QTest::keyClick(&dialog, Qt::Key_Return);
                   EXPECT_TRUE(dialog.isVisible());
                   QTest::keyClick(&chart(dialog), Qt::Key_Escape);
                   closed = !dialog.isVisible();
                   dialog.close();
               });
    EXPECT_TRUE(closed);
}

TEST_F(ChartWindowTest, AHeldEscapeLeavesItOpen) {
    openChart("G", [](QDialog& dialog) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), /*autorep=*/true);
        QCoreApplication::sendEvent(&chart(dialog), &held);
        EXPECT_TRUE(dialog.isVisible()) << "the key was pressed for another window";
    });
}

TEST_F(ChartWindowTest, EnterPressesTheButtonWithTheFocus) {
    openChart("M", [](QDialog& dialog) {
        auto* pie = dialog.findChild<QRadioButton*>(QStringLiteral("OptTipoGrafico_2"));
        pie->setFocus();
        QTest::keyClick(pie, Qt::Key_Return);
        EXPECT_TRUE(pie->isChecked());
        EXPECT_THAT(chart(dialog).chartLayout().slices, SizeIs(2));
        for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            line(dialog).setText(QString());
            button(dialog, "copia").setFocus();
            QTest::keyClick(&button(dialog, "copia"), static_cast<Qt::Key>(key));
            EXPECT_EQ(status(dialog), QStringLiteral("Valori copiati.")) << key;
        }
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(ChartWindowTest, CopyingSavingAndPrintingHaveVisibleButtonsBelowTheChart) {
    openChart("M", [](QDialog& dialog) {
        for (const char* command : {"copia", "salva", "stampa"}) {
            const QPushButton& each = button(dialog, command);
            const auto* action = dialog.findChild<QAction*>(QLatin1String(command));
            EXPECT_TRUE(each.isVisible()) << command;
            EXPECT_EQ(each.text(), action->text());
            EXPECT_TRUE(each.toolTip().contains(action->shortcut().toString())) << command;
            EXPECT_GT(each.y(), chart(dialog).geometry().bottom());
            EXPECT_LT(each.geometry().bottom(), dialog.height());
            EXPECT_FALSE(each.geometry().intersects(line(dialog).geometry()));
        }
        EXPECT_EQ(button(dialog, "salva").text(), QStringLiteral("Salva il grafico…"));
    });
}

TEST_F(ChartWindowTest, TabReachesEveryButton) {
    openChart("M", [](QDialog& dialog) {
        QStringList reached;
        do {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            reached.append(dialog.focusWidget()->objectName());
        } while (dialog.focusWidget() != &chart(dialog) && reached.size() < 10);
        const QString all = reached.join(QLatin1Char(' '));
        EXPECT_TRUE(all.startsWith(QStringLiteral("OptTipoGrafico_0 "))) << all.toStdString();
        EXPECT_TRUE(all.endsWith(QStringLiteral(" pulsante_copia pulsante_salva pulsante_stampa MSChartm")))
            << all.toStdString();
    });
}

TEST_F(ChartWindowTest, AStatusTooLongForItsPlaceIsReadWholeAllTheSame) {
    openChart("G", [](QDialog& dialog) {
        FittedLabel& status = line(dialog);
        EXPECT_FALSE(status.fitted().cut);
        const QString whole = QStringLiteral("<b>lungo</b> ").repeated(80);
        status.setText(whole);
        EXPECT_TRUE(status.fitted().cut);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&status)->text(QAccessible::Name), whole);
    });
}

TEST_F(ChartWindowTest, SaysWhoseHoursItShows) {
    const std::vector<std::pair<std::string, QString>> headings{
        {"M", QStringLiteral("Ore di Rossi Bruno - marzo 2006")},
        {"G", QStringLiteral("Ore dei collaboratori - 15 marzo 2006")},
        {"A", QStringLiteral("Ore dell'anno 2006")}};
    for (const auto& [tipo, heading] : headings) {
        openChart(tipo, [&heading = heading](QDialog& dialog) {
            const auto* foot = dialog.findChild<FittedLabel*>(QStringLiteral("piede"));
            EXPECT_TRUE(foot->text().startsWith(heading + QStringLiteral(": "))) << heading.toStdString();
            EXPECT_FALSE(foot->fitted().cut) << heading.toStdString();
            EXPECT_EQ(dialog.accessibleDescription() + chart(dialog).accessibleDescription(), QString())
                << "a screen reader reads the foot already";
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Planner"));
            EXPECT_EQ(offeredName(dialog), heading);
            trigger(dialog, "copia");
            EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(heading + QLatin1Char('\n')));
        });
    }
}

TEST_F(ChartWindowTest, TheLineSaysFirstThatTheHoursAreNotUpToDate) {
    const QString notice = QStringLiteral("Dati non aggiornati: wgrafici non si legge. ");
    bench.base.files.remove(PlannerBench::path(FileGrafici));
    openChart("G", [&notice](QDialog& dialog) {
        EXPECT_TRUE(status(dialog).startsWith(notice));
        hover(chart(dialog), 1);
        EXPECT_EQ(status(dialog), notice + QStringLiteral("Rossi Bruno (RB): 0:00"));
    });
}

TEST_F(ChartWindowTest, TheFrameIsPaperWithALineOnADarkDesktopToo) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(49, 54, 59), QColor(35, 38, 41)));
    openChart("M", [](QDialog& dialog) {
        auto* frame = dialog.findChild<QGroupBox*>(QStringLiteral("FrameTipo_Grafico"));
        EXPECT_EQ(frame->title(), QStringLiteral("Tipo Grafico"));
        const QImage image = frame->grab().toImage();
        EXPECT_EQ(image.pixelColor(image.width() / 2, 3), Qt::white);
        EXPECT_EQ(image.pixelColor(image.width() / 2, 0), QColor(128, 128, 128));
        const auto* option = dialog.findChild<QRadioButton*>(QStringLiteral("OptTipoGrafico_1"));
        EXPECT_EQ(option->palette().color(QPalette::WindowText), Qt::black);
        EXPECT_EQ(option->palette().color(QPalette::Window), Qt::white);
    });
    QApplication::setPalette(before);
}

TEST_F(ChartWindowTest, LineeShowsAPieExactlyLikeTortaAndIstogrammaBarsAgain) {
    openChart("M", [](QDialog& dialog) {
        EXPECT_THAT(chart(dialog).chartLayout().bars, SizeIs(31));
        for (const int pie : {1, 2}) {
            choose(dialog, pie);
            EXPECT_THAT(chart(dialog).chartLayout().bars, SizeIs(0));
            EXPECT_THAT(chart(dialog).chartLayout().slices, SizeIs(2));
        }
        choose(dialog, 0);
        EXPECT_THAT(chart(dialog).chartLayout().bars, SizeIs(31));
    });
}

TEST_F(ChartWindowTest, AClosedWindowForgetsItsKindOfChart) {
    openChart("M", [](QDialog& dialog) { choose(dialog, 2); });
    openChart("M", [](QDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(QStringLiteral("OptTipoGrafico_0"))->isChecked());
        EXPECT_THAT(chart(dialog).chartLayout().bars, SizeIs(31));
    });
}

TEST_F(ChartWindowTest, AResizeLeavesMarginsAndKeepsTheFrameInTheUpperRightCorner) {
    openChart("M", [](QDialog& dialog) {
        dialog.resize(900, 600);
        QCoreApplication::processEvents();
        const QWidget& frame = *dialog.findChild<QWidget*>(QStringLiteral("FrameTipo_Grafico"));
        EXPECT_EQ(chart(dialog).width(), (900 * 15 - 500) / 15);
        EXPECT_EQ(chart(dialog).height(), (600 * 15 - 700) / 15);
        EXPECT_NEAR(frame.geometry().right() + 1, chart(dialog).width() - 500 / 15, 1);
        EXPECT_NEAR(frame.y(), chart(dialog).y() + 100 / 15, 1);
    });
}

TEST_F(ChartWindowTest, TheFrameCoversNoTextAtAnySize) {
    openChart("M", [](QDialog& dialog) {
        const QWidget& frame = *dialog.findChild<QWidget*>(QStringLiteral("FrameTipo_Grafico"));
        for (const QSize size : {QSize(1366, 768), QSize(1920, 1080), QSize(640, 480), QSize(480, 400)}) {
            dialog.resize(size);
            QCoreApplication::processEvents();
            const QRectF covered = frame.geometry().translated(-chart(dialog).pos());
            for (const PlacedText& text : chart(dialog).chartLayout().texts) {
                const QRectF area(text.area.x, text.area.y, text.area.width, text.area.height);
                EXPECT_FALSE(covered.intersects(area)) << text.text << " at " << dialog.width();
            }
        }
    });
}

TEST_F(ChartWindowTest, AMarkOnAValueOfNoHoursStandsOnTheAxisAndLeavesItsNumbersWhole) {
    openChart("M", [](QDialog& dialog) {
        ChartView& view = chart(dialog);
        view.setFocus();
        const ChartArea plot = view.chartLayout().plot;
        const QRect numbers(0, 0, static_cast<int>(plot.x) - 1, view.viewport()->height());
        const QImage before = view.viewport()->grab().toImage();
        QTest::keyClick(&view, Qt::Key_Home);
        const QImage after = view.viewport()->grab().toImage();
        EXPECT_EQ(after.copy(numbers), before.copy(numbers));
        const QRectF bar(view.visualRect(view.model()->index(0, 0)));
        EXPECT_EQ(
            after.pixelColor(QPoint(static_cast<int>(bar.center().x()), static_cast<int>(plot.bottom()) - 6)),
            Qt::black);
    });
}

TEST_F(ChartWindowTest, ASelectedRowWithoutHoursIsAChartAllTheSame) {
    bench.base.putGrafici({rigaGrafico("ZZ", "20060314", "0004:00")});
    openChart("M", [](QDialog& dialog) {
        EXPECT_THAT(chart(dialog).chartLayout().bars, SizeIs(31));
        choose(dialog, 2);
        EXPECT_EQ(chart(dialog).chartLayout().texts.back().text, "Nessuna ora da mostrare");
        QTest::keyClick(&chart(dialog), Qt::Key_Right);
        QTest::keyClick(&chart(dialog), Qt::Key_End);
        hover(chart(dialog), 0);
        dialog.grab();
    });
}

TEST_F(ChartWindowTest, WithoutASelectionThereIsTheMessageAndNoWindow) {
    bench.open("M");
    bench.finestra.Toolbar1_ButtonClick("grafici");
    ASSERT_THAT(bench.base.messaggi.shown, SizeIs(1));
    EXPECT_EQ(bench.base.messaggi.shown.front().text,
              "Selezionare un collaboratore prima di visualizzare il grafico.");
}

TEST_F(ChartWindowTest, FocusReturnsToTheGridAfterwards) {
    openChart("M", [](QDialog&) {});
    EXPECT_EQ(bench.vista.focusWidget(), &bench.view());
}

} // namespace planner::test
