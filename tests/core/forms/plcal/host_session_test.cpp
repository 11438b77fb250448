// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/event_conversation.h"
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Transito = "C:\\arch\\trans.dat";

/// Host link, engine and window logic together: only files, widgets, user and host are faked.
class HostSessionTest : public PlcalFixture {
protected:
    HostSessionTest() { bench.files.put(Transito, bytesOf(richiesta())); }

    std::string answer() const { return recordOf<TransitRequest>(bench.files.get(Transito)).valret.text(); }
    /// The user chooses a command that answers with `letter`.
    Action command(char letter) {
        return [this, letter] {
            sessione.collab = "RB";
            sessione.valret = controlli.calendario.testoRisposta() + sessione.collab + letter;
            sessione.FinePlanner = true;
        };
    }
    Action escape() {
        return [this] { form.Form_KeyDown(TastoEscape); };
    }
    /// The user chooses the filters: the answer is set, then the window closes.
    Action filters() {
        return [this] {
            sessione.valret = controlli.calendario.testoRisposta() + sessione.collab + "F";
            form.unload();
        };
    }

    RecordingIpc ipc{bench.journal};
    mtavtrmpl link{parseCommandLine("C:\\arch\\trans.dat 1 EV"), {bench.files, bench.messaggi}, [this] {
                       return makeEngine();
                   }};
    EventConversation conversazione{link, ipc, bench.eventi};
};

TEST_F(HostSessionTest, ClosingTheWindowEndsTheProgram) {
    bench.eventi.actions = {escape()};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(answer(), "20060315  E");
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(bench.journal.back(), "remove [EV]");
}

TEST_F(HostSessionTest, TheHostReceivesTheDAlthoughUnloadingRewritesIt) {
    bench.eventi.actions = {command('D'), escape()};
    ipc.hostActions = {[this] {
        EXPECT_EQ(answer(), "20060315RBD");
        EXPECT_EQ(sessione.valret, "20060315RBE");
        EXPECT_FALSE(form.isLoaded());
    }};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(answer(), "20060315  E");
}

TEST_F(HostSessionTest, FiltersThenCloseKeepTheFAndTheWindowForTheNextRequest) {
    bench.eventi.actions = {filters(), escape()};
    ipc.hostActions = {[this] {
        EXPECT_EQ(answer(), "20060315  F");
        EXPECT_TRUE(form.isLoaded());
        bench.journal.clear();
    }};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(answer(), "20060315  E");
    EXPECT_THAT(bench.journal,
                ElementsAre("update", "show", "scroll to the cursor", "lock", "place period buttons",
                            "unlock", "bring to front", "wait for the user", "hide", "hide",
                            "write trans.dat", "flush", "signal [EV]", "remove [EV]"));
}

TEST_F(HostSessionTest, AnUnloadedWindowIsLoadedAgainByTheNextRequest) {
    bench.eventi.actions = {command('A'), escape()};
    ipc.hostActions = {[this] { bench.journal.clear(); }};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(bench.journal.front(), "lay out");
}

TEST_F(HostSessionTest, TheWindowIsOutOfSightBeforeTheHostIsTold) {
    bench.eventi.actions = {command('D')};
    const auto firstRequest = [&] { conversazione.eventLoop(); };
    EXPECT_THROW(firstRequest(), ScriptEnded); // the host says nothing more
    const std::vector<std::string> tail(bench.journal.end() - 6, bench.journal.end());
    EXPECT_THAT(tail,
                ElementsAre("hide", "write trans.dat", "flush", "create [EV]", "signal [EV]", "wait [EV]"));
}

TEST_F(HostSessionTest, AConfirmedStaffMemberIsTheAnswerAndNoWindowIsInSightWhenTheHostIsTold) {
    bench.eventi.actions = {[this] { form.Toolbar1_ButtonClick("coll"); },
                            [this] {
                                collaboratori.List_Prenotazione_ItemClick(1);
                                collaboratori.Toolbar_pren_ButtonClick(11);
                            },
                            escape()};
    ipc.hostActions = {[this] {
        EXPECT_EQ(answer(), "20060315RBC");
        EXPECT_EQ(recordOf<TransitRequest>(bench.files.get(Transito)).collab.text(), "RB");
        EXPECT_FALSE(collaboratori.isShown());
        EXPECT_FALSE(form.isLoaded());
    }};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(answer(), "20060315  E");
}

TEST_F(HostSessionTest, EachKindInTurn) {
    bench.eventi.actions = {command('P'), command('S'), escape()};
    const auto hostAsksFor = [this](const char* tipo, const char* title) {
        return [this, tipo, title] {
            EXPECT_EQ(controlli.lbldescr, title);
            bench.files.put(Transito, bytesOf(richiesta(tipo)));
        };
    };
    ipc.hostActions = {hostAsksFor("A", "Mese di Marzo 2006"), hostAsksFor("G", "Anno 2006 Impegni di: ")};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(controlli.lbldescr, "Dal 15 Marzo 2006 al 31 Dicembre 2006");
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(HostSessionTest, AHostThatKeepsItsRecordGoesOnYearAfterYear) {
    const auto yearly = [this](const std::string& year) {
        auto request = recordOf<TransitRequest>(bench.files.get(Transito)); // with the last answer in it
        request.tipoplanner.assign("A");
        request.startdate.assign(year + "0101");
        request.enddate.assign(year + "1231");
        bench.files.put(Transito, bytesOf(request));
    };
    const auto asks = [&](const std::string& answered, const std::string& year) {
        return [this, yearly, answered, year] {
            EXPECT_EQ(answer(), answered);
            yearly(year);
        };
    };
    const auto button = [this](int indice) { return [this, indice] { form.bselA_Click(indice); }; };
    auto first = richiesta();
    first.valret.assign("20060605");
    bench.files.put(Transito, bytesOf(first));
    yearly("2006");
    bench.eventi.actions = {button(2), button(2), button(1), escape()};
    ipc.hostActions = {asks("20060605  S", "2007"), asks("20070605  S", "2008"), asks("20080605  P", "2007")};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(answer(), "20070605  E");
    EXPECT_EQ(controlli.lbldescr, "Anno 2007 Impegni di: ");
}

TEST_F(HostSessionTest, TheEndFromOutsideAnswersTheShownDayAndTheStaffMemberThatTheUserHasPicked) {
    struct ProcessEnded {};
    bench.eventi.actions = {[this] {
        sessione.collab = "RB";
        controlli.calendario.setValue(*makeDate(2006, 4, 21));
        EXPECT_TRUE(conversazione.congedo());
        EXPECT_EQ(answer(), "20060421RBE");
        EXPECT_EQ(recordOf<TransitRequest>(bench.files.get(Transito)).collab.text(), "RB");
        throw ProcessEnded();
    }};
    EXPECT_THROW(conversazione.eventLoop(), ProcessEnded);
}

TEST_F(HostSessionTest, AnUnknownKindIsSaidAndTheWindowClosesAsEver) {
    bench.files.put(Transito, bytesOf(richiesta("?")));
    bench.eventi.actions = {escape()};
    EXPECT_TRUE(conversazione.eventLoop());
    EXPECT_EQ(answer(), "20060315  E");
    EXPECT_EQ(bench.messaggi.shown.size(), 1u);
}

} // namespace
} // namespace planner::test
