// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_export.h"
#include "forms/plfgraf/chart_model.h"
#include "forms/plfgraf/chart_view.h"
#include "platform/qt/fitted_label.h"
#include "platform/qt/text.h"
#include "ui/modal_dialog.h"
#include "ui/window_bench.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>

#include <gmock/gmock.h>

namespace planner::test {

namespace {

using testing::SizeIs;

struct ChartWindowTest : testing::Test {
    WindowBench bench;

    ChartWindowTest() {
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
            EXPECT_TRUE(status(dialog).startsWith(heading + QStringLiteral(". "))) << heading.toStdString();
            EXPECT_EQ(chart(dialog).accessibleDescription(), heading);
            EXPECT_EQ(dialog.accessibleDescription(), heading);
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
        EXPECT_TRUE(status(dialog).startsWith(notice + QStringLiteral("Ore dei collaboratori")));
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

TEST_F(ChartWindowTest, TheArrowKeysWalkTheValues) {
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

TEST_F(ChartWindowTest, InAPieTheArrowKeysWalkTheSlices) {
    openChart("M", [](QDialog& dialog) {
        choose(dialog, 2);
        chart(dialog).setFocus();
        QTest::keyClick(&chart(dialog), Qt::Key_Home);
        EXPECT_EQ(status(dialog), QStringLiteral("14 marzo: 4:00"));
        QTest::keyClick(&chart(dialog), Qt::Key_Right);
        EXPECT_EQ(status(dialog), QStringLiteral("15 marzo: 7:30"));
        QTest::keyClick(&chart(dialog), Qt::Key_Right);
        EXPECT_EQ(status(dialog), QStringLiteral("15 marzo: 7:30"));
    });
}

TEST_F(ChartWindowTest, TheMouseReadsTheValueUnderIt) {
    openChart("G", [](QDialog& dialog) {
        hover(chart(dialog), 1);
        EXPECT_EQ(status(dialog), QStringLiteral("Rossi Bruno (RB): 7:30"));
        choose(dialog, 2);
        hover(chart(dialog), 0);
        EXPECT_EQ(status(dialog), QStringLiteral("Bianchi Rosa (BI): 6:45"));
    });
}

TEST_F(ChartWindowTest, AToolTipReadsTheValueToo) {
    openChart("M", [](QDialog& dialog) {
        ChartView& view = chart(dialog);
        const QPoint place = view.visualRect(view.model()->index(14, 0)).center();
        QHelpEvent help(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view.viewport(), &help);
        EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("15 marzo: 7:30")));
        QToolTip::hideText();
    });
}

TEST_F(ChartWindowTest, AScreenReaderReadsEachValueAsOneSentence) {
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

TEST_F(ChartWindowTest, TheModelKeepsTheToolkitsRules) {
    openChart("A", [](QDialog& dialog) {
        QAbstractItemModelTester tester(chart(dialog).model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
        EXPECT_EQ(chart(dialog).model()->rowCount(), 12);
    });
}

TEST_F(ChartWindowTest, UpAndLeftGoBackDownAndRightGoOn) {
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

TEST_F(ChartWindowTest, AModelAnswersEveryRoleForEveryIndex) {
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

TEST_F(ChartWindowTest, AModelKeepsAnExceptionFromBelow) {
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

TEST_F(ChartWindowTest, CtrlCCopiesTheValuesAsATable) {
    openChart("G", [](QDialog& dialog) {
        QTest::keyClick(&chart(dialog), Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(),
                  QStringLiteral("Ore dei collaboratori - 15 marzo 2006\nCollaboratori\tOre\tOre decimali\n"
                                 "BI\t6:45\t6,75\nRB\t7:30\t7,5\n7 \t0:00\t0\n"));
    });
}

TEST_F(ChartWindowTest, TheContextMenuOffersToCopyToSaveAndToPrint) {
    openChart("M", [](QDialog& dialog) {
        QStringList texts;
        for (const QAction* action : chart(dialog).actions()) {
            texts.append(action->text());
        }
        EXPECT_EQ(texts.join(QLatin1Char('|')), QStringLiteral("Copia i valori|Salva il grafico…|Stampa…"));
        EXPECT_EQ(chart(dialog).contextMenuPolicy(), Qt::ActionsContextMenu);
    });
}

TEST_F(ChartWindowTest, NamesShowAsTheyAreWhateverTheyHold) {
    const std::vector<std::string> names{"<b>Bianchi</b>", "Rossi &amp; %1", "Rossi &amp; %1",
                                         std::string(50, 'W')};
    bench.base.putCollaboratori({collaboratore("BI", names[0]), collaboratore("RB", names[1]),
                                 collaboratore("7 ", names[2]), collaboratore("WW", names[3])});
    openChart("G", [&](QDialog& dialog) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&chart(dialog));
        for (std::size_t i = 0; i < names.size(); ++i) {
            const QString name = QString::fromStdString(names[i]);
            QTest::keyClick(&chart(dialog), Qt::Key_Right);
            EXPECT_TRUE(status(dialog).startsWith(name)) << names[i];
            EXPECT_TRUE(accessible->child(static_cast<int>(i))->text(QAccessible::Name).startsWith(name));
        }
        EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("stato"))->textFormat(), Qt::PlainText);
        const std::vector<PlacedText>& texts = chart(dialog).chartLayout().texts;
        EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&](const PlacedText& text) {
            return text.text == names[1];
        })) << "the legend";
    });
}

TEST_F(ChartWindowTest, SavesInTheFormatThatTheNameEndsWith) {
    const QTemporaryDir folder;
    const std::vector<std::pair<QString, QByteArray>> formats{{QStringLiteral("png"), "\x89PNG"},
                                                              {QStringLiteral("svg"), "<?xml"},
                                                              {QStringLiteral("PDF"), "%PDF"}};
    for (const auto& [suffix, start] : formats) {
        const QString path = folder.filePath(QStringLiteral("grafico.") + suffix);
        EXPECT_EQ(saveAs(path), QStringLiteral("Grafico salvato in ") + path);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        const QByteArray bytes = file.readAll();
        EXPECT_TRUE(bytes.startsWith(start.constData())) << path.toStdString();
        EXPECT_GT(bytes.size(), 1000);
    }
}

TEST_F(ChartWindowTest, ASavedDrawingHoldsTheTextsAsTheyAre) {
    const QTemporaryDir folder;
    bench.base.putCollaboratori({collaboratore("BI", "B"), collaboratore("RB", "<b>Rossi</b> & %1")});
    const QString path = folder.filePath(QStringLiteral("grafico.svg"));
    saveAs(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString svg = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(svg.contains(QStringLiteral(">&lt;b&gt;Rossi&lt;/b&gt; &amp; %1<"))) << "the legend";
    EXPECT_TRUE(svg.contains(QStringLiteral(">Ore di &lt;b&gt;Rossi&lt;/b&gt; &amp; %1 - marzo 2006<")));
    EXPECT_FALSE(svg.contains(QStringLiteral("<b>")));
}

TEST_F(ChartWindowTest, ANameThatNoFileCanHaveIsOfferedWithoutWhatIsForbidden) {
    bench.base.putCollaboratori({collaboratore("BI", "B"), collaboratore("RB", "../Rossi: B.")});
    openChart("M", [](QDialog& dialog) {
        EXPECT_EQ(offeredName(dialog), QStringLiteral("Ore di ___Rossi_ B_ - marzo 2006"));
    });
}

TEST_F(ChartWindowTest, PrintsOnOneLandscapePage) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stampa.pdf"));
    openChart("M", [&](QDialog& dialog) {
        whileModal([&] { trigger(dialog, "stampa"); },
                   [&](QDialog& printing) {
                       printing.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(path);
                       QTest::keyClick(&printing, Qt::Key_Return);
                   });
    });
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page\n"), 1);
    EXPECT_TRUE(bytes.contains("/MediaBox [0 0 842.000000 595.000000]")) << "A4, landscape";
}

TEST_F(ChartWindowTest, AFileThatCannotBeWrittenIsSaid) {
    const QTemporaryDir folder;
    saveAs(folder.filePath(QStringLiteral("manca/grafico.png")));
    ASSERT_THAT(bench.base.messaggi.shown, SizeIs(1));
    EXPECT_EQ(bench.base.messaggi.shown.front().icon, MessageIcon::Critical);
    EXPECT_THAT(bench.base.messaggi.shown.front().text, testing::HasSubstr("manca/grafico.png"));
}

TEST_F(ChartWindowTest, ANameThatEndsOtherwiseIsRefused) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("grafico.txt"));
    saveAs(path);
    ASSERT_THAT(bench.base.messaggi.shown, SizeIs(1));
    EXPECT_THAT(bench.base.messaggi.shown.front().text,
                testing::HasSubstr("il nome deve finire con .png, .svg o .pdf"));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ChartWindowTest, AFailedSaveLeavesTheOldFileAsItWas) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("grafico.png"));
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    EXPECT_FALSE(saveDrawing({QSizeF(), QString(), [](QPainter&, QSizeF) {}}, path).isEmpty());
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
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
