// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"
#include "support/builders.h"

namespace planner::e2e {

namespace {

/// The daily planner of a person without appointments, and its cells.
class Activation : public ScenarioAccessibile {
protected:
    Activation() {
        archivio.writeStaff({"Neri Carla"});
        archivio.write("wrighipl", test::bytesOf(std::vector<RigaPlanner>(2)));
    }
    void open() {
        request(asked);
        windowAfterMessages(planner(), Title);
        lookAt(Title);
        opened = leftOf(Eight);
    }
    /// The left edge of a full hour's cell.
    int leftOf(int ora) const { return bus.place(planner(), cell(ora)).x; }
    static Accessibilita::Cella cell(int ora) {
        constexpr int quarters = 4;
        return {"Planner giornaliero", 0, ora * quarters, sentence(std::to_string(ora) + ":00")};
    }
    static std::string sentence(const std::string& ora) {
        return "Neri Carla, mercoledì 15 marzo 2006, ore " + ora;
    }
    /// Scrolls away by keyboard.
    void scrollToEvening() const {
        finestra().press("End");
        bus.waitFor(planner(), sentence("23:45"));
        EXPECT_LT(leftOf(Eight), opened);
    }
    void checkAnswer() {
        finestra().press("Escape");
        EXPECT_EQ(ospite.answer(), answeredWith("2006031501E", asked)); // the cursor's day and person
    }

    static constexpr int Eight = 8;
    static constexpr const char* Title = "Planner Giornaliero";
    static constexpr const char* MissingLine =
        "Una riga degli impegni non è stata mostrata: un numero è troppo grande.";
    const std::string asked = requestBytes('G');
    int opened = 0;
};

} // namespace

TEST_F(Activation, ComingBackFromAnotherProgramShowsTheOfficeHoursAgain) {
    open();
    scrollToEvening();
    const Processo other(otherProgram("information", "Un altro programma"), schermo.environment());
    const Finestra box(schermo, other, "Planner");
    box.activate();
    EXPECT_TRUE(comesTrue([&] { return bus.focused(planner()).empty(); })) << "the planner has noticed";
    finestra().activate();
    EXPECT_TRUE(comesTrue([&] { return leftOf(Eight) == opened; }));
    checkAnswer();
}

TEST_F(Activation, ComingBackFromAMessageLeavesTheHoursWhereTheyAre) {
    const RigaPlanner endless = test::conOrario(test::riga("01", "20060315"), "09", "00", "9999900");
    archivio.write("wrighipl", test::bytesOf(endless)); // said with every fill
    open();
    scrollToEvening();
    const int scrolled = leftOf(Eight);
    click("Planner non dettagliato");
    confirmMessage(planner(), "critical", MissingLine);
    EXPECT_TRUE(comesTrue([&] { return finestra().isActive(); }));
    // The window has heard that it is the active one before it hears of this key.
    finestra().press("Left");
    bus.waitFor(planner(), sentence("23:30"));
    EXPECT_EQ(leftOf(Eight), scrolled);
    checkAnswer();
}

} // namespace planner::e2e
