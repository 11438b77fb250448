// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/text.h"
#include "ui/kit/told_events.h"
#include "window_bench.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QHelpEvent>
#include <QLineEdit>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

struct AccessibilityTest : testing::Test {
    WindowBench bench;

    AccessibilityTest() {
        bench.base.putRighe({riga("RB", "20060315", {{1, "00003"}, {8, "00001"}}), RigaPlanner{},
                             RigaPlanner{}, RigaPlanner{}});
    }
    QAccessibleTableInterface& table() {
        return *QAccessible::queryAccessibleInterface(&bench.view())->tableInterface();
    }
    std::string said(int row, int column, QAccessible::Text what) {
        return table().cellAt(row, column)->text(what).toStdString();
    }
    static QString nameOf(QObject& object) {
        return QAccessible::queryAccessibleInterface(&object)->text(QAccessible::Name);
    }
};

} // namespace

TEST_F(AccessibilityTest, TheGridsHaveTheirNames) {
    const std::vector<std::pair<const char*, QString>> kinds{{"M", QStringLiteral("Planner mensile")},
                                                             {"G", QStringLiteral("Planner giornaliero")},
                                                             {"A", QStringLiteral("Planner annuale")}};
    for (const auto& [kind, name] : kinds) {
        bench.open(kind);
        EXPECT_EQ(nameOf(bench.view()), name);
    }
}

TEST_F(AccessibilityTest, EveryButtonHasItsCaptionOrToolTipAsName) {
    bench.open("M");
    for (const DescrizionePulsante& button : PulsantiToolbar) {
        auto& toolbar = bench.widget<QToolBar>("Toolbar1");
        auto* action = toolbar.findChild<QAction*>(fromUtf8(button.chiave));
        EXPECT_EQ(nameOf(*toolbar.widgetForAction(action)), fromUtf8(button.didascalia));
    }
    EXPECT_EQ(nameOf(bench.widget("bselm0")), QStringLiteral("Mese precedente"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bench.widget("bselm0"))->text(QAccessible::Description),
              QKeySequence::listToString(QKeySequence::listFromString(QStringLiteral("Alt+Left; Ctrl+PgUp")),
                                         QKeySequence::NativeText))
        << "its keys, and not its name once more";
    EXPECT_EQ(nameOf(bench.widget("bselm3")), QStringLiteral("Anno successivo"));
}

TEST_F(AccessibilityTest, ATotalIsItsCaptionAndNumber) {
    bench.open("M");
    EXPECT_EQ(nameOf(bench.widget("Lblscad")), QStringLiteral("Scadenze: 0"));
    bench.click(3, 17);
    EXPECT_EQ(nameOf(bench.widget("Lblscad")), QStringLiteral("Scadenze: 3"));
    EXPECT_EQ(nameOf(bench.widget("lblpra")), QStringLiteral("Pratiche: 0"));
    EXPECT_EQ(nameOf(bench.widget("lblpers")), QStringLiteral("Impegni vari: 1"));
}

TEST_F(AccessibilityTest, ACellIsCalledWhatItHoldsAndDescribedByOneSentence) {
    bench.open("M");
    EXPECT_EQ(said(1, 16, QAccessible::Name), "scadenze, impegni vari");
    EXPECT_EQ(said(1, 16, QAccessible::Description),
              "Rossi Bruno, mercoledì 15 marzo 2006: 3 scadenze, 1 impegno vario");
    EXPECT_EQ(said(1, 17, QAccessible::Name), "nessun impegno");
    EXPECT_EQ(said(1, 17, QAccessible::Description), "Rossi Bruno, giovedì 16 marzo 2006");
}

TEST_F(AccessibilityTest, TheHeadersOfACellAreItsPersonAndItsWholeDate) {
    bench.open("M", "20061215");
    QAccessibleTableCellInterface* cell = table().cellAt(1, 11)->tableCellInterface();
    ASSERT_EQ(cell->rowHeaderCells().size(), 1);
    ASSERT_EQ(cell->columnHeaderCells().size(), 1);
    EXPECT_EQ(cell->rowHeaderCells()[0]->text(QAccessible::Name), QStringLiteral("Rossi Bruno"));
    EXPECT_EQ(cell->columnHeaderCells()[0]->text(QAccessible::Name),
              QStringLiteral("venerdì 8 dicembre 2006, Immacolata Concezione"));
    EXPECT_EQ(table().rowDescription(1), QStringLiteral("Rossi Bruno"));
    EXPECT_EQ(table().columnDescription(4), QStringLiteral("venerdì 1 dicembre 2006"));
}

