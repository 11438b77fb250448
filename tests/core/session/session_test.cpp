// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SessionTest : public testing::Test {
protected:
    /// Serves the request; the user answers at once.
    void serve(std::string answer = "20060315  E", std::string collab = "  ") {
        bench.eventi.actions.push_back(bench.answers(std::move(answer), std::move(collab)));
        bench.serve(call);
    }

    PlannerBench bench;
    WPlannerCall call = PlannerBench::richiestaMensile();
    modpl& sessione = bench.sessione;
};

TEST_F(SessionTest, TheArchiveFolderLosesItsTrailingSeparatorAndBlanks) {
    const std::vector<std::pair<std::string, std::string>> table{
        {"C:\\arch\\", "C:\\arch"},
        {"C:\\arch   ", "C:\\arch"},
        {"C:\\arch\\  ", "C:\\arch"},
        {"C:\\arch\\\\", "C:\\arch\\"},
        {"C:\\arch/", "C:\\arch/"},
        {" C:\\arch", " C:\\arch"},
        {"\\", ""},
        {"", ""},
    };
    for (const auto& [given, kept] : table) {
        call.PathArchivi = given;
        serve();
        EXPECT_EQ(sessione.PathArchivi, kept) << '"' << given << '"';
    }
}

TEST_F(SessionTest, Character21OfTheWindowCaptionIsTheLastOfTheTitleAndTheFlag) {
    call.Windowcaption = "NTitolo della finestB";
    ASSERT_EQ(call.Windowcaption.size(), 21u);
    serve();
    EXPECT_EQ(sessione.ModoFinestra, "N");
    EXPECT_EQ(sessione.TitoloFinestra, "Titolo della finestB");
    EXPECT_EQ(sessione.FlagFinestra, "B");
    EXPECT_TRUE(sessione.varianteRidotta());
}

TEST_F(SessionTest, TheFlagIsUpperCased) {
    call.Windowcaption = std::string(20, ' ') + "b";
    serve();
    EXPECT_EQ(sessione.FlagFinestra, "B");
    EXPECT_EQ(sessione.TitoloFinestra.back(), 'b');
}

TEST_F(SessionTest, AShortWindowCaptionLeavesTheRestEmpty) {
    call.Windowcaption = "N";
    serve();
    EXPECT_EQ(sessione.ModoFinestra, "N");
    EXPECT_EQ(sessione.TitoloFinestra, "");
    EXPECT_EQ(sessione.FlagFinestra, "N");
    call.Windowcaption = "";
    serve();
    EXPECT_EQ(sessione.ModoFinestra, "");
    EXPECT_EQ(sessione.FlagFinestra, "");
}

TEST_F(SessionTest, EachRequestResetsAnswerStaffMemberAndEnd) {
    sessione.valret = "20050101XXD";
    sessione.collab = "XX";
    sessione.FinePlanner = true;
    sessione.IndiceCollab = {2};
    bench.eventi.actions.push_back([this] {
        EXPECT_EQ(sessione.valret, "");
        EXPECT_EQ(sessione.collab, "  ");
        EXPECT_FALSE(sessione.FinePlanner);
        EXPECT_FALSE(sessione.IndiceCollab.presente());
        bench.answers("20060315RBD", "RB")();
    });
    bench.serve(call);
}

TEST_F(SessionTest, TheAnswerComesBackAndTheOtherTextsStay) {
    const WPlannerCall before = call;
    serve("20060315RBD", "RB");
    EXPECT_EQ(call.valret, "20060315RBD");
    EXPECT_EQ(call.collab, "RB");
    EXPECT_EQ(call.tipoplanner, before.tipoplanner);
    EXPECT_EQ(call.Windowcaption, before.Windowcaption);
    EXPECT_EQ(call.planrichiesto, before.planrichiesto);
}

TEST_F(SessionTest, WaitsWithoutPollingUntilTheUserIsDone) {
    bench.eventi.actions = {[] {}, [] {}, bench.answers("20060315  D")};
    bench.serve(call);
    EXPECT_THAT(bench.journal, ElementsAre("load", "show", "bring to front", "wait for the user",
                                           "wait for the user", "wait for the user", "unload"));
}

