// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ports/guard.h"
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class TroublesTest : public testing::Test {
protected:
    std::vector<std::string> texts() const {
        std::vector<std::string> texts;
        for (const Message& message : bench.messaggi.shown) {
            EXPECT_EQ(message.icon, MessageIcon::Critical);
            EXPECT_EQ(message.title, "Planner");
            texts.push_back(message.text);
        }
        return texts;
    }
    int picture(int row, int column) const { return bench.controlli.Flxm.cella(row, column).immagine; }

    PlannerBench bench;
};

TEST_F(TroublesTest, AFillSkipsABadRecordGoesOnAndSaysSoOnceAtItsEnd) {
    bench.putRighe({riga("RB", "20060301", {{1, "1"}}), riga("RB", "20060332", {{1, "1"}}),
                    riga("RB", "20060302", {{1, "1"}}), riga("RB", "200603xx", {{1, "1"}}),
                    riga("RB", "20060303", {{1, "1"}})});
    bench.init("M", "20060315");
    EXPECT_THAT(texts(),
                ElementsAre("2 righe degli impegni non sono state mostrate. La prima: la data 32/03/2006 non "
                            "esiste."));
    EXPECT_EQ(picture(3, 3), 10);
    EXPECT_EQ(picture(3, 4), 10);
    EXPECT_EQ(picture(3, 5), 10);
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({1}, Totale::scadenze), 3);
}

TEST_F(TroublesTest, OneBadRecordIsSaidInTheSingular) {
    bench.putRighe({riga("RB", "20060230", {{1, "1"}})});
    bench.init("M", "20060215");
    EXPECT_THAT(texts(), ElementsAre("Una riga degli impegni non è stata mostrata: la data 30/02/2006 non "
                                     "esiste."));
}

TEST_F(TroublesTest, ACounterThatOverflowsSkipsTheRecordWhole) {
    bench.putRighe({riga("RB", "20060301", {{2, "00004"}, {11, "32767"}}),
                    riga("RB", "20060302", {{2, "00001"}, {11, "00001"}}),
                    riga("RB", "20060303", {{2, "00002"}})});
    bench.init("M", "20060315");
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({1}, Totale::pratiche), 6);
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({1}, Totale::altro), 32767);
    EXPECT_EQ(picture(3, 3), 11);
    EXPECT_EQ(picture(3, 4), 0);
    EXPECT_EQ(picture(3, 5), 11);
    EXPECT_THAT(texts(), ElementsAre("Una riga degli impegni non è stata mostrata: un numero è troppo "
                                     "grande."));
}

TEST_F(TroublesTest, TheDailyFillSkipsAnOverflowWholeToo) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "00001"}, {11, "99999"}}), "09", "00", "0000100"),
                    conOrario(riga("BI", "20060315", {{1, "00001"}}), "09", "00", "9999900"),
                    conOrario(riga("7 ", "20060315", {{1, "00001"}}), "09", "00", "0000100")});
    bench.init("G", "20060315");
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({0}, Totale::scadenze), 0);
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({1}, Totale::scadenze), 0);
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({2}, Totale::scadenze), 1);
    EXPECT_EQ(bench.controlli.flxg.cella(1, 37), Cella{});
    EXPECT_EQ(bench.controlli.flxg.cella(2, 37), Cella{});
    EXPECT_THAT(texts(), SizeIs(1));
}

