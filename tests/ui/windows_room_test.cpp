// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/qt/qt_message_boxes.h"
#include "ui/measures.h"
#include "ui/modal_dialog.h"
#include "ui/staff_bench.h"

#include <QAbstractButton>
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
        for (const QWidget* part : dialog.findChildren<QWidget*>()) {
            const bool text = qobject_cast<const QLabel*>(part) != nullptr ||
                              qobject_cast<const QAbstractButton*>(part) != nullptr;
            if (text && part->isVisible()) {
                EXPECT_GE(part->width(), part->minimumSizeHint().width()) << describe(*part);
                EXPECT_GE(part->height(), part->minimumSizeHint().height()) << describe(*part);
                EXPECT_TRUE(legible(part->font())) << describe(*part);
            }
        }
        EXPECT_EQ(overlaps(visibleChildren(dialog)), "");
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
    whileModal([&] { bench.planner.key(Qt::Key_F1); },
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
