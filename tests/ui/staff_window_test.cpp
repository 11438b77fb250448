// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "staff_bench.h"

#include <QAccessible>
#include <QAction>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

struct StaffWindowTest : testing::Test {
    StaffBench bench;

    static QString nameOf(QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }
    QAccessibleTableInterface& table() {
        return *QAccessible::queryAccessibleInterface(&bench.list())->tableInterface();
    }
    QString spoken(int row, int column) { return table().cellAt(row, column)->text(QAccessible::Name); }
    /// What a screen reader says of a column.
    QString spokenTitle(int column) {
        return bench.list().model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
    }
};

} // namespace

TEST_F(StaffWindowTest, TheCommandOfThePlannerOpensItBesideThePlanner) {
    bench.open();
    EXPECT_TRUE(bench.window().isVisible());
    EXPECT_TRUE(bench.window().isWindow());
    EXPECT_EQ(bench.window().parentWidget(), nullptr);
    EXPECT_FALSE(bench.window().isModal());
    EXPECT_EQ(bench.window().windowTitle(), QStringLiteral("Selezione Collaboratori"));
    EXPECT_TRUE(bench.planner.vista.isVisible());
    EXPECT_TRUE(bench.planner.vista.isEnabled());
}

TEST_F(StaffWindowTest, ItListsTheStaffWithNoneSelectedAndNoneChecked) {
    bench.open();
    EXPECT_EQ(bench.names(), (QStringList{QStringLiteral("Bianchi Rosa"), QStringLiteral("Rossi Bruno"),
                                          QStringLiteral("Verdi Ugo")}));
    EXPECT_EQ(bench.lista().selezionata(), std::nullopt);
    EXPECT_EQ(bench.count(), QStringLiteral("0 spuntati su 3"));
}

TEST_F(StaffWindowTest, AClickSelectsTheRowAndChecksNothing) {
    bench.open();
    bench.click(1, 1);
    EXPECT_EQ(bench.lista().selezionata(), 1);
    EXPECT_EQ(bench.lista().spuntate(), 0);
}

TEST_F(StaffWindowTest, AClickOnTheCheckBoxTogglesIt) {
    bench.open();
    bench.clickCheckBox(1);
    EXPECT_TRUE(bench.lista().riga(1).spuntata);
    EXPECT_EQ(bench.count(), QStringLiteral("1 spuntato su 3"));
    bench.clickCheckBox(1);
    EXPECT_FALSE(bench.lista().riga(1).spuntata);
}

TEST_F(StaffWindowTest, ADoubleClickSelectsAndDoesNothingElse) {
    bench.open();
    bench.doubleClick(2, 1);
    EXPECT_EQ(bench.lista().selezionata(), 2);
    EXPECT_EQ(bench.lista().spuntate(), 0);
    EXPECT_TRUE(bench.window().isVisible());
    EXPECT_EQ(bench.reply(), "");
}

TEST_F(StaffWindowTest, DownSelectsTheFirstRowWhenNoneIsSelected) {
    bench.open();
    bench.key(Qt::Key_Down);
    EXPECT_EQ(bench.lista().selezionata(), 0);
    bench.key(Qt::Key_Down);
    EXPECT_EQ(bench.lista().selezionata(), 1);
}

TEST_F(StaffWindowTest, TheSpaceBarTogglesTheCurrentRowWhateverTheColumn) {
    bench.open();
    for (int column = 0; column < 3; ++column) {
        bench.click(1, column);
        bench.key(Qt::Key_Space);
        EXPECT_TRUE(bench.lista().riga(1).spuntata) << column;
        bench.key(Qt::Key_Space);
        EXPECT_FALSE(bench.lista().riga(1).spuntata) << column;
    }
}

TEST_F(StaffWindowTest, TheSpaceBarWithoutACurrentRowDoesNothing) {
    bench.open();
    bench.key(Qt::Key_Space);
    EXPECT_EQ(bench.lista().spuntate(), 0);
}

TEST_F(StaffWindowTest, LettersGoToTheNameOrTheCodeThatBeginsWithThem) {
    bench.open();
    QTest::keyClicks(&bench.list(), QStringLiteral("ver"));
    EXPECT_EQ(bench.lista().selezionata(), 2);
    bench.list().keyboardSearch({}); // what is typed from here on is another text
    QTest::keyClicks(&bench.list(), QStringLiteral("rb"));
    EXPECT_EQ(bench.lista().selezionata(), 1);
    QTest::keyClicks(&bench.list(), QStringLiteral("zz"));
    EXPECT_EQ(bench.lista().selezionata(), 1);
    EXPECT_EQ(bench.lista().spuntate(), 0);
}