TEST_F(AccessibilityTest, ItemsAreWhereTheGridShowsThemAndTheOneUnderTheCursorHasTheFocus) {
    bench.open("M");
    QApplication::setActiveWindow(&bench.vista);
    bench.view().setFocus();
    QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(&bench.view());
    const QModelIndex current = bench.view().currentIndex();
    QAccessibleInterface* cell = grid->tableInterface()->cellAt(current.row(), current.column());
    EXPECT_EQ(grid->focusChild(), cell);
    EXPECT_TRUE(cell->state().focused);
    EXPECT_FALSE(grid->tableInterface()->cellAt(current.row(), current.column() + 1)->state().focused);
    EXPECT_EQ(grid->child(grid->indexOfChild(cell)), cell);
    const QPoint centre = cell->rect().center();
    EXPECT_EQ(grid->childAt(centre.x(), centre.y()), cell);
    EXPECT_FALSE(cell->state().offscreen);
    QAccessibleInterface* last = grid->tableInterface()->cellAt(grid->tableInterface()->rowCount() - 1, 0);
    EXPECT_TRUE(last->state().offscreen);
}

TEST_F(AccessibilityTest, AMessageStandsInAStatusBarOfNoWindowAndOnlyOfOneThatShows) {
    bench.open("M");
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(&bench.widget("annuncio"));
    EXPECT_EQ(bar->childCount(), 0);
    bench.vista.annuncia("aprile 2006");
    ASSERT_EQ(bar->childCount(), 1);
    EXPECT_EQ(bar->child(0)->text(QAccessible::Name), QStringLiteral("aprile 2006"));
    EXPECT_EQ(bar->child(0)->role(), QAccessible::Notification);
    EXPECT_EQ(bar->role(), QAccessible::StatusBar);
    EXPECT_EQ(bar->parent(), QAccessible::queryAccessibleInterface(qApp));
    bench.vista.hide();
    bench.vista.annuncia("maggio 2006");
    EXPECT_EQ(bar->child(0)->text(QAccessible::Name), QStringLiteral("aprile 2006"));
}

