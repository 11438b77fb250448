// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/staff_list.h"
#include "ports/runtime_errors.h"
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;

/// Four rows "A" to "D".
struct StaffListTest : testing::Test {
    ListaCollaboratori lista;

    StaffListTest() {
        for (const char* codice : {"A ", "B ", "C ", "D "}) {
            lista.aggiungi(codice, std::string("Nome ") + codice, "");
        }
    }
    std::string codici() const {
        std::string all;
        for (int riga = 0; riga < lista.righe(); ++riga) {
            all += lista.riga(riga).codice.front();
            all += lista.riga(riga).spuntata ? "*" : "";
        }
        return all;
    }
};

TEST_F(StaffListTest, ARowKeepsBothBytesOfItsCodeAndLosesTheBlanksBehindItsTexts) {
    ListaCollaboratori one;
    one.aggiungi("7 ", "Verdi  Ugo   ", "   ");
    EXPECT_EQ(one.riga(0), (RigaCollaboratore{"7 ", "Verdi  Ugo", "", false}));
}

TEST_F(StaffListTest, RowsOutsideTheListAreErrors) {
    for (const int riga : {-1, 4, 32767}) {
        EXPECT_THROW(lista.riga(riga), SubscriptError) << riga;
        EXPECT_THROW(lista.spunta(riga, true), SubscriptError) << riga;
        EXPECT_THROW(lista.seleziona(riga), SubscriptError) << riga;
    }
    EXPECT_EQ(lista.selezionata(), std::nullopt);
}

TEST_F(StaffListTest, ChecksAreCounted) {
    EXPECT_EQ(lista.spuntate(), 0);
    lista.spunta(2, true);
    EXPECT_EQ(lista.spuntate(), 1);
    lista.spuntaTutte(true);
    EXPECT_EQ(lista.spuntate(), 4);
    lista.spunta(0, false);
    EXPECT_EQ(codici(), "AB*C*D*");
}

TEST_F(StaffListTest, KeepingTheCheckedRowsMovesTheSelectedOneWithThem) {
    lista.spunta(1, true);
    lista.spunta(3, true);
    lista.seleziona(3);
    lista.tieniSpuntate();
    EXPECT_EQ(codici(), "B*D*");
    EXPECT_EQ(lista.selezionata(), 1);
}

TEST_F(StaffListTest, ASelectedRowThatIsDeletedLeavesNoneSelected) {
    lista.spunta(1, true);
    lista.seleziona(0);
    lista.tieniSpuntate();
    EXPECT_EQ(codici(), "B*");
    EXPECT_EQ(lista.selezionata(), std::nullopt);
}

TEST_F(StaffListTest, ANewOrderTakesChecksAndSelectionAlong) {
    lista.spunta(0, true);
    lista.seleziona(2);
    lista.riordina({3, 2, 1, 0}, Ordinamento::decrescente);
    EXPECT_EQ(codici(), "DCBA*");
    EXPECT_EQ(lista.selezionata(), 1);
    EXPECT_EQ(lista.ordinamento(), Ordinamento::decrescente);
}

TEST_F(StaffListTest, AnOrderThatIsNotOneIsAnErrorAndChangesNothing) {
    lista.seleziona(1);
    const std::vector<std::vector<int>> orders{{0, 1, 2}, {0, 1, 2, 2}, {0, 1, 2, 4}, {0, 1, 2, 3, 0}, {}};
    for (const std::vector<int>& order : orders) {
        EXPECT_THROW(lista.riordina(order, Ordinamento::crescente), SubscriptError);
    }
    EXPECT_EQ(codici(), "ABCD");
    EXPECT_EQ(lista.selezionata(), 1);
    EXPECT_EQ(lista.ordinamento(), Ordinamento::nessuno);
}

TEST_F(StaffListTest, AnEmptyListCanBeSortedAndNarrowed) {
    ListaCollaboratori none;
    none.riordina({}, Ordinamento::crescente);
    none.tieniSpuntate();
    EXPECT_EQ(none.righe(), 0);
    EXPECT_EQ(none.ordinamento(), Ordinamento::crescente);
}

TEST_F(StaffListTest, EmptyingForgetsRowsSelectionAndSorting) {
    lista.seleziona(2);
    lista.riordina({0, 1, 2, 3}, Ordinamento::crescente);
    lista.svuota();
    EXPECT_EQ(lista.righe(), 0);
    EXPECT_EQ(lista.selezionata(), std::nullopt);
    EXPECT_EQ(lista.ordinamento(), Ordinamento::nessuno);
}

/// Filling the list from the archive.
struct PopolaListaCollabTest : testing::Test {
    PlannerBench bench;
    ListaCollaboratori lista;

    std::vector<std::string> nomi() const {
        std::vector<std::string> names;
        for (int riga = 0; riga < lista.righe(); ++riga) {
            names.push_back(lista.riga(riga).nome);
        }
        return names;
    }
    void popola() {
        bench.sessione.PathArchivi = PlannerBench::Cartella;
        bench.motore.LeggiCollab();
        bench.motore.PopolaListaCollab(lista);
    }
};

TEST_F(PopolaListaCollabTest, OneRowPerRecordAndNoneForTheElementBeyondTheFile) {
    popola();
    EXPECT_THAT(nomi(), ElementsAre("Bianchi Rosa", "Rossi Bruno", "Verdi Ugo"));
    EXPECT_EQ(lista.riga(0), (RigaCollaboratore{"BI", "Bianchi Rosa", "Avvocato", false}));
    EXPECT_EQ(lista.riga(2).codice, "7 ");
}

TEST_F(PopolaListaCollabTest, AFillRestoresTheWholeListUncheckedUnselectedAndUnsorted) {
    popola();
    lista.spunta(1, true);
    lista.seleziona(1);
    lista.riordina({2, 1, 0}, Ordinamento::decrescente);
    lista.tieniSpuntate();
    popola();
    EXPECT_THAT(nomi(), ElementsAre("Bianchi Rosa", "Rossi Bruno", "Verdi Ugo"));
    EXPECT_EQ(lista.spuntate(), 0);
    EXPECT_EQ(lista.selezionata(), std::nullopt);
    EXPECT_EQ(lista.ordinamento(), Ordinamento::nessuno);
}

TEST_F(PopolaListaCollabTest, WithoutAnyStaffTheListIsEmpty) {
    bench.motore.PopolaListaCollab(lista);
    EXPECT_EQ(lista.righe(), 0);
}

TEST_F(PopolaListaCollabTest, AFullArchiveGivesAsManyRows) {
    bench.put(FileCollaboratori, std::string(32767 * 125, 'x'));
    popola();
    EXPECT_EQ(lista.righe(), 32767);
    EXPECT_EQ(lista.riga(32766).nome, std::string(50, 'x'));
}

TEST_F(PopolaListaCollabTest, EqualNamesStayTwoRows) {
    bench.putCollaboratori({collaboratore("R1", "Rossi Bruno"), collaboratore("R2", "Rossi Bruno")});
    popola();
    EXPECT_THAT(nomi(), ElementsAre("Rossi Bruno", "Rossi Bruno"));
}

} // namespace
} // namespace planner::test
