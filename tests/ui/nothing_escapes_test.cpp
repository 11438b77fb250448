// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "modal_dialog.h"
#include "ui/kit/guarded_application.h"
#include "ui/plcal/grid_model.h"
#include "window_bench.h"

#include <QAccessible>
#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>
#include <set>

namespace planner::test {

namespace {

/// Reads everything that an assistive program can ask of an object and of all below it; returns how many.
int walk(QAccessibleInterface* object) {
    if (object == nullptr || !object->isValid()) {
        return 0;
    }
    for (int kind = QAccessible::Name; kind <= QAccessible::Accelerator; ++kind) {
        object->text(static_cast<QAccessible::Text>(kind));
    }
    object->state();
    object->role();
    object->rect();
    int count = 1;
    for (int child = 0; child < object->childCount(); ++child) {
        count += walk(object->child(child));
    }
    return count;
}

void askForEverything(const QAbstractItemModel& model) {
    constexpr int roles = 300;
    for (int row = -1; row <= model.rowCount(); ++row) {
        for (int column = -1; column <= model.columnCount(); ++column) {
            for (const int role : std::initializer_list<int>{
                     Qt::DisplayRole, Qt::DecorationRole, Qt::ToolTipRole, Qt::StatusTipRole,
                     Qt::ForegroundRole, Qt::BackgroundRole, Qt::AccessibleTextRole,
                     Qt::AccessibleDescriptionRole, Qt::SizeHintRole, Qt::UserRole, -1, roles}) {
                model.data(model.index(row, column), role);
                model.headerData(row, Qt::Vertical, role);
                model.headerData(column, Qt::Horizontal, role);
            }
        }
    }
    for (int role = -1; role < roles; ++role) {
        model.data(model.index(0, 0), role);
    }
}

struct NothingEscapesTest : testing::Test {
    WindowBench bench;

    NothingEscapesTest() {
        bench.base.putRighe(
            {riga("RB", "20060315", {{1, "00002"}}), RigaPlanner{}, RigaPlanner{}, RigaPlanner{}});
        bench.base.putAnnuale(annoPlanner("2006", {{3, 17}, {12, 42}}));
        bench.base.putGrafici({rigaGrafico("RB", "20060315", "0007:30")});
    }
    void walkModels() {
        for (const auto* grid : bench.vista.findChildren<GridView*>()) {
            askForEverything(*grid->model());
        }
    }
};

/// A receiver whose handler fails.
struct Failing : QObject {
    bool event(QEvent*) override { throw std::logic_error("fuori posto"); }
};

} // namespace

TEST_F(NothingEscapesTest, EveryIndexAndRoleOfEveryGridInEachKindAnswers) {
    for (const char* kind : {"M", "G", "A", "X"}) {
        bench.open(kind);
        walkModels();
    }
}

TEST_F(NothingEscapesTest, EveryObjectOfThePlannerWindowCanBeReadInEachKind) {
    int grids = 0;
    for (const char* kind : {"M", "G", "A", "X"}) {
        bench.open(kind);
        EXPECT_GT(walk(QAccessible::queryAccessibleInterface(&bench.vista)), 500) << kind;
        grids += static_cast<int>(bench.vista.findChildren<GridView*>().size());
    }
    EXPECT_EQ(grids, 1 + 2 + 3 + 3);
}

TEST_F(NothingEscapesTest, EveryObjectOfTheOtherWindowsCanBeRead) {
    bench.open("M");
    bench.finestra.griglia_Gesto({{3, 17}});
    bench.finestra.Toolbar1_ButtonClick("coll");
    EXPECT_GT(walk(QAccessible::queryAccessibleInterface(&bench.finestre.vistaCollab())), 20);
    bench.finestre.collaboratori.unload();
    for (const char* command : {"grafici", "insimp", "info"}) {
        int objects = 0;
        whileModal([&] { bench.finestra.Toolbar1_ButtonClick(command); },
                   [&](QDialog& dialog) {
                       objects = walk(QAccessible::queryAccessibleInterface(&dialog));
                       dialog.close();
                   });
        EXPECT_GT(objects, 3) << command;
    }
}

TEST_F(NothingEscapesTest, AnOfficeOf500CanBeReadWhole) {
    std::vector<Collaboratore> staff;
    for (int i = 0; i < 500; ++i) {
        staff.push_back(
            collaboratore(std::string{static_cast<char>('A' + i / 26), static_cast<char>('A' + i % 26)},
                          "Nome " + std::to_string(i)));
    }
    bench.base.putCollaboratori(staff);
    bench.open("M");
    const int cells = (500 + RigheInPiu) * ColonneGiorni;
    EXPECT_GT(walk(QAccessible::queryAccessibleInterface(&bench.view())), cells);
    bench.finestra.Toolbar1_ButtonClick("coll");
    EXPECT_GT(walk(QAccessible::queryAccessibleInterface(&bench.finestre.vistaCollab())), 1500);
}

TEST_F(NothingEscapesTest, AModelWhoseSentenceThrowsAnswersNothing) {
    Griglia griglia(5, 4, 2, Colore::bianco);
    const auto broken = [](Casella) -> std::string { throw std::runtime_error("rotto"); };
    const GridModel model(griglia, {broken, broken});
    EXPECT_FALSE(model.data(model.index(0, 0), Qt::AccessibleTextRole).isValid());
    EXPECT_FALSE(model.data(model.index(0, 0), Qt::ToolTipRole).isValid());
    EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::AccessibleTextRole).isValid());
}

TEST_F(NothingEscapesTest, AModelThatKnowsMoreRowsThanTheGridAnswersNothing) {
    Griglia griglia(9, 4, 2, Colore::bianco);
    const auto known = [](Casella) { return std::string("x"); };
    const GridModel model(griglia, {known, known});
    const QModelIndex last = model.index(6, 0);
    const Griglia::LockWindowUpdate lock(griglia); // the model has not been told yet
    griglia.setRows(3);
    EXPECT_FALSE(model.data(last, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.headerData(6, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(NothingEscapesTest, AHandlerThatThrowsIsSaidOnceAndThePlannerGoesOn) {
    auto& application = *qobject_cast<GuardedApplication*>(QCoreApplication::instance());
    application.setMessages(&bench.base.messaggi);
    Failing receiver;
    for (int i = 0; i < 3; ++i) {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&receiver, &event);
    }
    QCoreApplication::processEvents();
    application.setMessages(nullptr);
    ASSERT_EQ(bench.base.messaggi.shown.size(), 1U);
    EXPECT_EQ(bench.base.messaggi.shown[0].text, "Errore imprevisto: fuori posto.");
    bench.open("M");
    bench.click(3, 18);
    EXPECT_EQ(bench.shownDay(), "20060316");
}

TEST_F(NothingEscapesTest, ACommandThatThrowsWhatNobodyForesawIsSaidAndThePlannerGoesOn) {
    bench.open("M");
    bench.base.files.beforeOpening = [] { throw std::logic_error("disco strano"); };
    bench.key(Qt::Key_Right, Qt::AltModifier);
    bench.base.files.beforeOpening = {};
    ASSERT_EQ(bench.base.messaggi.shown.size(), 1U);
    EXPECT_EQ(bench.base.messaggi.shown[0].text, "Errore imprevisto: disco strano.");
    QTest::keyClick(&bench.view(), Qt::Key_Escape);
    EXPECT_TRUE(bench.base.sessione.FinePlanner);
}

} // namespace planner::test
