// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

#include <iterator>
#include <set>
#include <sstream>

namespace planner::e2e {

namespace {

const std::string Mensile = "Planner Mensile";

class Keys : public ScenarioAccessibile {
protected:
    void show(char tipoplanner, const std::string& title) {
        asked = requestBytes(tipoplanner);
        request(asked);
        lookAt(title);
        bus.waitFor(planner(), "Informazioni");
    }
    void showStaff(int count) {
        std::vector<std::string> names;
        for (int number = 1; number <= count; ++number) {
            names.push_back("Neri Collab" + std::to_string(number));
        }
        archivio.writeStaff(names);
        show('M', Mensile);
    }
    /// Opens the field of the keys, writes, and presses the last key.
    void write(const std::string& keys, const std::string& text, const std::string& last) const {
        finestra().press(keys);
        finestra().type(text);
        finestra().press(last);
    }

    std::string asked;
};

} // namespace

TEST_F(Keys, TheSixtiethOfSixtyIsFoundByName) {
    showStaff(60);
    write("ctrl+f", "collab60", "Return");
    bus.waitFor(planner(), "Impegni di Neri Collab60");
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), answeredWith("2006031560E", asked));
}

TEST_F(Keys, ADateIsGoneToAndEscapeClosesTheFieldAlone) {
    showStaff(3);
    write("ctrl+d", "20/8", "Escape");
    EXPECT_FALSE(ospite.isTold());
    write("ctrl+d", "15/8", "Return");
    bus.waitFor(planner(), "Mese di Agosto 2006");
    write("ctrl+d", "1/1/1999", "Return");
    bus.waitFor(planner(), "01/01/1999 è fuori del periodo (dal 01/03/2006 al 31/12/2006).");
    finestra().press("Escape"); // the field
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer().substr(0, 8), closedOn("20060815", asked).substr(0, 8));
}

TEST_F(Keys, TheFirstArrowOfTheDayStartsAtEight) {
    archivio.writeStaff({"Neri A", "Neri B"});
    show('G', "Planner Giornaliero");
    finestra().press("Right");
    bus.waitFor(planner(), "Neri A, mercoledì 15 marzo 2006, ore 8:15");
}

TEST_F(Keys, TheMenuKeyAndShiftF10OpenOneMenu) {
    showStaff(3);
    const int before = Finestra::count(schermo, planner());
    for (const char* key : {"shift+F10", "Menu"}) {
        finestra().press(key);
        EXPECT_TRUE(comesTrue([&] { return Finestra::count(schermo, planner()) == before + 1; })) << key;
        schermo.tool({"xdotool", "key", "Escape"}); // to the menu, which holds the keyboard
        EXPECT_TRUE(comesTrue([&] { return Finestra::count(schermo, planner()) == before; })) << key;
    }
    EXPECT_FALSE(ospite.isTold());
}

TEST_F(Keys, F1OpensTheGuideWhichClosesAlone) {
    showStaff(3);
    finestra().press("F1");
    const Finestra guide = window(planner(), "Guida al planner");
    bus.waitFor(planner(), "Capitoli");
    guide.press("Escape");
    EXPECT_TRUE(guide.disappears());
    EXPECT_TRUE(finestra().isVisible());
    EXPECT_FALSE(ospite.isTold());
}

TEST_F(Keys, CtrlPPrintsEveryNameAndDayIntoAFile) {
    showStaff(30);
    finestra().press("ctrl+p");
    const Finestra dialog = window(planner(), "Stampa");
    const std::string file = archivio.path("stampa.pdf");
    bus.waitFor(planner(), "File di output:");
    dialog.press("alt+f");
    dialog.press("ctrl+a");
    dialog.type(file);
    dialog.press("Return");
    EXPECT_TRUE(dialog.disappears());
    Esito read; // once the file is whole
    ASSERT_TRUE(comesTrue([&] {
        read = schermo.tryTool({"pdftotext", "-layout", file, "-"});
        return read.exitCode == 0;
    }));
    std::istringstream text(read.output);
    const std::set<std::string> words{std::istream_iterator<std::string>(text), {}};
    for (int number = 1; number <= 30; ++number) {
        EXPECT_TRUE(words.contains("Collab" + std::to_string(number))) << number;
    }
    for (int day = 1; day <= 31; ++day) {
        EXPECT_TRUE(words.contains(std::to_string(day))) << day;
    }
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer().size(), RequestLength);
}

} // namespace planner::e2e
