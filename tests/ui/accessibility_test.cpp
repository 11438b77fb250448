// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/text.h"
#include "ui/kit/told_events.h"
#include "window_bench.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>
#include <map>

namespace planner::test {

namespace {

/// What assistive programs are told, as long as it lives.
class Recorder {
public:
    Recorder() : m_before(QAccessible::installUpdateHandler(note)) {
        heard() = {};
        QAccessible::setActive(true);
    }
    ~Recorder() {
        QAccessible::installUpdateHandler(m_before);
        QAccessible::setActive(false);
    }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    std::vector<std::string> focused() const { return heard()[QAccessible::Focus]; }
    std::vector<std::string> shown() const { return heard()[QAccessible::ObjectShow]; }
    int names() const { return static_cast<int>(heard()[QAccessible::NameChanged].size()); }

private:
    using Heard = std::map<int, std::vector<std::string>>;
    static Heard& heard() {
        static Heard all;
        return all;
    }
    static void note(QAccessibleEvent* event) {
        QAccessibleInterface* told = event->accessibleInterface();
        if (told != nullptr && isPerceived(*event)) {
            heard()[event->type()].push_back(told->text(QAccessible::Name).toStdString());
        }
    }

    QAccessible::UpdateHandler m_before;
};

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
    EXPECT_EQ(nameOf(bench.widget("Flxm")), QStringLiteral("Planner mensile"));
    EXPECT_EQ(nameOf(bench.widget("flxg")), QStringLiteral("Planner giornaliero"));
    EXPECT_EQ(nameOf(bench.widget("flxa")), QStringLiteral("Planner annuale"));
}

TEST_F(AccessibilityTest, EveryButtonHasItsCaptionOrToolTipAsName) {
    bench.open("M");
    for (const DescrizionePulsante& button : PulsantiToolbar) {
        auto& toolbar = bench.widget<QToolBar>("Toolbar1");
        auto* action = toolbar.findChild<QAction*>(fromUtf8(button.chiave));
        EXPECT_EQ(nameOf(*toolbar.widgetForAction(action)), fromUtf8(button.didascalia));
    }
    EXPECT_EQ(nameOf(bench.widget("bselm0")), QStringLiteral("Mese precedente"));
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

TEST_F(AccessibilityTest, AKeyTellsOfTheCellAndOfWhatChangesInSight) {
    bench.open("M");
    QApplication::setActiveWindow(&bench.vista);
    bench.view().setFocus();
    bench.key(Qt::Key_Right);
    const Recorder told;
    bench.key(Qt::Key_Right);
    EXPECT_EQ(told.focused(), (std::vector<std::string>{"nessun impegno"})) << "not the calendar";
    EXPECT_LE(told.names(), 1) << "the status line";
}

TEST_F(AccessibilityTest, AMessageIsShownToAssistiveProgramsOnceAndOnlyInAVisibleWindow) {
    bench.open("M");
    const Recorder told;
    bench.vista.annuncia("aprile 2006");
    bench.vista.annuncia("");
    EXPECT_EQ(told.shown(), (std::vector<std::string>{"aprile 2006"}));
    bench.vista.hide();
    bench.vista.annuncia("maggio 2006");
    EXPECT_EQ(told.shown().size(), 1U);
}

TEST_F(AccessibilityTest, WhatGetsTheFocusOfAGridIsItsCell) {
    bench.open("M");
    QApplication::setActiveWindow(&bench.vista);
    bench.widget("Toolbar1").setFocus();
    bench.view().setFocus();
    const QAccessibleEvent event(&bench.view(), QAccessible::Focus);
    ASSERT_NE(focusedItem(event), nullptr);
    EXPECT_EQ(focusedItem(event)->text(QAccessible::Name), QStringLiteral("nessun impegno"));
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
