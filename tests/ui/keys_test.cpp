// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/tasti.h"
#include "ui/kit/text.h"
#include "window_bench.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// Bianchi (row 2), Rossi (row 3), Verdi (row 4) in March 2006, which begins in column 3; in the daily
/// planner they stand one row higher.
struct KeysTest : testing::Test {
    WindowBench bench;

    Casella cursor() { return bench.griglia().corrente(); }
    QString status() { return bench.widget<QLabel>("stato").text(); }
    /// Opens the field of the keys, and writes into it; the field that has the focus.
    QWidget& write(Qt::Key key, const char* text) {
        bench.key(key, Qt::ControlModifier);
        QTest::keyClicks(bench.vista.focusWidget(), QLatin1String(text));
        return *bench.vista.focusWidget();
    }
    bool fieldStands() { return bench.widget("campo").isVisible(); }
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
    bench.click(2, 45);
    bench.key(Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    const QRect cell = bench.view().visualRect(bench.index(2, 45));
    EXPECT_EQ(bench.view().viewport()->mapFromGlobal(menu->pos()), cell.center());
    EXPECT_EQ(menu->activeAction(), menu->actions().constFirst()) << "which a screen reader says";
    menu->close();
}

TEST_F(KeysTest, TheMousesMenuStandsOnNoCommandWhereverTheMouseHasGoneSince) {
    bench.open("G");
    const QPoint pressed = bench.view().viewport()->mapToGlobal(bench.centreOf(2, 45));
    QCursor::setPos(pressed + QPoint(9, 9));
    QContextMenuEvent event(QContextMenuEvent::Mouse, bench.centreOf(2, 45), pressed);
    QCoreApplication::sendEvent(bench.view().viewport(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->activeAction(), nullptr);
    menu->close();
}

TEST_F(KeysTest, KeysAreNamedEverywhereAsInTheGuide) {
    for (const NomeTasto& each : NomiTasti) {
        const QString key = each.tasto == "Shift" ? QStringLiteral("Shift+A") : fromUtf8(each.tasto);
        EXPECT_TRUE(QKeySequence(key).toString(QKeySequence::NativeText).startsWith(fromUtf8(each.nome)))
            << each.tasto;
    }
    bench.open("M");
    EXPECT_EQ(bench.widget<QToolButton>("bselm0").toolTip().toStdString(),
              "Mese precedente (Alt+Freccia sinistra; Ctrl+PagSu)");
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

TEST_F(KeysTest, CtrlFFindsAPersonAndF3TheNext) {
    bench.base.putCollaboratori(std::vector<Collaboratore>(60, collaboratore("ZZ", "D'Amic\xF2 Ugo")));
    bench.base.putRighe(std::vector<RigaPlanner>(80));
    bench.open("M");
    QTest::keyClick(&write(Qt::Key_F, "amico"), Qt::Key_Return);
    EXPECT_FALSE(fieldStands());
    EXPECT_TRUE(bench.view().hasFocus());
    EXPECT_EQ(cursor(), (Casella{3, 17})) << "the row below the first";
    for (int i = 0; i < 30; ++i) {
        bench.key(Qt::Key_F3);
    }
    EXPECT_EQ(cursor(), (Casella{33, 17}));
    EXPECT_EQ(bench.griglia().RigaEvidenziata(), 33);
    EXPECT_TRUE(bench.view().viewport()->rect().contains(bench.centreOf(33, 17)));
    EXPECT_EQ(bench.shownDay(), "20060315");
}

TEST_F(KeysTest, AFieldWithoutSuccessStaysForAnotherText) {
    bench.open("M");
    QWidget& field = write(Qt::Key_F, "Neri");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(fieldStands());
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(status(), QStringLiteral("Nessun nome o codice contiene «Neri»."));
    QTest::keyClicks(&field, QStringLiteral("Verdi"));
    QTest::keyClick(&field, Qt::Key_F3);
    EXPECT_FALSE(fieldStands());
    EXPECT_EQ(bench.base.sessione.collab, "7 ");
}

TEST_F(KeysTest, OneFieldGivesWayToTheOther) {
    bench.open("M");
    write(Qt::Key_F, "Neri");
    const QPointer<QWidget> date = &write(Qt::Key_D, "20");
    EXPECT_TRUE(fieldStands());
    EXPECT_EQ(date->accessibleName(), QStringLiteral("Vai alla data"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(bench.widget("campo").findChildren<QLineEdit*>().size(), 1);
    QTest::keyClick(date, Qt::Key_Return);
    EXPECT_EQ(bench.shownDay(), "20060320");
}

TEST_F(KeysTest, CtrlDGoesToADateAndCtrlTBack) {
    bench.open("M");
    QTest::keyClick(&write(Qt::Key_D, "15/8"), Qt::Key_Return);
    EXPECT_EQ(bench.shownDay(), "20060815");
    EXPECT_TRUE(bench.view().hasFocus());
    bench.key(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(bench.shownDay(), "20060315");
}

TEST_F(KeysTest, EscapeClosesTheFieldAndNotThePlanner) {
    bench.open("M");
    QTest::keyClick(&write(Qt::Key_D, "15"), Qt::Key_Escape);
    EXPECT_FALSE(fieldStands());
    EXPECT_TRUE(bench.vista.isVisible());
    EXPECT_FALSE(bench.base.sessione.FinePlanner);
    EXPECT_TRUE(bench.view().hasFocus());
    EXPECT_EQ(bench.shownDay(), "20060315");
}

TEST_F(KeysTest, AFieldKeepsItsOwnKeys) {
    bench.base.putRighe({riga("RB", "20060331", {{1, "00001"}}), RigaPlanner{}});
    bench.open("M");
    const Casella before = cursor();
    auto& field = dynamic_cast<QLineEdit&>(write(Qt::Key_F, "spin"));
    EXPECT_EQ(field.text(), QStringLiteral("spin"));
    QTest::keyClick(&field, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(field.cursorPosition(), 0);
    QTest::keyClick(&field, Qt::Key_Down);
    QTest::keyClick(&field, Qt::Key_PageDown);
    EXPECT_EQ(cursor(), before);
    EXPECT_EQ(field.accessibleName(), QStringLiteral("Cerca collaboratore"));
}

TEST_F(KeysTest, AFieldThatIsLeftCloses) {
    bench.open("M");
    write(Qt::Key_F, "x");
    bench.widget("calendario").setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(fieldStands());
    write(Qt::Key_D, "1");
    bench.finestra.Form_KeyDown(TastoEscape);
    bench.open("M");
    EXPECT_FALSE(fieldStands()) << "at the next request";
    EXPECT_EQ(bench.vista.focusWidget(), &bench.view());
}

TEST_F(KeysTest, TheFieldMovesNothingAndLeavesTheStatusInSight) {
    bench.open("M");
    const QRect grid = bench.view().geometry();
    write(Qt::Key_D, "1");
    EXPECT_EQ(bench.view().geometry(), grid);
    const QRect field = bench.widget("campo").geometry();
    EXPECT_FALSE(field.intersects(bench.widget("stato").geometry()));
    EXPECT_TRUE(bench.vista.rect().contains(field));
    EXPECT_GE(bench.widget("campoData").width(), bench.widget("campoData").minimumSizeHint().width());
}

TEST_F(KeysTest, CtrlPageKeysMoveTheDayByMonths) {
    bench.openPeriod("G", "20060331", "20060110", "20060510");
    bench.key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(bench.shownDay(), "20060430");
    bench.key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(bench.shownDay(), "20060330");
    for (int i = 0; i < 3; ++i) {
        bench.key(Qt::Key_PageDown, Qt::ControlModifier);
    }
    EXPECT_EQ(bench.shownDay(), "20060430");
    EXPECT_EQ(status(), QStringLiteral("30/05/2006 è fuori del periodo (dal 10/01/2006 al 10/05/2006)."));
}

TEST_F(KeysTest, InTheMonthCtrlPageKeysAreThoseOfItsButtons) {
    bench.open("M");
    bench.key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(bench.shownDay(), "20060415");
    bench.key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(bench.shownDay(), "20060315");
}

TEST_F(KeysTest, CtrlEndStopsAtTheLastRowWithAName) {
    for (const auto& [kind, end] :
         {std::pair{"M", Casella{5, 37}}, std::pair{"G", Casella{4, 96}}, std::pair{"A", Casella{12, 37}}}) {
        bench.open(kind);
        bench.key(Qt::Key_End, Qt::ControlModifier);
        EXPECT_EQ(cursor(), end) << kind;
        bench.key(Qt::Key_Home, Qt::ControlModifier);
        EXPECT_EQ(cursor(), (Casella{bench.griglia().FixedRows(), 1})) << kind;
    }
}

TEST_F(KeysTest, TheFirstArrowOfTheDayStartsAtTheHourInSight) {
    for (int request = 0; request < 2; ++request) { // the window is kept for the second
        bench.open("G");
        EXPECT_EQ(bench.view().firstColumnInSight(), 33) << "8:00";
        bench.key(Qt::Key_Right);
        EXPECT_EQ(cursor(), (Casella{2, 34}));
        bench.click(1, 70);
    }
    bench.key(Qt::Key_Right, Qt::AltModifier);
    bench.key(Qt::Key_Right);
    EXPECT_EQ(cursor().colonna, bench.view().firstColumnInSight() + 1);
}

TEST_F(KeysTest, ARequestThatNamesAPersonOpensWithTheCursorInThatRow) {
    for (const auto& [kind, row] : {std::pair{"M", 3}, std::pair{"G", 2}}) {
        bench.open(kind); // for "RB"
        EXPECT_EQ(cursor().riga, row);
        EXPECT_EQ(bench.view().currentIndex().row(), 1);
        EXPECT_FALSE(bench.griglia().EvidenziazioneAttiva());
        EXPECT_FALSE(bench.finestra.pannello().lblcollabVisibile);
        bench.click(row + 1, 40 % bench.griglia().Cols());
    }
}

TEST_F(KeysTest, TheCalendarIsReachedByTab) {
    bench.open("M");
    bool reached = false;
    for (int tabs = 0; tabs < 30 && !reached; ++tabs) {
        QTest::keyClick(bench.vista.focusWidget(), Qt::Key_Tab);
        reached = bench.widget("calendario").isAncestorOf(bench.vista.focusWidget());
    }
    ASSERT_TRUE(reached);
    QTest::keyClick(bench.vista.focusWidget(), Qt::Key_Right);
    EXPECT_EQ(bench.shownDay(), "20060316");
}

} // namespace planner::test