TEST_F(SessionTest, AnAnswerEndingInFLeavesTheWindowLoadedForTheNextRequest) {
    serve("20060315  F");
    EXPECT_TRUE(bench.finestra.isLoaded());
    EXPECT_EQ(bench.journal.back(), "hide");
    bench.journal.clear();
    serve();
    EXPECT_THAT(bench.journal,
                ElementsAre("load again", "show", "bring to front", "wait for the user", "hide"));
}

TEST_F(SessionTest, AnAnswerEndingInELeavesTheWindowLoadedOutOfSight) {
    serve("20060315  E");
    EXPECT_TRUE(bench.finestra.isLoaded());
    EXPECT_EQ(bench.journal.back(), "hide");
}

TEST_F(SessionTest, EveryOtherAnswerUnloadsTheWindow) {
    for (const char letter : {'A', 'C', 'D', 'I', 'P', 'S', 'T', ' '}) {
        serve(std::string("20060315RB") + letter);
        EXPECT_FALSE(bench.finestra.isLoaded()) << letter;
        EXPECT_EQ(bench.journal.back(), "unload") << letter;
    }
}

TEST_F(SessionTest, ThePeriodIsCutFromTheRequestsDates) {
    call.startdate = "20060305";
    call.enddate = "20070615";
    serve();
    const PeriodoSessione& p = sessione.periodo;
    EXPECT_THAT((std::vector{p.GiornoInizio(), p.MeseInizio(), p.AnnoInizio()}),
                ElementsAre("05", "03", "2006"));
    EXPECT_THAT((std::vector{p.GiornoFine(), p.MeseFine(), p.AnnoFine()}), ElementsAre("15", "06", "2007"));
}

TEST_F(SessionTest, TheSessionKeepsTheTextsOfTheRequest) {
    call.tipocall = "A";
    call.planrichiesto = "S";
    serve();
    EXPECT_EQ(bench.controlli.tipoplanner(), "M");
    EXPECT_EQ(sessione.tipocall, "A");
    EXPECT_EQ(sessione.planrichiesto, "S");
}

TEST_F(SessionTest, TheIncomingDayIsShownInEveryKind) {
    for (const char* tipo : {"M", "G", "A"}) {
        call.tipoplanner = tipo;
        call.valret = "20060831RBD";
        serve();
        EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060831") << tipo;
    }
}

TEST_F(SessionTest, AnIncomingAnswerOfZerosGivesNoDay) {
    for (const char* tipo : {"M", "G", "A"}) {
        call.tipoplanner = tipo;
        call.startdate = "20060531";
        call.valret = "00000000RBD";
        serve();
        EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060531") << tipo;
    }
}

TEST_F(SessionTest, WithoutAnyDateTodayIsShown) {
    call.startdate = "00000000";
    call.enddate = "00000000";
    call.valret = "";
    serve();
    EXPECT_EQ(bench.controlli.calendario.Value(), PlannerBench::Oggi);
}

TEST_F(SessionTest, WithoutIncomingDayAndStartTheFirstDayOfTheEndsYearIsShown) {
    for (const char* tipo : {"M", "G", "A"}) {
        call.tipoplanner = tipo;
        call.startdate = "00000000";
        call.enddate = "20081231";
        call.valret = "";
        serve();
        EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20080101") << tipo;
        EXPECT_EQ(sessione.periodo.AnnoInizio(), "2008") << tipo;
    }
}

