// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

namespace planner::e2e {

namespace {

struct Case {
    char tipoplanner;
    std::string title;
    Schermo::Size screen;
};

void PrintTo(const Case& tested, std::ostream* out) {
    *out << tested.title << " on " << tested.screen.width << "x" << tested.screen.height;
}

class Window : public Scenario, public testing::WithParamInterface<Case> {
protected:
    Window() : Scenario(GetParam().screen) {}
};

} // namespace

TEST_P(Window, HasItsKindAsTitleAndFillsTheScreen) {
    const Case& tested = GetParam();
    archivio.writeTransit(requestBytes(tested.tipoplanner));
    Programma& planner = startWithEvent();
    const Finestra finestra = window(planner, tested.title);
    EXPECT_EQ(finestra.title(), tested.title);
    const Area wholeScreen{0, 0, tested.screen.width, tested.screen.height};
    comesTrue([&] { return finestra.frame() == wholeScreen; });
    EXPECT_EQ(finestra.frame(), wholeScreen);
    EXPECT_TRUE(comesTrue([&] { return finestra.isActive(); })) << "it comes in front by itself";
    finestra.press("Escape");
    EXPECT_EQ(planner.exitCode(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Window,
    testing::Values(Case{'M', "Planner Mensile", {1366, 768}}, Case{'M', "Planner Mensile", {1920, 1080}},
                    Case{'G', "Planner Giornaliero", {1366, 768}},
                    Case{'G', "Planner Giornaliero", {1920, 1080}}, Case{'A', "Planner Annuale", {1366, 768}},
                    Case{'A', "Planner Annuale", {1920, 1080}}),
    [](const auto& tested) {
        return std::string(1, tested.param.tipoplanner) + std::to_string(tested.param.screen.width);
    });

} // namespace planner::e2e
