// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/host_fixture.h"

namespace planner::test {
namespace {

/// The answer to a request whose engine fails.
class CloseAnswerTest : public HostFixture {
protected:
    CloseAnswerTest() {
        request.collab.assign("RB");
        request.valret.assign("20060610RBZ");
    }

    TransitRequest serveAndFail() {
        putRequest(request);
        link.readRequest();
        link.dispatch();
        return answerInFile();
    }

    TransitRequest request = richiesta();
    mtavtrmpl link = makeLink("C:\\arch\\trans.dat 1 EV");
};

TEST_F(CloseAnswerTest, NamesNobodyAlthoughTheRequestNamedSomebody) {
    serve = [](WPlannerCall&) { throw std::runtime_error("guasto"); };
    const TransitRequest answer = serveAndFail();
    EXPECT_EQ(answer.collab.view(), "  ");
    EXPECT_EQ(answer.valret.view(), "00000000  E");
}

TEST_F(CloseAnswerTest, NamesNobodyAlthoughTheUserHadPickedSomebody) {
    serve = [](WPlannerCall& call) {
        call.collab = "BI";
        call.valret = "20060315BID";
        throw std::runtime_error("guasto");
    };
    const TransitRequest answer = serveAndFail();
    EXPECT_EQ(answer.collab.view(), "  ");
    EXPECT_EQ(answer.valret.view(), "00000000  E");
}

TEST_F(CloseAnswerTest, NamesNobodyAlthoughTheAnswerBeforeNamedSomebody) {
    serve = [](WPlannerCall& call) { call.collab = "BI"; };
    EXPECT_EQ(serveAndFail().collab.view(), "BI");
    serve = [](WPlannerCall&) { throw std::runtime_error("guasto"); };
    EXPECT_EQ(serveAndFail().collab.view(), "  ");
}

TEST_F(CloseAnswerTest, LeavesEveryOtherFieldAsItWas) {
    serve = [](WPlannerCall&) { throw std::runtime_error("guasto"); };
    TransitRequest expected = request;
    expected.collab.assign("");
    expected.valret.assign("00000000  E");
    EXPECT_EQ(bytesOf(serveAndFail()), bytesOf(expected));
}

} // namespace
} // namespace planner::test
