// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/text.h"
#include "window_bench.h"

#include <QAccessible>
#include <QLabel>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

struct AccessibilityTest : testing::Test {
    WindowBench bench;

    AccessibilityTest() {
        bench.base.putRighe({riga("RB", "20060315", {{1, "00003"}, {8, "00001"}}), RigaPlanner{},
                             RigaPlanner{}, RigaPlanner{}});
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

TEST_F(AccessibilityTest, ADayCellIsOneSentence) {
    bench.open("M");
    const QModelIndex cell = bench.view().model()->index(1, 16);
    EXPECT_EQ(cell.data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Rossi Bruno, mercoledì 15 marzo 2006: scadenze, impegni vari"));
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
