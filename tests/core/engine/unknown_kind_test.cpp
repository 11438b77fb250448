// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;

/// A request of a kind that does not exist opens a window without a grid.
class UnknownKindTest : public testing::Test {
protected:
    std::vector<std::string_view> keys(bool (StatoToolbar::*has)(Pulsante) const) const {
        std::vector<std::string_view> found;
        for (const DescrizionePulsante& button : PulsantiToolbar) {
            if ((bench.controlli.Toolbar1.*has)(button.posizione)) {
                found.push_back(button.chiave);
            }
        }
        return found;
    }
    std::vector<std::string_view> usable() const { return keys(&StatoToolbar::enabled); }
    std::vector<std::string_view> inSight() const { return keys(&StatoToolbar::visible); }

    PlannerBench bench;
};

TEST_F(UnknownKindTest, WhatNeedsAGridCannotBePressed) {
    for (const std::string_view tipo : {"?", " ", "m", "X"}) {
        for (const std::string_view modo : {" ", "N"}) {
            bench.serveAndClose(tipo, modo);
            EXPECT_THAT(usable(),
                        ElementsAre("exit", "filtri", "agenda", "consult", "insimp", "grafici", "info"))
                << tipo << modo;
        }
    }
}

TEST_F(UnknownKindTest, OfTheDetailButtonsOneIsInSight) {
    for (const std::string_view modo : {" ", "N"}) {
        bench.serveAndClose("?", modo);
        EXPECT_THAT(inSight(), ElementsAre("exit", "coll", "filtri", "agenda", "consult", "insimp", "dettno",
                                           "grafici", "info"))
            << modo;
    }
}

TEST_F(UnknownKindTest, TheRequestDisablesAgendaAndChartsAsInEveryKind) {
    bench.serveAndClose("?", " ", "A", "S");
    EXPECT_THAT(usable(), ElementsAre("exit", "filtri", "consult", "insimp", "info"));
}

TEST_F(UnknownKindTest, TheNextRequestOfAKindHasItsOwnButtonsAgain) {
    bench.serveAndClose("?");
    bench.serveAndClose("M");
    EXPECT_THAT(usable(), ElementsAre("exit", "coll", "filtri", "agenda", "consult", "insimp", "dettno",
                                      "grafici", "info"));
}

TEST_F(UnknownKindTest, NothingOfTheKindBeforeStaysOnTheButtons) {
    bench.serveAndClose("M", "N", "A", "S");
    bench.serveAndClose("?");
    EXPECT_THAT(usable(), ElementsAre("exit", "filtri", "agenda", "consult", "insimp", "grafici", "info"));
    EXPECT_EQ(bench.controlli.grigliaVisibile(), nullptr);
}

} // namespace
} // namespace planner::test