TEST_F(AccessibilityTest, ANewPeriodIsSaidOnceByTheCellWithTheFocusOrElseByItself) {
    bench.open("M");
    const QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(&bench.widget("annuncio"));
    const auto cell = [&] { return bench.view().currentIndex().data(Qt::AccessibleTextRole).toString(); };
    QApplication::setActiveWindow(&bench.vista);
    bench.view().setFocus();
    EXPECT_FALSE(cell().startsWith(QStringLiteral("marzo 2006")));
    bench.key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(cell().startsWith(QStringLiteral("aprile 2006, "))) << cell().toStdString();
    EXPECT_EQ(bar->childCount(), 0);
    bench.key(Qt::Key_Right);
    EXPECT_FALSE(cell().startsWith(QStringLiteral("aprile"))) << "it is known now";
    bench.key(Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(cell().startsWith(QStringLiteral("planner non dettagliato, "))) << cell().toStdString();
    bench.widget<QToolButton>("bselm1").setFocus();
    EXPECT_FALSE(cell().startsWith(QStringLiteral("planner"))) << "when the focus comes back";
    bench.widget<QToolButton>("bselm1").click();
    ASSERT_EQ(bar->childCount(), 1);
    EXPECT_EQ(bar->child(0)->text(QAccessible::Name), QStringLiteral("maggio 2006"));
}

TEST_F(AccessibilityTest, AMessageBehindADialogWaitsUntilTheWindowIsBack) {
    bench.open("M");
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(&bench.widget("annuncio"));
    QDialog dialog(&bench.vista);
    QApplication::setActiveWindow(&dialog);
    bench.vista.annuncia("Il planner è stato stampato.");
    EXPECT_EQ(bar->childCount(), 0);
    QApplication::setActiveWindow(&bench.vista);
    EXPECT_EQ(bar->childCount(), 0) << "the focus is said first";
    QCoreApplication::processEvents();
    ASSERT_EQ(bar->childCount(), 1);
    EXPECT_EQ(bar->child(0)->text(QAccessible::Name), QStringLiteral("Il planner è stato stampato."));
}

TEST_F(AccessibilityTest, WhatBefallsAFieldWithoutTheFocusIsNotPerceived) {
    bench.open("M");
    QApplication::setActiveWindow(&bench.vista);
    QLineEdit field(&bench.vista);
    field.show();
    QAccessibleTextSelectionEvent selection(&field, 0, 1);
    EXPECT_FALSE(isPerceived(selection));
    field.setFocus();
    EXPECT_TRUE(isPerceived(selection));
}

TEST_F(AccessibilityTest, WhatGetsTheFocusOfAGridIsItsCell) {
    bench.open("M");
    QApplication::setActiveWindow(&bench.vista);
    bench.widget("Toolbar1").setFocus();
    bench.view().setFocus();
    const QAccessibleEvent event(&bench.view(), QAccessible::Focus);
    ASSERT_NE(focusedItem(event), nullptr);
    const QModelIndex current = bench.view().currentIndex();
    EXPECT_EQ(focusedItem(event), table().cellAt(current.row(), current.column()));
}

TEST_F(AccessibilityTest, WhatDoesNotShowOrHasNotTheFocusIsNotTold) {
    bench.open("G");
    bench.open("M");
    QApplication::setActiveWindow(&bench.vista);
    bench.view().setFocus();
    QWidget& hidden = bench.widget("flxg");
    EXPECT_FALSE(isPerceived(QAccessibleEvent(&hidden, QAccessible::NameChanged)));
    EXPECT_FALSE(isPerceived(QAccessibleEvent(&hidden, QAccessible::Focus)));
    EXPECT_TRUE(isPerceived(QAccessibleEvent(&bench.widget("stato"), QAccessible::NameChanged)));
    EXPECT_TRUE(isPerceived(QAccessibleEvent(&bench.view(), QAccessible::Focus)));
    auto* days = bench.widget("calendario").findChild<QTableView*>();
    EXPECT_FALSE(isPerceived(QAccessibleEvent(days, QAccessible::Focus))) << "the calendar's";
}

TEST_F(AccessibilityTest, TheCornerSaysTheWholeDayInItsTipToo) {
    bench.open("G", "20060425");
    auto& corner = *bench.widget("bselg1").parentWidget();
    EXPECT_EQ(nameOf(corner), QStringLiteral("martedì 25 aprile 2006, Festa della Liberazione"));
    QHelpEvent help(QEvent::ToolTip, QPoint(corner.width() / 2, 2), corner.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&corner, &help);
    EXPECT_EQ(QToolTip::text(), plainToolTip(nameOf(corner)));
    bench.open("M");
    EXPECT_EQ(nameOf(*bench.widget("bselm1").parentWidget()), QStringLiteral("marzo 2006"));
}

TEST_F(AccessibilityTest, AFrameAroundAFieldIsNoWindow) {
    bench.open("M");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bench.widget("campo"))->role(), QAccessible::Grouping);
}

TEST_F(AccessibilityTest, EverythingThatTakesTheFocusHasAName) {
    for (const char* kind : {"M", "G", "A"}) {
        bench.open(kind);
        for (QWidget* widget : bench.vista.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy()) {
                EXPECT_FALSE(nameOf(*widget).isEmpty()) << kind << " " << widget->metaObject()->className()
                                                        << " " << widget->objectName().toStdString();
            }
        }
    }
}

TEST_F(AccessibilityTest, AScreenReadersMoveSelectsAsTheKeyboardDoes) {
    bench.open("M");
    bench.view().setCurrentIndex(bench.view().model()->index(1, 4));
    EXPECT_EQ(bench.base.sessione.collab, "RB");
    EXPECT_EQ(bench.shownDay(), "20060303");
}

} // namespace planner::test
