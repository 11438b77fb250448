// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// Bianchi (row 2), Rossi (row 3), Verdi (row 4) in March 2006, which begins in column 3; in the daily
/// planner they stand one row higher.
struct KeysTest : testing::Test {
    WindowBench bench;

    Casella cursor() { return bench.griglia().corrente(); }
};

class DetailKey : public KeysTest, public testing::WithParamInterface<const char*> {};

} // namespace

TEST_F(KeysTest, CtrlIAndCtrlEAnswerAsTheButtonsDo) {
    bench.open("M");
    bench.key(Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(bench.reply(), "20060315  A");
    bench.key(Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(bench.reply(), "20060315  F");
}

TEST_P(DetailKey, CtrlMSwitchesTheDetailsThereAndBack) {
    bench.open(GetParam());
    bench.key(Qt::Key_M, Qt::ControlModifier);
    EXPECT_FALSE(bench.base.controlli.Toolbar1.dettagliato());
    bench.key(Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(bench.base.controlli.Toolbar1.dettagliato());
}

INSTANTIATE_TEST_SUITE_P(Kinds, DetailKey, testing::Values("M", "G"));

TEST_F(KeysTest, CtrlMDoesNothingInTheYear) {
    bench.open("A");
    bench.key(Qt::Key_M, Qt::ControlModifier);
    EXPECT_FALSE(bench.base.controlli.Toolbar1.dettagliato());
    EXPECT_FALSE(bench.base.controlli.Toolbar1.enabled(Pulsante::dettsi));
}

TEST_F(KeysTest, ShiftF10OpensTheMenuAtTheCurrentCell) {
    bench.open("G");
    bench.click(2, 60);
    bench.key(Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    const QRect cell = bench.view().visualRect(bench.index(2, 60));
    EXPECT_EQ(bench.view().viewport()->mapFromGlobal(menu->pos()), cell.center());
    menu->close();
}

TEST_F(KeysTest, LettersAndCtrlArrowsJumpInTheGrid) {
    bench.base.putRighe({riga("BI", "20060301", {{1, "00001"}}), riga("BI", "20060331", {{6, "00002"}}),
                         riga("7 ", "20060331", {{1, "00001"}}), RigaPlanner{}});
    bench.open("M");
    bench.click(2, 3);
    bench.key(Qt::Key_P);
    EXPECT_EQ(cursor(), (Casella{2, 33}));
    EXPECT_EQ(bench.shownDay(), "20060331");
    bench.key(Qt::Key_S, Qt::ShiftModifier);
    EXPECT_EQ(cursor(), (Casella{2, 3}));
    bench.key(Qt::Key_Right, Qt::ControlModifier);
    bench.key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(cursor(), (Casella{4, 33}));
    EXPECT_EQ(bench.view().currentIndex(), bench.index(4, 33));
}

TEST_F(KeysTest, AJumpScrollsItsCellIntoSight) {
    bench.base.putRighe(
        {conOrario(riga("RB", "20060315", {{1, "00001"}}), "23", "00", "0000030"), RigaPlanner{}});
    bench.open("G");
    bench.key(Qt::Key_S);
    EXPECT_EQ(cursor(), (Casella{2, 93}));
    EXPECT_TRUE(bench.view().viewport()->rect().contains(bench.view().visualRect(bench.index(2, 93))));
}

TEST_F(KeysTest, BesideTheGridTheLettersDoNothing) {
    bench.base.putRighe({riga("BI", "20060331", {{1, "00001"}}), RigaPlanner{}});
    bench.open("M");
    const Casella before = cursor();
    for (const char* beside : {"calendario", "Toolbar1"}) {
        QTest::keyClick(&bench.widget(beside), Qt::Key_S);
    }
    EXPECT_EQ(cursor(), before);
}

} // namespace planner::test
