// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"
#include "support/fifo.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace planner::e2e {

namespace {

/// A staff archive whose names, taken as markup, would have the planner read a pipe that never gives
/// anything.
class Markup : public Scenario {
protected:
    Markup() {
        test::makeFifo(archivio.folder().path("f"));
        const std::string name = "<img src=\"" + archivio.path("f") + "\">";
        archivio.writeStaff(std::vector<std::string>(9, name));
    }
    void TearDown() override {
        EXPECT_FALSE(somebodyReadsThePipe());
        Scenario::TearDown();
    }
    /// A pipe opens for writing at once only where somebody reads it, or waits to.
    bool somebodyReadsThePipe() const {
        const int pipe = ::open(archivio.path("f").c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        const bool opened = pipe >= 0;
        EXPECT_TRUE(opened || errno == ENXIO);
        ::close(pipe);
        return opened;
    }
    void checkAnswer(char tipoplanner, const std::string& title) {
        archivio.writeTransit(requestBytes(tipoplanner));
        Programma& planner = startWithEvent();
        const Finestra finestra = window(planner, title);
        finestra.click(80, 260);  // a name
        finestra.click(300, 260); // a day of that name
        finestra.press("Escape");
        EXPECT_EQ(actionIn(ospite.answer()), 'E');
        EXPECT_EQ(planner.exitCode(), 0);
    }
};

} // namespace

TEST_F(Markup, InStaffNamesOfTheMonthlyPlannerIsShownAsItIs) {
    checkAnswer('M', "Planner Mensile");
}

TEST_F(Markup, InStaffNamesOfTheDailyPlannerIsShownAsItIs) {
    checkAnswer('G', "Planner Giornaliero");
}

TEST_F(Markup, InTheTitleOfTheYearlyPlannerIsShownAsItIs) {
    checkAnswer('A', "Planner Annuale");
}

} // namespace planner::e2e