TEST_F(StaffWindowTest, TheSpaceBarEndsTheNameThatIsTyped) {
    bench.open();
    QTest::keyClicks(&bench.list(), QStringLiteral("ver"));
    bench.key(Qt::Key_Space);
    EXPECT_EQ(bench.lista().selezionata(), 2);
    QTest::keyClicks(&bench.list(), QStringLiteral("rb"));
    bench.key(Qt::Key_Space);
    EXPECT_TRUE(bench.lista().riga(2).spuntata);
    EXPECT_TRUE(bench.lista().riga(1).spuntata);
}

TEST_F(StaffWindowTest, EnterConfirmsTheSelectedRow) {
    bench.open();
    bench.click(1, 1);
    bench.key(Qt::Key_Return);
    EXPECT_EQ(bench.reply(), "20060315RBC");
    EXPECT_FALSE(bench.window().isVisible());
    EXPECT_TRUE(bench.session().FinePlanner);
}

TEST_F(StaffWindowTest, EnterWithoutASelectedRowAsksForOne) {
    bench.open();
    bench.key(Qt::Key_Enter);
    EXPECT_EQ(bench.lastMessage(), std::string(TestoScegliere));
    EXPECT_EQ(bench.reply(), "");
    EXPECT_TRUE(bench.window().isVisible());
}

TEST_F(StaffWindowTest, EnterOnAButtonPressesThatButton) {
    bench.open();
    bench.click(1, 1);
    bench.button(ComandoCollab::selezionaTutti).setFocus();
    QTest::keyClick(&bench.button(ComandoCollab::selezionaTutti), Qt::Key_Return);
    EXPECT_EQ(bench.lista().spuntate(), 3);
    EXPECT_EQ(bench.reply(), "");
}

TEST_F(StaffWindowTest, AKeyThatIsHeldDownNeitherClosesNorConfirms) {
    bench.open();
    bench.click(1, 1);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
        for (QWidget* target : std::initializer_list<QWidget*>{
                 &bench.window(), &bench.list(), &bench.button(ComandoCollab::selezionaTutti)}) {
            bench.holdDown(*target, key);
        }
    }
    EXPECT_TRUE(bench.window().isVisible());
    EXPECT_EQ(bench.reply(), "");
    EXPECT_EQ(bench.lista().spuntate(), 0);
    EXPECT_EQ(bench.lastMessage(), "");
    bench.key(Qt::Key_Escape);
    EXPECT_FALSE(bench.window().isVisible());
}

TEST_F(StaffWindowTest, AHeldArrowMovesOn) {
    bench.open();
    bench.key(Qt::Key_Down);
    bench.holdDown(bench.list(), Qt::Key_Down);
    EXPECT_EQ(bench.lista().selezionata(), 1);
}

TEST_F(StaffWindowTest, AKeyThatIsHeldDownDoesNotAnswerTheSearchsQuestion) {
    bench.open();
    bench.search([&](QDialog& dialog) {
        auto* field = dialog.findChild<QLineEdit*>();
        field->setText(QStringLiteral("Verdi"));
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
            bench.holdDown(*field, key);
            EXPECT_TRUE(dialog.isVisible()) << key;
        }
        QTest::keyClick(field, Qt::Key_Return);
    });
    EXPECT_EQ(bench.lista().selezionata(), 2);
}

TEST_F(StaffWindowTest, TheHeaderShowsTheDirectionOfTheSort) {
    bench.open();
    const QHeaderView& header = *bench.list().header();
    EXPECT_FALSE(header.isSortIndicatorShown());
    bench.press(ComandoCollab::ordina);
    EXPECT_TRUE(header.isSortIndicatorShown());
    EXPECT_EQ(header.sortIndicatorSection(), 1);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(spokenTitle(1), QStringLiteral("Collaboratore, in ordine dalla A alla Z"));
    bench.press(ComandoCollab::ordina);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(spokenTitle(1), QStringLiteral("Collaboratore, in ordine dalla Z alla A"));
    bench.planner.widget<QAction>("coll").trigger(); // fills the list anew
    EXPECT_FALSE(header.isSortIndicatorShown());
    EXPECT_EQ(spokenTitle(1), QStringLiteral("Collaboratore"));
}

TEST_F(StaffWindowTest, AScreenReaderHearsTheSentenceOfARowOnce) {
    bench.open();
    EXPECT_EQ(spoken(0, 0), QStringLiteral("Bianchi Rosa, BI, Avvocato, non spuntato"));
    EXPECT_EQ(spoken(0, 1), QStringLiteral("Bianchi Rosa"));
    EXPECT_EQ(spoken(0, 2), QStringLiteral("Avvocato"));
    bench.clickCheckBox(0);
    EXPECT_EQ(spoken(0, 0), QStringLiteral("Bianchi Rosa, BI, Avvocato, spuntato"));
}

