// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::Contains;
using testing::IsEmpty;

class VaiTest : public PlcalFixture {
protected:
    void command(ComandoGriglia comando) { form.griglia_Comando(comando); }
    bool date(const std::string& testo) { return form.campo_Conferma(CampoGriglia::data, testo); }
    bool person(const std::string& testo) { return form.campo_Conferma(CampoGriglia::persona, testo); }
    std::string shown() { return formatDate(controlli.calendario.Value()); }
    int row() { return controlli.grigliaVisibile()->Row(); }
};

using VaiADataTest = VaiTest;

TEST_F(VaiADataTest, TheCommandAsksForADate) {
    open("M");
    command(ComandoGriglia::vaiAData);
    EXPECT_THAT(bench.journal, Contains("ask campoData []"));
}

TEST_F(VaiADataTest, ADayOfTheMonthMovesCalendarCursorAndSentence) {
    open("M");
    EXPECT_TRUE(date("20"));
    EXPECT_EQ(shown(), "20060320");
    EXPECT_EQ(controlli.Flxm.Col(), 22);
    EXPECT_EQ(form.stato(), "Bianchi Rosa, lunedì 20 marzo 2006");
    EXPECT_THAT(bench.journal, Contains("cursor in sight"));
}

TEST_F(VaiADataTest, AnotherMonthIsLaidOut) {
    open("M");
    EXPECT_TRUE(date("15/8"));
    EXPECT_EQ(controlli.lbldescr, "Mese di Agosto 2006");
    EXPECT_EQ(shown(), "20060815");
}

TEST_F(VaiADataTest, OutsideThePeriodTheStatusSaysSoAndNothingMoves) {
    open("M");
    EXPECT_FALSE(date("15/8/31"));
    EXPECT_EQ(shown(), "20060315");
    EXPECT_EQ(form.stato(), "15/08/2031 è fuori del periodo (dal 01/01/2006 al 31/12/2006).");
}

TEST_F(VaiADataTest, NonsenseIsSaidAndNothingMoves) {
    open("G");
    for (const char* text : {"ferragosto", "31/2", "<b>1</b>"}) {
        EXPECT_FALSE(date(text));
        EXPECT_EQ(shown(), "20060315");
        EXPECT_EQ(form.stato(), "«" + std::string(text) + "» non è una data: scrivere per esempio 15/8.");
    }
}

TEST_F(VaiADataTest, NothingWrittenChangesNothing) {
    open("M");
    EXPECT_TRUE(date(""));
    EXPECT_TRUE(person(""));
    EXPECT_EQ(form.stato(), "");
}

TEST_F(VaiADataTest, InTheYearTheBoundsAreItsDays) {
    open("A");
    EXPECT_TRUE(date("15/8"));
    EXPECT_EQ(controlli.flxa.Row(), 8);
    EXPECT_FALSE(date("15/8/07"));
    EXPECT_EQ(shown(), "20060815");
}

TEST_F(VaiADataTest, TodayIsGoneToWhereThePeriodHasIt) {
    open("G", "20060810");
    command(ComandoGriglia::vaiAOggi);
    EXPECT_EQ(shown(), "20060315");
    bench.orologio.setToday(parseDate("20070101").value());
    command(ComandoGriglia::vaiAOggi);
    EXPECT_EQ(shown(), "20060315");
    EXPECT_EQ(form.stato(), "01/01/2007 è fuori del periodo (dal 01/01/2006 al 31/12/2006).");
}

TEST_F(VaiADataTest, WithoutAGridNothingIsAskedAndNothingFound) {
    for (const ComandoGriglia each : {ComandoGriglia::vaiAData, ComandoGriglia::vaiAOggi,
                                      ComandoGriglia::cerca, ComandoGriglia::cercaAncora}) {
        command(each);
    }
    EXPECT_TRUE(date("15/8"));
    EXPECT_TRUE(person("ros"));
    EXPECT_THAT(bench.journal, testing::Not(Contains(testing::StartsWith("ask"))));
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

class CercaPersonaTest : public VaiTest, public testing::WithParamInterface<const char*> {};

TEST_P(CercaPersonaTest, APersonFoundIsSelectedAndTheDayStays) {
    open(GetParam());
    EXPECT_TRUE(person("ROSSI"));
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_EQ(form.pannello().lblcollab, "Impegni di Rossi Bruno");
    EXPECT_EQ(controlli.grigliaVisibile()->RigaEvidenziata(), row());
    EXPECT_EQ(shown(), "20060315");
    EXPECT_THAT(bench.journal, Contains("cursor in sight"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, CercaPersonaTest, testing::Values("M", "G"));

TEST_F(VaiTest, TheCodeFindsToo) {
    open("M");
    EXPECT_TRUE(person("7"));
    EXPECT_EQ(row(), 4);
}

TEST_F(VaiTest, SearchingAgainGoesOnBehindTheCursorAndRoundTheEnd) {
    open("M");
    EXPECT_TRUE(person("i"));
    const int first = row();
    command(ComandoGriglia::cercaAncora);
    EXPECT_NE(row(), first);
    for (int i = 0; i < 10 && row() != first; ++i) {
        command(ComandoGriglia::cercaAncora);
    }
    EXPECT_EQ(row(), first);
    EXPECT_THAT(bench.journal, testing::Not(Contains(testing::StartsWith("ask"))));
}

TEST_F(VaiTest, SearchingAgainWithoutAFormerTextAsks) {
    open("M");
    command(ComandoGriglia::cercaAncora);
    EXPECT_THAT(bench.journal, Contains("ask campoPersona []"));
    person("ver");
    command(ComandoGriglia::cerca);
    EXPECT_THAT(bench.journal, Contains("ask campoPersona [ver]"));
}

TEST_F(VaiTest, WhomNobodyIsCalledTheStatusSaysAndNothingMoves) {
    open("M");
    gesto(3, 10);
    EXPECT_FALSE(person("Neri"));
    EXPECT_EQ(form.stato(), "Nessun nome o codice contiene «Neri».");
    EXPECT_EQ(row(), 3);
    EXPECT_EQ(sessione.collab, "RB");
}

TEST_F(VaiTest, TheUnassignedRowIsFoundAndSpareRowsAreNot) {
    open("M");
    EXPECT_TRUE(person("non ass"));
    EXPECT_EQ(row(), 5);
    command(ComandoGriglia::cercaAncora);
    EXPECT_EQ(row(), 5);
}

TEST_F(VaiTest, TheYearHasNobodyToSearch) {
    open("A");
    for (const ComandoGriglia each : {ComandoGriglia::cerca, ComandoGriglia::cercaAncora}) {
        command(each);
        EXPECT_EQ(form.stato(), "Nel planner annuale non ci sono collaboratori da cercare.");
    }
    EXPECT_THAT(bench.journal, testing::Not(Contains(testing::StartsWith("ask"))));
}

} // namespace
} // namespace planner::test
