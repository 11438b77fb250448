// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfcollab/staff_list_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace planner {

namespace {

struct StaffListModelTest : testing::Test {
    ListaCollaboratori lista;
    StaffListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy changes{&model, &QAbstractItemModel::dataChanged};
    QSignalSpy resets{&model, &QAbstractItemModel::modelReset};
    QSignalSpy requests{&model, &StaffListModel::checkRequested};

    StaffListModelTest() {
        lista.aggiungi("RB", "Rossi Bruno", "Avvocato");
        lista.aggiungi("7 ", "Nicol\xF2 <b>&A</b> %1", "");
        model.setLista(lista);
        model.rowsChanged();
        resets.clear();
    }
    QString text(int row, int column) { return model.index(row, column).data().toString(); }
};

} // namespace

TEST_F(StaffListModelTest, ItShowsCodeNameAndJobTitle) {
    ASSERT_EQ(model.rowCount(), 2);
    ASSERT_EQ(model.columnCount(), 3);
    EXPECT_EQ(text(0, 0), QStringLiteral("RB"));
    EXPECT_EQ(text(0, 1), QStringLiteral("Rossi Bruno"));
    EXPECT_EQ(text(0, 2), QStringLiteral("Avvocato"));
    EXPECT_EQ(text(1, 1), QStringLiteral("Nicolò <b>&A</b> %1"));
    EXPECT_EQ(text(1, 2), QString());
}

TEST_F(StaffListModelTest, TheColumnsBearTheirTitles) {
    const auto title = [&](int column) { return model.headerData(column, Qt::Horizontal, Qt::DisplayRole); };
    EXPECT_EQ(title(0).toString(), QStringLiteral("Codice"));
    EXPECT_EQ(title(1).toString(), QStringLiteral("Collaboratore"));
    EXPECT_EQ(title(2).toString(), QStringLiteral("Mansione"));
    EXPECT_FALSE(title(3).isValid());
    EXPECT_FALSE(title(-1).isValid());
}

TEST_F(StaffListModelTest, TheFirstColumnHasTheCheckBox) {
    lista.spunta(1, true);
    EXPECT_EQ(model.index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(model.index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_FALSE(model.index(1, 1).data(Qt::CheckStateRole).isValid());
    EXPECT_TRUE(model.flags(model.index(0, 0)) & Qt::ItemIsUserCheckable);
    EXPECT_FALSE(model.flags(model.index(0, 1)) & Qt::ItemIsUserCheckable);
}

TEST_F(StaffListModelTest, APressedCheckBoxIsReportedAndNothingElse) {
    EXPECT_TRUE(model.setData(model.index(1, 0), Qt::Checked, Qt::CheckStateRole));
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(requests[0][0].toInt(), 1);
    EXPECT_TRUE(requests[0][1].toBool());
    EXPECT_FALSE(lista.riga(1).spuntata);
    EXPECT_EQ(changes.size(), 0);
}

TEST_F(StaffListModelTest, NothingElseCanBeSet) {
    EXPECT_FALSE(model.setData(model.index(0, 1), Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(model.setData(model.index(0, 0), QStringLiteral("x"), Qt::EditRole));
    EXPECT_FALSE(model.setData({}, Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(requests.size(), 0);
}

TEST_F(StaffListModelTest, ChangedChecksAreAnnouncedOnceAndWithoutAReset) {
    lista.spuntaTutte(true);
    model.checksChanged();
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex(), model.index(0, 0));
    EXPECT_EQ(changes[0][1].toModelIndex(), model.index(1, 0));
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(StaffListModelTest, OtherRowsResetTheModel) {
    lista.tieniSpuntate();
    EXPECT_EQ(model.rowCount(), 2) << "the view has not been told yet";
    EXPECT_FALSE(model.index(0, 0).data().isValid());
    model.rowsChanged();
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(model.rowCount(), 0);
    model.checksChanged();
    EXPECT_EQ(changes.size(), 0);
}

TEST_F(StaffListModelTest, TheFirstCellIsReadAloudAsASentenceAndTheOthersAsTheyAre) {
    lista.spunta(0, true);
    EXPECT_EQ(model.index(0, 0).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Rossi Bruno, RB, Avvocato, spuntato"));
    EXPECT_FALSE(model.index(0, 1).data(Qt::AccessibleTextRole).isValid()) << "its text is enough";
    EXPECT_FALSE(model.index(0, 2).data(Qt::AccessibleTextRole).isValid());
}

TEST_F(StaffListModelTest, TheTitleOfTheNamesIsReadAloudWithTheirOrder) {
    const auto spoken = [&](int column) {
        return model.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(spoken(1), QStringLiteral("Collaboratore"));
    lista.riordina({1, 0}, Ordinamento::crescente);
    EXPECT_EQ(spoken(1), QStringLiteral("Collaboratore, in ordine dalla A alla Z"));
    lista.riordina({1, 0}, Ordinamento::decrescente);
    EXPECT_EQ(spoken(1), QStringLiteral("Collaboratore, in ordine dalla Z alla A"));
    EXPECT_EQ(spoken(0), QStringLiteral("Codice"));
    EXPECT_EQ(spoken(2), QStringLiteral("Mansione"));
}

namespace {

/// Asks a model everything that can be asked about an index and about the headers.
void askEverything(const StaffListModel& model, const QModelIndex& index) {
    for (int role = -1; role <= Qt::UserRole + 1; ++role) {
        EXPECT_NO_THROW(model.data(index, role)) << role;
        for (const int section : {-1, 0, 1, 2, 3, 1000000}) {
            EXPECT_NO_THROW(model.headerData(section, Qt::Horizontal, role)) << section;
            EXPECT_NO_THROW(model.headerData(section, Qt::Vertical, role)) << section;
        }
    }
    EXPECT_NO_THROW(model.flags(index));
    EXPECT_NO_THROW(static_cast<const QAbstractItemModel&>(model).parent(index));
    EXPECT_NO_THROW(model.rowCount(index));
    EXPECT_NO_THROW(model.columnCount(index));
}

} // namespace

TEST(StaffListModelAnswersTest, AnyQuestionAtAnyTime) {
    ListaCollaboratori lista;
    for (int i = 0; i < 3; ++i) {
        lista.aggiungi("RB", "Rossi Bruno", "Avvocato");
    }
    StaffListModel model;
    StaffListModel other;
    askEverything(model, {});
    model.setLista(lista);
    other.setLista(lista);
    model.rowsChanged();
    other.rowsChanged();
    const std::vector<QModelIndex> indexes{{},
                                           model.index(0, 0),
                                           model.index(2, 2),
                                           model.index(3, 0),
                                           model.index(0, 3),
                                           model.index(-1, -1),
                                           other.index(1, 1)};
    for (const bool shrunk : {false, true}) {
        for (const QModelIndex& index : indexes) {
            askEverything(model, index);
        }
        lista.svuota(); // the view has not been told yet
        EXPECT_FALSE(shrunk && model.index(0, 0).data().isValid());
    }
}

TEST_F(StaffListModelTest, AControlCharacterInAnArchiveIsShownAsABlank) {
    lista.aggiungi("\n\0", "Ros\r\nsi\tB", "");
    model.rowsChanged();
    EXPECT_EQ(text(2, 1), QStringLiteral("Ros  si B"));
    EXPECT_EQ(text(2, 0), QStringLiteral(" "));
}

} // namespace planner
