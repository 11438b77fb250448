// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "measures.h"
#include "modal_dialog.h"
#include "staff_bench.h"
#include "ui/kit/fitted_label.h"
#include "ui/plfgraf/chart_view.h"
#include "ui/ports/qt_message_boxes.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// A window's frame in the worst case.
constexpr QSize Frame(16, 40);

/// The other windows on the screen of this run.
struct WindowsRoomTest : testing::Test {
    StaffBench bench;

    static void expectFits(const QWidget& window) {
        const QSize room = window.screen()->availableSize() - Frame;
        EXPECT_LE(window.width(), room.width()) << describe(window);
        EXPECT_LE(window.height(), room.height()) << describe(window);
    }

    /// Expects every label and button of the dialog to have the room it asks for.
    static void expectWhole(const QWidget& dialog) {
        expectFits(dialog);
        expectTextsWhole(dialog);
        EXPECT_EQ(overlaps(visibleChildren(dialog)), "");
    }

    static void expectTextsWhole(const QWidget& dialog) {
        for (const QWidget* part : dialog.findChildren<QWidget*>()) {
            const bool text = qobject_cast<const QLabel*>(part) != nullptr ||
                              qobject_cast<const QAbstractButton*>(part) != nullptr;
            if (text && part->isVisible()) {
                EXPECT_GE(part->width(), part->minimumSizeHint().width()) << describe(*part);
                EXPECT_GE(part->height(), part->minimumSizeHint().height()) << describe(*part);
                EXPECT_TRUE(legible(part->font())) << describe(*part);
            }
        }
    }

    /// Opens the chart of a kind of planner; the first staff member is selected.
    void openChart(const char* tipo, const std::function<void(QDialog&)>& user) {
        bench.planner.base.putGrafici({rigaGrafico("RB", "20060315", "0007:30")});
        bench.planner.open(tipo);
        bench.planner.finestra.griglia_Gesto({{3, 17}});
        bool shown = false;
        whileModal([&] { bench.planner.finestra.Toolbar1_ButtonClick("grafici"); },
                   [&](QDialog& dialog) {
                       shown = true;
                       user(dialog);
                       dialog.close();
                   });
        EXPECT_TRUE(shown) << tipo;
    }

    /// Expects everything in the chart window to have its room; only the frame with the kinds of chart stands
    /// over something, the chart.
    static void expectChartWhole(const QDialog& dialog) {
        expectFits(dialog);
        expectTextsWhole(dialog);
        QWidgetList parts = visibleChildren(dialog);
        auto* frame = dialog.findChild<QGroupBox*>(QStringLiteral("FrameTipo_Grafico"));
        auto* chart = dialog.findChild<ChartView*>();
        for (const QWidget* part : parts) {
            EXPECT_TRUE(dialog.rect().contains(part->geometry())) << describe(*part);
        }
        EXPECT_TRUE(chart->geometry().contains(frame->geometry())) << describe(*frame);
        EXPECT_EQ(overlaps(visibleChildren(*frame)), "");
        parts.removeOne(frame);
        EXPECT_EQ(overlaps(parts), "");
    }
};

} // namespace

TEST_F(WindowsRoomTest, TheAppointmentTypeDialogIsWhole) {
    bench.planner.open("M");
    bool shown = false;
    whileModal([&] { bench.planner.key(Qt::Key_N, Qt::ControlModifier); },
               [&](QDialog& dialog) {
                   shown = true;
                   expectWhole(dialog);
                   dialog.reject();
               });
    EXPECT_TRUE(shown);
}

TEST_F(WindowsRoomTest, TheInformationDialogIsWholeAndWritesAsLargeAsThePlanner) {
    bench.planner.open("M");
    bool shown = false;
    whileModal([&] { bench.planner.key(Qt::Key_F1, Qt::ShiftModifier); },
               [&](QDialog& dialog) {
                   shown = true;
                   expectWhole(dialog);
                   EXPECT_DOUBLE_EQ(dialog.font().pointSizeF(), bench.planner.vista.font().pointSizeF());
                   dialog.reject();
               });
    EXPECT_TRUE(shown);
}

