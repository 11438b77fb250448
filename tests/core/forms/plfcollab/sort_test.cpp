// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfcollab_fixture.h"

namespace planner::test {
namespace {

using testing::Contains;

class StaffSortTest : public PlfcollabFixture {
protected:
    void sort() { press(ComandoCollab::ordina); }
};

TEST_F(StaffSortTest, TheFirstUseSortsByNameAscending) {
    sort();
    EXPECT_EQ(rows(), "BI NC RB 7  ");
    EXPECT_EQ(lista.ordinamento(), Ordinamento::crescente);
    EXPECT_THAT(journal, Contains("staff rows"));
}

TEST_F(StaffSortTest, TheSecondUseReversesAndTheThirdIsAscendingAgain) {
    sort();
    sort();
    EXPECT_EQ(rows(), "7  RB NC BI ");
    EXPECT_EQ(lista.ordinamento(), Ordinamento::decrescente);
    sort();
    EXPECT_EQ(rows(), "BI NC RB 7  ");
    EXPECT_EQ(lista.ordinamento(), Ordinamento::crescente);
}

TEST_F(StaffSortTest, SortingGoesByNameNotByCode) {
    fill({{"AA", "Zeta"}, {"ZZ", "Alfa"}});
    sort();
    EXPECT_EQ(rows(), "ZZ AA ");
}

TEST_F(StaffSortTest, EqualNamesKeepTheirOrderBothWays) {
    fill({{"01", "Rossi"}, {"02", "Bianchi"}, {"03", "Rossi"}, {"04", "Rossi"}});
    sort();
    EXPECT_EQ(rows(), "02 01 03 04 ");
    sort();
    EXPECT_EQ(rows(), "01 03 04 02 ");
}

TEST_F(StaffSortTest, ManyEqualNamesKeepTheirOrderToo) {
    std::vector<std::pair<std::string, std::string>> staff;
    for (int i = 10; i < 100; ++i) {
        staff.emplace_back(std::to_string(i), i % 2 == 0 ? "Rossi" : "Bianchi");
    }
    fill(staff);
    sort();
    for (int riga = 1; riga < lista.righe(); ++riga) {
        if (lista.riga(riga).nome == lista.riga(riga - 1).nome) {
            EXPECT_LT(lista.riga(riga - 1).codice, lista.riga(riga).codice) << riga;
        }
    }
}

TEST_F(StaffSortTest, ChecksAndSelectionFollowTheirStaffMember) {
    check({0});
    form.List_Prenotazione_ItemClick(1);
    sort();
    EXPECT_EQ(rows(), "BI NC RB* 7  ");
    EXPECT_EQ(lista.selezionata(), 0);
    EXPECT_THAT(journal, Contains("staff row in sight 0"));
    sort();
    EXPECT_EQ(lista.selezionata(), 3);
}

TEST_F(StaffSortTest, WithoutASelectedRowNoneIsSelectedAfterwards) {
    sort();
    EXPECT_EQ(lista.selezionata(), std::nullopt);
}

TEST_F(StaffSortTest, SortingStaysOnWhenRowsAreDeleted) {
    sort();
    check({0, 2});
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(lista.ordinamento(), Ordinamento::crescente);
    sort();
    EXPECT_EQ(rows(), "RB* BI* ");
}

TEST_F(StaffSortTest, AFreshFillingIsNotSortedAndTheNextUseIsAscending) {
    sort();
    fill({{"RB", "Rossi"}, {"BI", "Bianchi"}});
    EXPECT_EQ(rows(), "RB BI ");
    sort();
    EXPECT_EQ(rows(), "BI RB ");
}

TEST_F(StaffSortTest, AnEmptyListAndOneRowCanBeSorted) {
    fill({});
    sort();
    EXPECT_EQ(rows(), "");
    fill({{"RB", "Rossi"}});
    sort();
    EXPECT_EQ(rows(), "RB ");
}

} // namespace
} // namespace planner::test
