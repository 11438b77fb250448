// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfcollab_fixture.h"

namespace planner::test {
namespace {

/// Fifty rows, of which the list shows ten, from row 20 on.
class StaffArrowsTest : public PlfcollabFixture {
protected:
    StaffArrowsTest() { fillNumbered(50); }

    int pressed(int indice, int from = 20) {
        vista.primaRiga = from;
        form.ButtonFrecce_Click(indice);
        return vista.primaRiga;
    }
};

TEST_F(StaffArrowsTest, TheArrowsAreLinePageAndEndBothWays) {
    EXPECT_EQ(pressed(0), 19);
    EXPECT_EQ(pressed(1), 21);
    EXPECT_EQ(pressed(2), 10);
    EXPECT_EQ(pressed(3), 30);
    EXPECT_EQ(pressed(4), 0);
    EXPECT_EQ(pressed(5), 40);
}

TEST_F(StaffArrowsTest, TheyStopAtTheTop) {
    EXPECT_EQ(pressed(0, 0), 0);
    EXPECT_EQ(pressed(2, 3), 0);
    EXPECT_EQ(pressed(4, 0), 0);
}

TEST_F(StaffArrowsTest, TheyStopWithTheLastRowAtTheBottom) {
    EXPECT_EQ(pressed(1, 40), 40);
    EXPECT_EQ(pressed(3, 33), 40);
    EXPECT_EQ(pressed(5, 40), 40);
}

TEST_F(StaffArrowsTest, AListThatFitsDoesNotScroll) {
    for (const int rows : {0, 1, 10}) {
        fillNumbered(rows);
        for (int indice = 0; indice <= 5; ++indice) {
            EXPECT_EQ(pressed(indice, 0), 0) << rows << " rows, arrow " << indice;
        }
    }
}

TEST_F(StaffArrowsTest, OtherIndexesDoNothing) {
    for (const int indice : {-1, 6, 100}) {
        EXPECT_EQ(pressed(indice), 20) << indice;
    }
}

TEST_F(StaffArrowsTest, ScrollingLeavesSelectionAndChecksAlone) {
    check({4});
    form.List_Prenotazione_ItemClick(7);
    pressed(5);
    EXPECT_EQ(lista.selezionata(), 7);
    EXPECT_EQ(lista.spuntate(), 1);
}

TEST_F(StaffArrowsTest, EveryArrowStandsOnceBesideTheListInTheListsOwnOrder) {
    std::vector<int> indici;
    for (const DescrizioneFreccia& freccia : FrecceCollab) {
        indici.push_back(static_cast<int>(freccia.indice));
    }
    EXPECT_THAT(indici, testing::ElementsAre(4, 2, 0, 1, 3, 5));
}

} // namespace
} // namespace planner::test