TEST_F(WindowsRoomTest, ALongMessageIsWhole) {
    bench.planner.open("M");
    QtMessageBoxes boxes;
    std::string text;
    for (int line = 0; line < 12; ++line) {
        text += "Il record numero 12345 dell'archivio non è valido e non è stato mostrato. ";
    }
    bool shown = false;
    whileModal(
        [&] {
            boxes.show({MessageIcon::Critical, "Planner", text});
        },
        [&](QDialog& dialog) {
            shown = true;
            expectWhole(dialog);
            dialog.reject();
        });
    EXPECT_TRUE(shown);
}

TEST_F(WindowsRoomTest, TheChartOfEachKindIsWhole) {
    for (const char* tipo : {"M", "G", "A"}) {
        openChart(tipo, [tipo](QDialog& dialog) {
            expectChartWhole(dialog);
            for (const char* name : {"stato", "piede"}) {
                const auto* label = dialog.findChild<FittedLabel*>(QLatin1String(name));
                EXPECT_FALSE(label->isVisible() && label->fitted().cut) << tipo << " " << name;
            }
        });
    }
}

TEST_F(WindowsRoomTest, TheChartGetsNoSmallerThanItCanShow) {
    openChart("M", [](QDialog& dialog) {
        dialog.resize(10, 10);
        EXPECT_EQ(dialog.size(), dialog.minimumSize());
        expectChartWhole(dialog);
    });
}

TEST_F(WindowsRoomTest, ALargerChartStaysWhole) {
    openChart("G", [](QDialog& dialog) {
        dialog.resize(dialog.screen()->availableSize() - Frame);
        expectChartWhole(dialog);
    });
}

TEST_F(WindowsRoomTest, TheStaffListsCountFitsItsPlace) {
    bench.open();
    const auto* count = bench.window().findChild<FittedLabel*>(QStringLiteral("conteggio"));
    ASSERT_NE(count, nullptr);
    bench.window().resize(10, 10);
    bench.press(ComandoCollab::selezionaTutti);
    EXPECT_FALSE(count->text().isEmpty());
    EXPECT_FALSE(count->fitted().cut);
    EXPECT_GE(count->height(), lineHeight(count->fitted().font()));
}

TEST_F(WindowsRoomTest, TheStaffWindowIsWhole) {
    bench.open();
    PlfcollabWindow& window = bench.window();
    expectFits(window);
    EXPECT_EQ(cutCommands(*window.findChild<QToolBar*>()), "");
    EXPECT_EQ(overlaps(visibleChildren(window)), "");
    for (const DescrizioneFreccia& described : FrecceCollab) {
        const QToolButton& arrow = bench.arrow(described.indice);
        EXPECT_TRUE(arrow.parentWidget()->rect().contains(arrow.geometry())) << describe(arrow);
        EXPECT_GE(arrow.height(), arrow.sizeHint().height()) << describe(arrow);
    }
    EXPECT_EQ(overlaps(visibleChildren(*bench.arrow(Freccia::rigaSu).parentWidget())), "");
}

TEST_F(WindowsRoomTest, TheStaffWindowsPicturesGrowWithItsLetters) {
    bench.open();
    PlfcollabWindow& window = bench.window();
    const double factor = window.font().pointSizeF() / carattere(Carattere::normale).punti;
    EXPECT_NEAR(window.findChild<QToolBar*>()->iconSize().height(), 24 * factor, 1);
    EXPECT_NEAR(bench.arrow(Freccia::rigaSu).iconSize().height(), 20 * factor, 1);
}

TEST_F(WindowsRoomTest, TheStaffWindowGetsNoSmallerThanItCanShow) {
    bench.open();
    PlfcollabWindow& window = bench.window();
    window.resize(10, 10);
    EXPECT_EQ(cutCommands(*window.findChild<QToolBar*>()), "");
    EXPECT_EQ(overlaps(visibleChildren(window)), "");
    EXPECT_GE(bench.list().viewport()->height(), 3 * bench.list().sizeHintForRow(0));
    expectFits(window);
}

TEST_F(WindowsRoomTest, TheSearchIsWhole) {
    bench.open();
    bench.search([&](QDialog& dialog) {
        expectWhole(dialog);
        dialog.reject();
    });
}

} // namespace planner::test
