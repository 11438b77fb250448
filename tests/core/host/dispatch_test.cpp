// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/host_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class DispatchTest : public HostFixture {
protected:
    /// Reads and dispatches the request once.
    bool dispatch(const TransitRequest& request) {
        putRequest(request);
        link.readRequest();
        return link.dispatch();
    }

    mtavtrmpl link = makeLink("C:\\arch\\trans.dat 1 EV");
};

TEST_F(DispatchTest, PassesTheFieldsOnAndTheTransitFolderAsArchiveFolder) {
    auto request = richiesta("G");
    request.tipocall.assign("A");
    request.collab.assign("RB");
    request.valret.assign("20060610XXZ");
    request.Windowcaption.assign("N23456789012345678901");
    request.planrichiesto.assign("S");
    dispatch(request);
    ASSERT_EQ(calls.size(), 1u);
    const WPlannerCall& call = calls.front();
    EXPECT_EQ(call.tipoplanner, "G");
    EXPECT_EQ(call.startdate, "20060315");
    EXPECT_EQ(call.enddate, "20061231");
    EXPECT_EQ(call.PathArchivi, "C:\\arch\\");
    EXPECT_EQ(call.tipocall, "A");
    EXPECT_EQ(call.collab, "RB");
    EXPECT_EQ(call.valret, "20060610XXZ");
    EXPECT_EQ(call.Windowcaption, "N23456789012345678901");
    EXPECT_EQ(call.planrichiesto, "S");
}

TEST_F(DispatchTest, StoresTheFiveReturnedTextsAndKeepsTheOthers) {
    serve = [](WPlannerCall& call) {
        call = {"A", "11111111", "22222222", "X", "Z", "RB", "20060315RBD", std::string(21, 'w'), "P"};
    };
    dispatch(richiesta());
    const TransitRequest answer = answerInFile();
    EXPECT_EQ(answer.tipoplanner.view(), "A");
    EXPECT_EQ(answer.collab.view(), "RB");
    EXPECT_EQ(answer.valret.view(), "20060315RBD");
    EXPECT_EQ(answer.Windowcaption.view(), std::string(21, 'w'));
    EXPECT_EQ(answer.planrichiesto.view(), "P");
    EXPECT_EQ(answer.startdate.view(), "20060315");
    EXPECT_EQ(answer.enddate.view(), "20061231");
    EXPECT_EQ(answer.tipocall.view(), " ");
}

TEST_F(DispatchTest, AReturnedStaffCodeOfOneCharacterIsStoredWithABlank) {
    serve = [](WPlannerCall& call) { call.collab = "7"; };
    dispatch(richiesta());
    EXPECT_EQ(answerInFile().collab.view(), "7 ");
}

TEST_F(DispatchTest, AnAnswerLongerThan11CharactersIsCut) {
    answers = {"20060315RBDE"};
    dispatch(richiesta());
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD");
    EXPECT_FALSE(link.finished());
}

TEST_F(DispatchTest, TheActionLetterMustStandInPosition11) {
    answers = {"20060315E"};
    dispatch(richiesta());
    EXPECT_EQ(answerInFile().valret.view(), "20060315E  ");
    EXPECT_FALSE(link.finished());
    answers = {"20060315RBE"};
    dispatch(richiesta());
    EXPECT_TRUE(link.finished());
}

TEST_F(DispatchTest, OnlyEFinishes) {
    for (const char letter : {'F', 'A', 'C', 'D', 'I', 'P', 'S', 'T', ' ', 'e'}) {
        answers = {std::string("20060315RB") + letter};
        dispatch(richiesta());
        EXPECT_FALSE(link.finished()) << letter;
    }
}

TEST_F(DispatchTest, TheHostsOwnFieldsComeBackForAll256Values) {
    for (int value = 0; value < 256; ++value) {
        auto request = richiesta();
        request.riservato1.assign(std::string(8, static_cast<char>(value)));
        request.riservato2.assign(std::string(60, static_cast<char>(value)));
        dispatch(request);
        EXPECT_EQ(answerInFile().riservato1, request.riservato1) << value;
        EXPECT_EQ(answerInFile().riservato2, request.riservato2) << value;
    }
}

TEST_F(DispatchTest, OneEngineServesTheWholeRun) {
    answers = {"20060315RBD", "20060315RBD"};
    dispatch(richiesta());
    dispatch(richiesta());
    EXPECT_THAT(journal,
                ElementsAre("engine made", "WPlanner", "write trans.dat", "WPlanner", "write trans.dat"));
}

TEST_F(DispatchTest, AReleasedEngineIsMadeAnewOnDemand) {
    dispatch(richiesta());
    link.releaseEngine();
    dispatch(richiesta());
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "write trans.dat", "engine released",
                                     "engine made", "WPlanner", "write trans.dat"));
}

TEST_F(DispatchTest, AnUnexpectedErrorIsSaidAndAnsweredWithClose) {
    serve = [](WPlannerCall&) { throw std::runtime_error("guasto"); };
    EXPECT_TRUE(dispatch(richiesta()));
    EXPECT_EQ(answerInFile().valret.view(), "00000000  E");
    EXPECT_EQ(answerInFile().collab.view(), "  ");
    EXPECT_EQ(answerInFile().riservato1.view(), "host-001");
    EXPECT_TRUE(link.finished());
    EXPECT_THAT(messageTexts(), ElementsAre(StartsWith("Il planner si chiude")));
}

TEST_F(DispatchTest, AnAnswerThatCannotBeWrittenIsSaid) {
    files.refuseWriting(Transito);
    EXPECT_FALSE(dispatch(richiesta()));
    EXPECT_THAT(messageTexts(),
                ElementsAre("Attenzione ! Problemi con il file di transito C:\\arch\\trans.dat"));
}

TEST_F(DispatchTest, TheFoldersNameFollowsTheLastSlash) {
    mtavtrmpl mixed = makeLink("C:/arch\\x.dat 1 EV");
    files.put("C:/arch\\x.dat", bytesOf(richiesta()));
    mixed.readRequest();
    mixed.dispatch();
    EXPECT_EQ(calls.back().PathArchivi, "C:/");
    EXPECT_THAT(messageTexts(), IsEmpty());
}

} // namespace
} // namespace planner::test