TEST_F(StaffWindowTest, EscapeAndTheCloseBoxCloseWithoutAnAnswer) {
    bench.open();
    bench.click(1, 1);
    bench.key(Qt::Key_Escape);
    EXPECT_FALSE(bench.window().isVisible());
    bench.open();
    bench.window().close();
    EXPECT_FALSE(bench.window().isVisible());
    EXPECT_EQ(bench.reply(), "");
    EXPECT_FALSE(bench.session().FinePlanner);
    EXPECT_TRUE(bench.planner.vista.isVisible());
}

TEST_F(StaffWindowTest, TheButtonsDoWhatTheySay) {
    bench.open();
    bench.press(ComandoCollab::selezionaTutti);
    EXPECT_EQ(bench.count(), QStringLiteral("3 spuntati su 3"));
    bench.press(ComandoCollab::deselezionaTutti);
    EXPECT_EQ(bench.count(), QStringLiteral("0 spuntati su 3"));
    bench.clickCheckBox(2);
    bench.press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(bench.names(), QStringList{QStringLiteral("Verdi Ugo")});
    bench.press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(bench.count(), QStringLiteral("1 spuntato su 1, 2 tolti dall'elenco"));
}

TEST_F(StaffWindowTest, ShortcutsCheckAndClearAll) {
    bench.open();
    bench.key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(bench.lista().spuntate(), 3);
    bench.key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bench.lista().spuntate(), 0);
}

TEST_F(StaffWindowTest, SortingKeepsTheSelectedStaffMemberSelectedOnTheScreenToo) {
    bench.open();
    bench.click(1, 1);
    bench.press(ComandoCollab::ordina);
    bench.press(ComandoCollab::ordina);
    EXPECT_EQ(bench.names().first(), QStringLiteral("Verdi Ugo"));
    ASSERT_EQ(bench.list().selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(bench.list().currentIndex().row(), 1);
    bench.press(ComandoCollab::conferma);
    EXPECT_EQ(bench.reply(), "20060315RBC");
}

TEST_F(StaffWindowTest, SortingIsItalian) {
    bench.planner.base.putCollaboratori({collaboratore("01", "Zeta"), collaboratore("02", "\xC0lvaro"),
                                         collaboratore("03", "D'Angelo"), collaboratore("04", "alfieri")});
    bench.open();
    bench.press(ComandoCollab::ordina);
    EXPECT_EQ(bench.names(), (QStringList{QStringLiteral("alfieri"), QStringLiteral("Àlvaro"),
                                          QStringLiteral("D'Angelo"), QStringLiteral("Zeta")}));
}

TEST_F(StaffWindowTest, EveryControlHasAnItalianNameAndToolTip) {
    bench.open();
    for (const DescrizioneComandoCollab& described : ComandiCollab) {
        EXPECT_EQ(nameOf(bench.button(described.posizione)), fromUtf8(described.didascalia));
        EXPECT_TRUE(bench.button(described.posizione).toolTip().startsWith(fromUtf8(described.didascalia)));
    }
    for (const DescrizioneFreccia& described : FrecceCollab) {
        EXPECT_EQ(nameOf(bench.arrow(described.indice)), fromUtf8(described.nome));
        EXPECT_EQ(bench.arrow(described.indice).toolTip(), fromUtf8(described.nome));
        EXPECT_FALSE(bench.arrow(described.indice).icon().isNull());
    }
    for (QWidget* widget : bench.window().findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy()) {
            EXPECT_FALSE(nameOf(*widget).isEmpty()) << widget->metaObject()->className();
        }
    }
}

TEST_F(StaffWindowTest, AnEmptyCheckBoxIsSeenOnADarkDesktop) {
    bench.open();
    bench.list().setPalette(QPalette(QColor(49, 54, 59), QColor(35, 38, 41)));
    const QImage list = bench.list().viewport()->grab().toImage();
    const QPoint corner = bench.checkBox(1).topLeft();
    EXPECT_GT(list.pixelColor(corner).lightness(), list.pixelColor(corner - QPoint(2, 0)).lightness() + 60);
}

TEST_F(StaffWindowTest, EndingTheSessionClosesIt) {
    bench.open();
    bench.planner.finestra.hide();
    EXPECT_FALSE(bench.window().isVisible());
}

TEST_F(StaffWindowTest, ItStaysOpenWhileThePlannerIsUsed) {
    bench.open();
    bench.planner.click(2, 3);
    EXPECT_TRUE(bench.window().isVisible());
    EXPECT_EQ(bench.session().collab, "BI");
}

} // namespace planner::test
