// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/lettura.h"
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LetturaTest : public PlcalFixture {
protected:
    void SetUp() override {
        bench.putRighe({riga("RB", "20060315", {{1, "00002"}, {6, "00001"}, {9, "00001"}}),
                        riga("RB", "20060320", {{1, "00001"}}), riga("BI", "20060315", {{8, "00003"}}),
                        RigaPlanner{}});
    }
    std::string read() {
        form.griglia_Comando(ComandoGriglia::leggi);
        return form.stato();
    }
};

TEST_F(LetturaTest, SaysTheCellTheTotalsOfTheMonthAndWhatComesNext) {
    open("M");
    gesto(3, 17, Mezzo::frecce);
    EXPECT_EQ(read(), "Rossi Bruno, mercoledì 15 marzo 2006: 2 scadenze, 1 pratica. Totali di marzo 2006: "
                      "3 scadenze (1 conclusa), 1 pratica. Poi lunedì 20 marzo 2006: 1 scadenza.");
    gesto(3, 22, Mezzo::frecce);
    EXPECT_EQ(read(), "Rossi Bruno, lunedì 20 marzo 2006: 1 scadenza. Totali di marzo 2006: "
                      "3 scadenze (1 conclusa), 1 pratica. Poi nessun altro impegno.");
    EXPECT_EQ(vista.announced.back(), form.stato()) << "spoken as written";
}

TEST_F(LetturaTest, SaysWhenTheNextAppointmentOfTheDayBegins) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "1"}}), "08", "00", "0000100"),
                    conOrario(riga("RB", "20060315", {{2, "1"}}), "11", "30", "0000115"), RigaPlanner{}});
    open("G");
    gesto(2, 34, Mezzo::frecce);
    EXPECT_EQ(read(), "Rossi Bruno, mercoledì 15 marzo 2006, ore 8:15: 1 scadenza dalle 8:00 alle 9:00. "
                      "Totali di mercoledì 15 marzo 2006: 1 scadenza, 1 pratica. "
                      "Poi ore 11:30: 1 pratica dalle 11:30 alle 12:45.");
}

TEST_F(LetturaTest, SaysTheWholeYear) {
    auto mesi = annoPlanner("2006", {{3, 17}, {5, 20}});
    mesi[2].testi[16].assign("00010002000100000000000000000000000000000000");
    mesi[4].testi[19].assign("00040000000000000000000000000000000000000000");
    bench.putAnnuale(mesi);
    open("A");
    gesto(3, 16, Mezzo::frecce);
    EXPECT_EQ(read(), "martedì 14 marzo 2006. Totali di 2006: 5 scadenze, 1 scadenza conclusa, 2 pratiche. "
                      "Poi mercoledì 15 marzo 2006: 1 scadenza, 1 scadenza conclusa, 2 pratiche.");
}

TEST_F(LetturaTest, WithoutAGridThereIsNothingToSay) {
    open("X");
    EXPECT_EQ(read(), "");
    EXPECT_THAT(vista.announced, IsEmpty());
}

TEST_F(LetturaTest, TheArrowsAnnounceNothingAndASelectionItsTotalsOnce) {
    open("M");
    gesto(3, 17, Mezzo::frecce);
    EXPECT_THAT(vista.announced, IsEmpty());
    gesto(3, 17, Mezzo::spazio);
    gesto(3, 17, Mezzo::spazio);
    gesto(3, 18);
    EXPECT_THAT(vista.announced, ElementsAre("Impegni di Rossi Bruno: 3 scadenze (1 conclusa), 1 pratica"));
    gesto(2, 17);
    EXPECT_EQ(vista.announced.back(), "Impegni di Bianchi Rosa: 3 impegni vari");
}

TEST_F(LetturaTest, AnotherPeriodIsAnnouncedByItsName) {
    open("M");
    form.bselm_Click(1);
    EXPECT_THAT(vista.announced, ElementsAre("aprile 2006"));
    open("G", "20060424");
    form.bselg_Click(2);
    EXPECT_EQ(vista.announced.back(), "martedì 25 aprile 2006, Festa della Liberazione");
    form.calendario_DateClick(parseDate("20060815").value());
    EXPECT_EQ(vista.announced.back(), "martedì 15 agosto 2006, Ferragosto");
}

TEST_F(LetturaTest, APeriodThatStaysIsNotAnnounced) {
    open("M", "20061215");
    form.bselm_Click(1);
    form.calendario_DateClick(parseDate("20061220").value());
    EXPECT_THAT(vista.announced, IsEmpty());
}

TEST_F(LetturaTest, ACopyIsAnnounced) {
    open("M");
    form.griglia_Comando(ComandoGriglia::copia);
    EXPECT_THAT(vista.announced, ElementsAre("La tabella è stata copiata."));
}

TEST_F(LetturaTest, ATickIsAnnouncedWithTheirNumber) {
    open("M");
    form.Toolbar1_ButtonClick("coll");
    collaboratori.List_Prenotazione_ItemCheck(0, true);
    collaboratori.List_Prenotazione_ItemCheck(0, false);
    const std::string rows = std::to_string(collaboratori.List_Prenotazione().righe());
    EXPECT_THAT(vistaCollab.announced,
                ElementsAre("spuntato, 1 spuntato su " + rows, "non spuntato, 0 spuntati su " + rows));
}

} // namespace
} // namespace planner::test
