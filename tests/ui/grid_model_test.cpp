// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/layout.h"
#include "ui/plcal/grid_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>
#include <set>

namespace planner {

namespace {

std::function<std::string(Casella)> placeAfter(const std::string& words) {
    return [words](Casella casella) {
        return words + std::to_string(casella.riga) + " " + std::to_string(casella.colonna);
    };
}

struct GridModelTest : testing::Test {
    Griglia griglia{6, 4, 2, Colore::gialloChiaro};
    GridModel model{griglia, {placeAfter("<b>nome "), placeAfter("<b>cella ")}};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy changes{&model, &QAbstractItemModel::dataChanged};
    QSignalSpy resets{&model, &QAbstractItemModel::modelReset};
};

} // namespace

TEST_F(GridModelTest, FixedRowsAndTheFirstColumnAreHeadersNotData) {
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.columnCount(), 3);
    griglia.setCaption(0, 1, Ruolo::casella, "L");
    griglia.setCaption(1, 1, Ruolo::casella, "6");
    griglia.setCaption(2, 0, Ruolo::casella, "Nicol\xF2");
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("L 6"));
    EXPECT_EQ(model.headerData(0, Qt::Vertical, Qt::DisplayRole).toString(), QStringLiteral("Nicolò"));
}

TEST_F(GridModelTest, ACellsTextIsThatOfTheGrid) {
    griglia.setCaption(3, 2, Ruolo::casella, "x");
    EXPECT_EQ(model.index(1, 1).data(Qt::DisplayRole).toString(), QStringLiteral("x"));
}

TEST_F(GridModelTest, TheSentenceIsReadAloudAsItIsAndNoToolTipIsMarkup) {
    const QModelIndex index = model.index(1, 1);
    EXPECT_EQ(index.data(Qt::AccessibleTextRole).toString(), QStringLiteral("<b>nome 3 2"));
    EXPECT_EQ(index.data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("<b>cella 3 2"));
    EXPECT_TRUE(index.data(Qt::ToolTipRole).toString().contains(QStringLiteral("&lt;b&gt;cella 3 2")));
}

TEST_F(GridModelTest, OneChangedCellIsAnnouncedAloneAndOnce) {
    griglia.scegli({3, 2});
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex(), model.index(1, 1));
    EXPECT_EQ(changes[0][1].toModelIndex(), model.index(1, 1));
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(GridModelTest, AFillIsAnnouncedOnceWhenItsLockGoes) {
    {
        const Griglia::LockWindowUpdate lock(griglia);
        griglia.setCaption(2, 1, Ruolo::casella, "a");
        griglia.setCaption(5, 3, Ruolo::casella, "b");
        EXPECT_EQ(changes.size(), 0);
    }
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex(), model.index(0, 0));
    EXPECT_EQ(changes[0][1].toModelIndex(), model.index(3, 2));
}

TEST_F(GridModelTest, ClearingARowCountThatComesBackKeepsTheViewsState) {
    clearRows(griglia);
    EXPECT_EQ(resets.size(), 0);
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(GridModelTest, AnotherNumberOfRowsResetsTheModel) {
    griglia.setRows(9);
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(model.rowCount(), 7);
}

TEST_F(GridModelTest, HeadersAreAnnouncedApartFromData) {
    QSignalSpy headers(&model, &GridModel::headersChanged);
    griglia.setCaption(3, 2, Ruolo::casella, "data");
    EXPECT_EQ(headers.size(), 0);
    griglia.setCaption(3, 0, Ruolo::casella, "name");
    griglia.setCaption(0, 2, Ruolo::casella, "day");
    EXPECT_EQ(headers.size(), 2);
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(GridModelTest, NoTwoCellsShareAPlaceInTheToolkitsTables) {
    for (const int columns : {38, 97, 4}) {
        Griglia large(40, columns, 1, Colore::bianco);
        const GridModel wide(large, {placeAfter({}), placeAfter({})});
        std::set<std::size_t> places;
        for (int row = 0; row < wide.rowCount(); ++row) {
            for (int column = 0; column < wide.columnCount(); ++column) {
                places.insert(qHash(wide.index(row, column)));
            }
        }
        EXPECT_EQ(places.size(), static_cast<std::size_t>(wide.rowCount() * wide.columnCount())) << columns;
    }
}

} // namespace planner
