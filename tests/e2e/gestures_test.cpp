// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"
#include "support/builders.h"

#include <future>

namespace planner::e2e {

namespace {

class Gestures : public ScenarioAccessibile {
protected:
    void showMonth() {
        request(march);
        lookAt("Planner Mensile");
    }
    /// Turns the wheel over the grid until the cell is in sight.
    bool scrollTo(const Accessibilita::Cella& cella) const {
        const Area grid = bus.place(planner(), cella.tabella);
        return comesTrue([&] {
            const Area place = bus.place(planner(), cella);
            const bool inSight = place.y + place.height < grid.y + grid.height;
            if (!inSight) {
                schermo.click(grid.x + grid.width / 2, grid.y + grid.height / 2, {.tasto = WheelDown});
            }
            return inSight;
        });
    }
    /// Everything that the user has done so far has had its effect: keys and clicks are taken in their order.
    void settle() const {
        finestra().press("shift+F1");
        const Finestra information = window(planner(), "Informazioni");
        information.press("Escape");
        EXPECT_TRUE(information.disappears());
    }

    static constexpr int RightButton = 3;
    static constexpr int WheelDown = 5;
    const std::string march = requestBytes('M', "20060331");
};

class QuickHost : public Gestures {
protected:
    /// Takes the answer, and asks for the next thing at once.
    std::string takeAnswerAndAsk(const std::string& next) {
        std::string answer = ospite.answer();
        archivio.writeTransit(next);
        ospite.startWaiting();
        EXPECT_TRUE(ospite.signal());
        return answer;
    }
};

} // namespace

TEST_F(Gestures, TheAgendaOfACellsMenuAnswersThatDayAndPerson) {
    showMonth();
    const Casella picked = casellaConScadenze(archivio, 3);
    pick(picked, {.tasto = RightButton});
    schermo.tool({"xdotool", "key", "Down", "Down", "Down", "Return"}); // the menu's third command
    EXPECT_EQ(ospite.answer(), answeredWith(picked.giorno + picked.codice + "A", march));
    EXPECT_TRUE(comesToWait());
}

TEST_F(QuickHost, ADoubleClickOnTheNextYearAnswersOnceAndLeavesTheNextRequestAlone) {
    const std::string year = requestBytes('A');
    request(year);
    lookAt("Planner Annuale");
    for (const int pause : {20, 60, 120, 200, 300}) {
        SCOPED_TRACE(std::to_string(pause) + " ms");
        auto answered = std::async(std::launch::async, [&] { return takeAnswerAndAsk(year); });
        bus.click(planner(), "Anno successivo", {.volte = 2, .pausa = std::chrono::milliseconds{pause}});
        EXPECT_EQ(answered.get(), answeredWith("20060315  S", year));
        lookAt("Planner Annuale");
        settle();
        EXPECT_FALSE(ospite.isTold());
        EXPECT_TRUE(finestra().isVisible());
    }
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", year));
    EXPECT_EQ(planner().exitCode(), 0);
}

TEST_F(Gestures, WithoutAppointmentsAClickFarDownAnswersItsDayAndPersonWithoutAMessage) {
    constexpr int people = 60;
    std::vector<std::string> staff;
    for (int i = 1; i <= people; ++i) {
        staff.push_back("Collaboratore " + std::to_string(i));
    }
    archivio.writeStaff(staff);
    archivio.write("wrighipl", test::bytesOf(std::vector<RigaPlanner>(3)));
    showMonth();
    const Casella picked{
        {"Planner mensile", 19, 23, "Collaboratore 20, mercoledì 22 marzo 2006"}, "20060322", "20", ""};
    ASSERT_TRUE(scrollTo(picked.cella));
    pick(picked);
    settle();
    EXPECT_FALSE(Finestra::find(schermo, planner(), "Planner").has_value()) << "a message";
    click("Agenda");
    EXPECT_EQ(ospite.answer(), answeredWith(picked.giorno + picked.codice + "A", march));
}

} // namespace planner::e2e