TEST_F(TroublesTest, BadRecordsOfOtherPeriodsAreNotLookedAt) {
    bench.putRighe({riga("RB", "20060432", {{1, "1e999"}}), riga("RB", "20050301", {{1, "99999"}})});
    bench.init("M", "20060315");
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(TroublesTest, AStaffMemberBeyondTheTotalsTableIsShownWithoutTotalsAndWithoutAMessage) {
    bench.putRighe({riga("7 ", "20060301", {{1, "1"}})}); // staff index 2, totals 0 to 1
    bench.init("M", "20060315");
    EXPECT_EQ(bench.sessione.TotaliImpegni.upperBound(), 1);
    EXPECT_EQ(picture(4, 3), 10);
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(TroublesTest, TheMessageComesAfterTheWindowIsFilledAndBeforeItIsShown) {
    bench.putRighe({riga("RB", "20060332", {{1, "1"}})});
    WPlannerCall call = PlannerBench::richiestaMensile();
    call.valret = "20060315";
    bench.eventi.actions.push_back(bench.answers("20060315  E"));
    bench.serve(call);
    EXPECT_THAT(bench.journal,
                ElementsAre("load", "message", "show", "bring to front", "wait for the user", "hide"));
    EXPECT_EQ(call.valret, "20060315  E");
}

TEST_F(TroublesTest, AnUnknownKindIsSaidAndOpensTheWindowWithoutAGrid) {
    WPlannerCall call = PlannerBench::richiestaMensile();
    call.tipoplanner = "\xE0";
    call.valret = "20060610";
    bench.eventi.actions.push_back(bench.answers("20060610  E"));
    bench.serve(call);
    EXPECT_THAT(texts(), ElementsAre("Richiesta non valida: il tipo di planner \"à\" non è M, G o A."));
    EXPECT_THAT(bench.journal,
                ElementsAre("load", "message", "show", "bring to front", "wait for the user", "hide"));
    EXPECT_EQ(bench.controlli.grigliaVisibile(), nullptr);
    EXPECT_EQ(bench.controlli.Caption, "Planner grafico");
    EXPECT_EQ(bench.controlli.lbldescr, "");
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060610");
    EXPECT_EQ(call.valret, "20060610  E");
}

TEST_F(TroublesTest, AnUnknownKindAfterAGoodOneLeavesNothingOfIt) {
    bench.init("M", "20060315");
    bench.init("x", "20060315");
    EXPECT_EQ(bench.controlli.grigliaVisibile(), nullptr);
    EXPECT_EQ(bench.controlli.Caption, "Planner grafico");
    EXPECT_EQ(bench.controlli.lbldescr, "");
}

TEST_F(TroublesTest, ImpossibleDatesAreSaidOnceAndCountAsMissing) {
    bench.init("M", "20060231", "20060332", "xxxxxxxx");
    EXPECT_THAT(texts(), SizeIs(1));
    EXPECT_EQ(bench.controlli.calendario.Value(), PlannerBench::Oggi);
    EXPECT_EQ(formatDate(bench.sessione.periodo.inizio), "20060101");
    EXPECT_EQ(formatDate(bench.sessione.periodo.fine), "20061231");
    EXPECT_EQ(bench.controlli.lbldescr, "Mese di Marzo 2006");
}

TEST_F(TroublesTest, ACommandThatFailsEndsWithACriticalMessageAndThePlannerGoesOn) {
    const bool done = runCommand(bench.messaggi, [] { throw SubscriptError(); });
    EXPECT_FALSE(done);
    EXPECT_THAT(texts(), ElementsAre("Operazione non riuscita: un indice è fuori dai limiti della tabella."));
}

TEST_F(TroublesTest, ACommandThatWorksSaysNothing) {
    EXPECT_TRUE(runCommand(bench.messaggi, [] {}));
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(TroublesTest, AnErrorThatNobodyForesawEndsItsCommandTooAndIsSaid) {
    EXPECT_FALSE(runCommand(bench.messaggi, [] { throw std::logic_error("x"); }));
    EXPECT_THAT(texts(), ElementsAre("Errore imprevisto: x."));
}

TEST_F(TroublesTest, EveryRunTimeErrorSaysWhatFailedInItalian) {
    EXPECT_STREQ(OverflowError().what(), "un numero è troppo grande");
    EXPECT_STREQ(SubscriptError().what(), "un indice è fuori dai limiti della tabella");
    EXPECT_STREQ(TypeMismatchError().what(), "un testo non è un numero");
    EXPECT_STREQ(DateError("30/02/2006").what(), "la data 30/02/2006 non esiste");
}

TEST_F(TroublesTest, MissingArchivesLeaveAnEmptyPlannerAndTheHostGetsItsAnswer) {
    for (const auto file : {FileRighe, FileAnnuale, FileCollaboratori}) {
        bench.files.remove(PlannerBench::path(file));
    }
    for (const char* tipo : {"M", "G", "A"}) {
        WPlannerCall call = PlannerBench::richiestaMensile();
        call.tipoplanner = tipo;
        bench.eventi.actions.push_back(bench.answers("20060315  D"));
        bench.serve(call);
        EXPECT_EQ(call.valret, "20060315  D") << tipo;
    }
    EXPECT_THAT(bench.messaggi.shown, SizeIs(3));
}

} // namespace
} // namespace planner::test
