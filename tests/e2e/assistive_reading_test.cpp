// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

#include <algorithm>

namespace planner::e2e {

namespace {

struct KindOfPlanner {
    char tipoplanner;
    std::string title;
};

void PrintTo(const KindOfPlanner& kind, std::ostream* out) {
    *out << kind.tipoplanner;
}

class EveryObject : public ScenarioAccessibile, public testing::WithParamInterface<KindOfPlanner> {};

class Focus : public ScenarioAccessibile {};

class LargeOffice : public ScenarioAccessibile {
protected:
    static constexpr int Staff = 500;
    static constexpr std::size_t Columns = 37;
    /// Far less than giving back what was read may take, far more than it should.
    static constexpr std::chrono::seconds End{E2E_SANITIZED ? 20 : 5};

    LargeOffice() { archivio.writeOffice(2006, Staff); }
};

std::size_t count(const std::vector<Accessibilita::Controllo>& objects, const std::string& ruolo) {
    return static_cast<std::size_t>(std::count_if(objects.begin(), objects.end(),
                                                  [&](const auto& object) { return object.ruolo == ruolo; }));
}

} // namespace

TEST_P(EveryObject, CanBeReadAndThePlannerAnswersAfterwards) {
    archivio.writeStaff({"Neri Carla", "Verdi Anna"}); // the spare rows are enough to read
    request(requestBytes(GetParam().tipoplanner));
    lookAt(GetParam().title);
    bus.waitFor(planner(), "Informazioni");
    const auto objects = bus.readEverything(planner());
    EXPECT_GT(count(objects, "list item"), 400U);
    EXPECT_GT(count(objects, "table column header"), 40U);
    EXPECT_GT(count(objects, "push button"), 10U);
    EXPECT_EQ(count(objects, "layered pane"), 1U) << "the grid that is shown";
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes(GetParam().tipoplanner)));
    EXPECT_EQ(planner().exitCode(), 0);
}

INSTANTIATE_TEST_SUITE_P(AssistiveReading, EveryObject,
                         testing::Values(KindOfPlanner{'M', "Planner Mensile"},
                                         KindOfPlanner{'G', "Planner Giornaliero"},
                                         KindOfPlanner{'A', "Planner Annuale"}),
                         [](const auto& tested) { return std::string(1, tested.param.tipoplanner); });

TEST_F(Focus, IsSaidToBeOnTheDaysThatTheArrowsGoThroughAndNowhereElse) {
    archivio.writeStaff({"Neri Carla", "Verdi Anna"});
    request(requestBytes('M', "20060331"));
    lookAt("Planner Mensile");
    bus.waitFor(planner(), "Mese successivo");
    const auto listener = bus.listener(planner());
    finestra().press("Left");
    EXPECT_EQ(listener->readLine(), "Neri Carla, giovedì 30 marzo 2006");
    finestra().press("Left");
    EXPECT_EQ(listener->readLine(), "Neri Carla, mercoledì 29 marzo 2006");
    finestra().press("alt+Right");
    EXPECT_EQ(listener->readLine(), "Neri Carla, sabato 29 aprile 2006");
    finestra().press("Down");
    EXPECT_EQ(listener->readLine(), "Verdi Anna, sabato 29 aprile 2006");
}

TEST_F(Focus, AKeyTellsOfTheNamesInSightThatChangeAndOfNoOthers) {
    using Lines = std::vector<std::string>;
    archivio.writeStaff({"Neri Carla", "Verdi Anna"});
    request(requestBytes('M', "20060331"));
    lookAt("Planner Mensile");
    bus.waitFor(planner(), "Mese successivo");
    const auto listener = bus.listener(planner(), /*names=*/true);
    const auto told = [&](const std::string& key) {
        finestra().press(key);
        Lines names;
        std::string line = listener->readLine();
        for (; line.starts_with("name: "); line = listener->readLine()) {
            names.push_back(line.substr(6));
        }
        return names; // the focus comes last
    };
    told("Left"); // the totals come into sight
    EXPECT_EQ(told("Left"), Lines{"Neri Carla, mercoledì 29 marzo 2006"});
    EXPECT_EQ(told("Down"), (Lines{"Impegni di Verdi Anna", "Verdi Anna, mercoledì 29 marzo 2006"}));
}

TEST_F(LargeOffice, EveryCellOfTheMonthCanBeReadAndThePlannerEndsAtOnce) {
    request(requestBytes('M'));
    lookAt("Planner Mensile");
    bus.waitFor(planner(), "Mese successivo");
    const std::vector<std::string> names = bus.cellNames(planner(), "Planner mensile");
    ASSERT_GE(names.size(), Staff * Columns);
    EXPECT_EQ(std::count(names.begin(), names.begin() + Staff * Columns, ""), 0);
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
    EXPECT_TRUE(planner().endsWithin(End)) << "what was read is given back in no time";
}

} // namespace planner::e2e
