// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

namespace planner::e2e {

namespace {

class Keyboard : public ScenarioAccessibile {
protected:
    void show(const std::string& bytes, const std::string& title) {
        request(bytes);
        lookAt(title);
        bus.waitFor(planner(), "Informazioni");
    }
    static constexpr std::chrono::seconds Repeats{2}; // a held key repeats after less than a second
};

/// A key that is held down as long as the object lives.
class HeldKey {
public:
    HeldKey(const Schermo& schermo, std::string key) : m_schermo(schermo), m_key(std::move(key)) {
        m_schermo.tool({"xdotool", "keydown", m_key});
    }
    ~HeldKey() { m_schermo.tryTool({"xdotool", "keyup", m_key}); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    const Schermo& m_schermo;
    std::string m_key;
};

} // namespace

TEST_F(Keyboard, TheYearlyPlannerAnswersTheIncomingDayWhereverTheFocusHasBeen) {
    archivio.writeOffice(2018, 12); // begins with a Monday: the grid's first cell is a day
    const std::string asked = inYear("2018", requestBytes('A', "20180605"));
    show(asked, "Planner Annuale");
    EXPECT_TRUE(tabTo("Uscita"));
    EXPECT_TRUE(tabTo("Planner annuale", "shift+Tab"));
    EXPECT_TRUE(tabTo("Calendario", "shift+Tab"));
    EXPECT_TRUE(tabTo("Planner annuale"));
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20180605", asked));
}

TEST_F(Keyboard, AHeldEscapeClosesTheStaffListOnly) {
    const std::string asked = requestBytes('M');
    show(asked, "Planner Mensile");
    finestra().press("ctrl+l");
    const Finestra list = window(planner(), "Selezione Collaboratori");
    list.activate();
    {
        const HeldKey escape(schermo, "Escape");
        EXPECT_TRUE(list.disappears());
        EXPECT_TRUE(comesTrue([&] { return finestra().isActive(); })) << "it gets the repetitions";
        EXPECT_FALSE(comesTrue([&] { return !finestra().isVisible(); }, Repeats));
    }
    EXPECT_FALSE(ospite.isTold());
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", asked));
}

TEST_F(Keyboard, LettersThatAreNoCommandAndDigitsMoveNothingInTheMonth) {
    const std::string asked = requestBytes('M');
    show(asked, "Planner Mensile");
    const Casella picked = casellaConScadenze(archivio, 3);
    pick(picked);
    finestra().type("abcdefghjklmoqrtuvwxyzRBDM0123456789");
    finestra().press("Return"); // on the current cell
    EXPECT_EQ(ospite.answer(), answeredWith(picked.giorno + picked.codice + "D", asked));
}

TEST_F(Keyboard, LettersThatAreNoCommandAndDigitsMoveNothingInTheYear) {
    const std::string asked = requestBytes('A');
    show(asked, "Planner Annuale"); // the day's numbers stand in the cells
    finestra().type("0123456789glm");
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", asked));
}

TEST_F(Keyboard, TheSpaceBarGoesThroughThePeriodAndNoFurther) {
    archivio.writeStaff({"Neri A", "Neri B", "Neri C", "Neri D", "Neri E", "Neri F", "Neri G"});
    const std::string asked = requestBytes('M'); // for the staff member "07"
    show(asked, "Planner Mensile");
    ASSERT_TRUE(tabTo("Mese successivo"));
    for (const char* month :
         {"Aprile", "Maggio", "Giugno", "Luglio", "Agosto", "Settembre", "Ottobre", "Novembre", "Dicembre"}) {
        finestra().press("space");
        bus.waitFor(planner(), "Mese di " + std::string(month) + " 2006");
    }
    EXPECT_EQ(bus.focused(planner()), "Planner mensile") << "not on another command";
    finestra().press("space"); // on the cell under the cursor
    bus.waitFor(planner(), "Impegni di Neri G");
    EXPECT_TRUE(finestra().isVisible());
    EXPECT_FALSE(ospite.isTold());
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), answeredWith("2006121507E", asked));
}

} // namespace planner::e2e
