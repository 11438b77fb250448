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
    /// Serves a request whose user closes at once.
    void serve(std::string_view tipo, std::string_view modo = " ", std::string_view tipocall = " ",
               std::string_view planrichiesto = " ") {
        WPlannerCall call = PlannerBench::richiestaMensile();
        call.tipoplanner = tipo;
        call.Windowcaption = std::string(modo) + std::string(20, ' ');
        call.tipocall = tipocall;
        call.planrichiesto = planrichiesto;
        bench.eventi.actions.push_back(bench.answers("20060315  E"));
        bench.serve(call);
    }

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
            serve(tipo, modo);
            EXPECT_THAT(usable(),
                        ElementsAre("exit", "filtri", "agenda", "consult", "insimp", "grafici", "info"))
                << tipo << modo;
        }
    }
}

TEST_F(UnknownKindTest, OfTheDetailButtonsOneIsInSight) {
    for (const std::string_view modo : {" ", "N"}) {
        serve("?", modo);
        EXPECT_THAT(inSight(), ElementsAre("exit", "coll", "filtri", "agenda", "consult", "insimp", "dettno",
                                           "grafici", "info"))
            << modo;
    }
}

TEST_F(UnknownKindTest, TheRequestDisablesAgendaAndChartsAsInEveryKind) {
    serve("?", " ", "A", "S");
    EXPECT_THAT(usable(), ElementsAre("exit", "filtri", "consult", "insimp", "info"));
}

TEST_F(UnknownKindTest, TheNextRequestOfAKindHasItsOwnButtonsAgain) {
    serve("?");
    serve("M");
    EXPECT_THAT(usable(), ElementsAre("exit", "coll", "filtri", "agenda", "consult", "insimp", "dettno",
                                      "grafici", "info"));
}

TEST_F(UnknownKindTest, NothingOfTheKindBeforeStaysOnTheButtons) {
    serve("M", "N", "A", "S");
    serve("?");
    EXPECT_THAT(usable(), ElementsAre("exit", "filtri", "agenda", "consult", "insimp", "grafici", "info"));
    EXPECT_EQ(bench.controlli.grigliaVisibile(), nullptr);
}

} // namespace
} // namespace planner::test
