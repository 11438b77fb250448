// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

#include <functional>

namespace planner::e2e {

namespace {

class Closing : public Scenario {
protected:
    /// Starts a monthly planner, has `close` close its window, and checks the answer.
    void checkAnswer(const std::function<void(const Finestra&)>& close) {
        archivio.writeTransit(requestBytes('M', "20060408"));
        Programma& planner = startWithEvent();
        const Finestra finestra = window(planner, "Planner Mensile");
        close(finestra);
        EXPECT_EQ(ospite.answer(), closedOn("20060408", requestBytes('M', "20060408")));
        EXPECT_TRUE(finestra.disappears());
        EXPECT_EQ(planner.exitCode(), 0);
    }
};

} // namespace

TEST_F(Closing, TheEscapeKeyAnswersE) {
    checkAnswer([](const Finestra& finestra) { finestra.press("Escape"); });
}

TEST_F(Closing, TheCloseCommandOfTheWindowManagerAnswersE) {
    checkAnswer([](const Finestra& finestra) { finestra.press("alt+F4"); });
}

TEST_F(Closing, TheShortcutOfTheExitButtonAnswersE) {
    checkAnswer([](const Finestra& finestra) { finestra.press("ctrl+q"); });
}

TEST_F(Closing, AClickOnTheExitButtonAnswersE) {
    checkAnswer([](const Finestra& finestra) { finestra.click(28, 28); });
}

} // namespace planner::e2e