TEST_F(SessionTest, ZerosBlanksAndNulsInAnyMixtureAreNoDateAndNeedNoMessage) {
    using namespace std::string_literals;
    for (const std::string& none : {"\0\0\0\0\0\0\0\0"s, "0000\0\0\0\0"s, " 0\0 0\0 0"s}) {
        call.valret = none + "\0\0\0"s;
        call.startdate = none;
        call.enddate = none;
        serve();
        EXPECT_EQ(bench.controlli.calendario.Value(), PlannerBench::Oggi);
    }
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(SessionTest, NulsInCodesAndFlagsCountAsBlanks) {
    using namespace std::string_literals;
    call.tipoplanner = "A";
    call.collab = "7\0"s;
    call.tipocall = "\0"s;
    call.planrichiesto = "\0"s;
    call.Windowcaption = std::string(21, '\0');
    serve();
    EXPECT_EQ(bench.controlli.lbldescr, "Anno 2006 Impegni di: Verdi Ugo");
    EXPECT_EQ(sessione.tipocall, " ");
    EXPECT_EQ(sessione.planrichiesto, " ");
    EXPECT_EQ(sessione.ModoFinestra, " ");
    EXPECT_EQ(sessione.FlagFinestra, " ");
}

TEST_F(SessionTest, TheTextsThatThePlannerDoesNotChangeComeBackWithTheirNuls) {
    using namespace std::string_literals;
    call.tipoplanner = "\0"s;
    call.Windowcaption = "N\0B"s;
    call.planrichiesto = "\0"s;
    serve();
    EXPECT_EQ(call.tipoplanner, "\0"s);
    EXPECT_EQ(call.Windowcaption, "N\0B"s);
    EXPECT_EQ(call.planrichiesto, "\0"s);
}

TEST_F(SessionTest, TheYearlyPlannerShowsGridAndTitleOfTheStartsYearWhateverTheIncomingDay) {
    bench.putAnnuale(annoPlanner("2007"));
    call.tipoplanner = "A";
    call.startdate = "20070101";
    call.enddate = "20071231";
    call.Windowcaption = "N";
    call.valret = "20080229RBS";
    serve();
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20070228");
    EXPECT_EQ(bench.controlli.lbldescr, "Anno 2007");
    EXPECT_EQ(bench.controlli.flxa.TextMatrix(1, 1), "1"); // 1 January 2007 is a Monday
}

TEST_F(SessionTest, ARefillDoesNotMoveTheShownDay) {
    bench.putRighe({riga("RB", "20060801", {{1, "1"}}), riga("RB", "20060802", {{1, "1"}})});
    bench.init("M", "20060831");
    bench.motore.PopolaGrid1();
    bench.motore.LeggiDati();
    bench.motore.PopolaGrid1();
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060831");
}

TEST_F(SessionTest, YearlyGridMovesTheCalendarOnlyOnceThePlannerHasStarted) {
    bench.init("A", "20060831");
    EXPECT_TRUE(sessione.CalendarioAttivo);
    bench.motore.showgrid3();
    EXPECT_FALSE(sessione.CalendarioAttivo);
    sessione.CalendarioAttivo = true;
    bench.motore.PopolaGrid3();
    EXPECT_FALSE(sessione.CalendarioAttivo);
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060831");
}

TEST_F(SessionTest, WUscitaUnloadsTheWindowAndTouchesNoSessionVariable) {
    bench.init("M", "20060315");
    sessione.valret = "20060315RBD";
    bench.motore.WUscita();
    EXPECT_FALSE(bench.finestra.isLoaded());
    EXPECT_EQ(sessione.valret, "20060315RBD");
    EXPECT_FALSE(sessione.FinePlanner);
}

TEST_F(SessionTest, TheNextRequestShowsItsOwnKindAndData) {
    call.valret = "20060315";
    bench.putRighe({riga("RB", "20060315", {{1, "1"}})});
    serve("20060315  F");
    call.valret = "20060315";
    EXPECT_EQ(bench.controlli.Flxm.cella(3, 17).immagine, 10);
    bench.putRighe({riga("RB", "20060316", {{1, "1"}})});
    serve("20060315  F");
    EXPECT_EQ(bench.controlli.Flxm.cella(3, 17).immagine, 0);
    EXPECT_EQ(bench.controlli.Caption, "Planner Mensile");
    call.tipoplanner = "G";
    serve("20060315  F");
    EXPECT_EQ(bench.controlli.Caption, "Planner Giornaliero");
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST(RispostaTest, TheActionLetterIsTheLastCharacter) {
    modpl sessione;
    EXPECT_FALSE(sessione.risposta('E'));
    sessione.valret = "20060315RBE";
    EXPECT_TRUE(sessione.risposta('E'));
    EXPECT_FALSE(sessione.risposta('F'));
    sessione.valret = "E2006";
    EXPECT_FALSE(sessione.risposta('E'));
}

} // namespace
} // namespace planner::test
