// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "staff_bench.h"

#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

constexpr int ManyStaff = 5000;

std::string zeroPadded(int number) {
    const std::string digits = std::to_string(number);
    return std::string(4 - digits.size(), '0') + digits;
}

struct StaffSearchWindowTest : testing::Test {
    StaffBench bench;

    /// "Nome 0000" to "Nome 4999".
    void openMany() {
        std::vector<Collaboratore> staff;
        for (int i = 0; i < ManyStaff; ++i) {
            staff.push_back(collaboratore("XX", "Nome " + zeroPadded(i)));
        }
        bench.planner.base.putCollaboratori(staff);
        bench.planner.base.putRighe(std::vector<RigaPlanner>(4));
        bench.open();
    }
    int firstRow() { return bench.list().firstVisibleRow(); }
    int page() { return bench.list().rowsPerPage(); }
    bool inSight(int row) {
        const QRect rect = bench.list().visualRect(bench.list().model()->index(row, 0));
        return bench.list().viewport()->rect().contains(rect.center());
    }
};

} // namespace

TEST_F(StaffSearchWindowTest, CtrlFAsksAndSelectsWhatItFinds) {
    bench.open();
    bench.searchFor(QStringLiteral("UGO"));
    EXPECT_EQ(bench.lista().selezionata(), 2);
    EXPECT_EQ(bench.list().currentIndex().row(), 2);
    EXPECT_TRUE(bench.list().selectionModel()->isRowSelected(2));
}

TEST_F(StaffSearchWindowTest, TheQuestionHasItsTitleAndOffersTheLastText) {
    bench.open();
    bench.searchFor(QStringLiteral("rossi"));
    bench.search([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Cerca collaboratore"));
        auto* field = dialog.findChild<QLineEdit*>();
        EXPECT_EQ(field->text(), QStringLiteral("rossi"));
        EXPECT_EQ(field->selectedText(), QStringLiteral("rossi")) << "typing replaces it";
        QTest::keyClick(field, Qt::Key_Escape);
    });
    EXPECT_EQ(bench.lista().selezionata(), 1);
    EXPECT_TRUE(bench.window().isVisible()) << "Escape was for the question";
}

TEST_F(StaffSearchWindowTest, WhatIsNotFoundIsSaidAndTheSelectionStays) {
    bench.open();
    bench.click(0, 1);
    bench.searchFor(QStringLiteral("neri"));
    EXPECT_EQ(bench.lastMessage(), "Collaboratore non trovato");
    EXPECT_EQ(bench.list().currentIndex().row(), 0);
}

TEST_F(StaffSearchWindowTest, F3SearchesOn) {
    bench.planner.base.putCollaboratori({collaboratore("01", "Rossi Anna"), collaboratore("02", "Verdi"),
                                         collaboratore("03", "R\xD2ssi Ugo")});
    bench.open();
    bench.searchFor(QStringLiteral("rossi"));
    EXPECT_EQ(bench.lista().selezionata(), 0);
    bench.key(Qt::Key_F3);
    EXPECT_EQ(bench.lista().selezionata(), 2) << "accents do not matter";
    bench.key(Qt::Key_F3);
    EXPECT_EQ(bench.lista().selezionata(), 0);
}

TEST_F(StaffSearchWindowTest, AccentsAndSpecialCharactersAreSearchedAsTheyAre) {
    bench.planner.base.putCollaboratori({collaboratore("01", "Nicol\xF2 Cant\xF9"),
                                         collaboratore("02", "<b>Rossi</b> & %1 .*"),
                                         collaboratore("03", std::string(50, 'W'))});
    bench.open();
    bench.searchFor(QStringLiteral("nicolo cantu"));
    EXPECT_EQ(bench.lista().selezionata(), 0);
    bench.searchFor(QStringLiteral("</B> & %1 .*"));
    EXPECT_EQ(bench.lista().selezionata(), 1);
    EXPECT_EQ(bench.names().at(1), QStringLiteral("<b>Rossi</b> & %1 .*"));
}

TEST_F(StaffSearchWindowTest, ClosingTheSessionClosesAnOpenQuestion) {
    bench.open();
    bench.search([this](QDialog&) { bench.planner.finestra.hide(); });
    EXPECT_FALSE(bench.window().isVisible());
    EXPECT_EQ(bench.lista().selezionata(), std::nullopt);
}

TEST_F(StaffSearchWindowTest, AMatchFarDownComesIntoSight) {
    openMany();
    bench.searchFor(QStringLiteral("4321"));
    EXPECT_EQ(bench.lista().selezionata(), 4321);
    EXPECT_TRUE(inSight(4321));
}

TEST_F(StaffSearchWindowTest, TheArrowsScrollFiveThousandRows) {
    openMany();
    ASSERT_GT(page(), 5);
    ASSERT_LT(page(), 100);
    EXPECT_EQ(firstRow(), 0);
    bench.press(Freccia::rigaGiu);
    EXPECT_EQ(firstRow(), 1);
    bench.press(Freccia::paginaGiu);
    EXPECT_EQ(firstRow(), 1 + page());
    bench.press(Freccia::rigaSu);
    EXPECT_EQ(firstRow(), page());
    bench.press(Freccia::paginaSu);
    EXPECT_EQ(firstRow(), 0);
    bench.press(Freccia::fine);
    EXPECT_EQ(firstRow(), ManyStaff - page());
    EXPECT_TRUE(inSight(ManyStaff - 1));
    bench.press(Freccia::inizio);
    EXPECT_EQ(firstRow(), 0);
}

TEST_F(StaffSearchWindowTest, CheckingLeavesTheListWhereItWasScrolled) {
    openMany();
    bench.press(Freccia::paginaGiu);
    const int first = firstRow();
    bench.press(ComandoCollab::selezionaTutti);
    EXPECT_EQ(firstRow(), first);
    EXPECT_EQ(bench.count(), QStringLiteral("5000 spuntati su 5000"));
    bench.clickCheckBox(first + 2);
    EXPECT_EQ(firstRow(), first);
    EXPECT_EQ(bench.count(), QStringLiteral("4999 spuntati su 5000"));
}

TEST_F(StaffSearchWindowTest, ARefilledListStartsAtItsTop) {
    openMany();
    bench.press(Freccia::fine);
    bench.planner.widget<QAction>("coll").trigger();
    EXPECT_EQ(firstRow(), 0);
    EXPECT_EQ(bench.lista().righe(), ManyStaff);
}

TEST_F(StaffSearchWindowTest, TheColumnsFitTheLongestText) {
    bench.planner.base.putCollaboratori(
        {collaboratore("WW", std::string(50, 'W'), std::string(40, 'M')), collaboratore("01", "Rossi")});
    bench.open();
    for (int column = 0; column < 3; ++column) {
        const QString text = bench.list().model()->index(0, column).data().toString();
        EXPECT_GE(bench.list().header()->sectionSize(column),
                  bench.list().fontMetrics().horizontalAdvance(text))
            << column;
    }
}

TEST_F(StaffSearchWindowTest, EqualNamesAreTwoRowsAndEachAnswersWithItsOwnCode) {
    bench.planner.base.putCollaboratori({collaboratore("R1", "Rossi"), collaboratore("R2", "Rossi")});
    bench.open();
    bench.searchFor(QStringLiteral("rossi"));
    bench.key(Qt::Key_F3);
    bench.key(Qt::Key_Return);
    EXPECT_EQ(bench.reply(), "20060315R2C");
}

} // namespace planner::test
