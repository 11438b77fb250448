// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"
#include "support/builders.h"

namespace planner::e2e {

namespace {

/// Staff members whose names mean something in markup or in formats, fill their field, or are the same.
class HostileNames : public ScenarioAccessibile {
protected:
    HostileNames() { archivio.writeStaff(names); }

    void open(const std::string& keys, const std::string& title) {
        request(requestBytes('G'));
        lookAt("Planner Giornaliero");
        finestra().press(keys);
        window(planner(), title);
    }
    static std::string codeOf(std::size_t index) { return "0" + std::to_string(index + 1); }
    /// Throws when the first cell of a row says something else; `after` is what it says after the name.
    void checkCell(const std::string& table, std::size_t row, const std::string& after) const {
        bus.waitFor(planner(), {table, static_cast<int>(row), 0, names.at(row) + after});
    }

    static constexpr std::size_t JobTitleLength = 40; // the archive's names are longer than its job titles
    const std::vector<std::string> names{"Rossi Bruno",       "Rossi Bruno", "<b>Neri</b>",
                                         "Verdi &amp; Figli", "%1 %s %n",    "&Bianchi",
                                         std::string(50, 'W')};
};

} // namespace

TEST_F(HostileNames, AreShownAsTheyAreInTheStaffList) {
    open("ctrl+l", "Selezione Collaboratori");
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string jobTitle = names.at(i).substr(0, JobTitleLength); // the same as the name
        checkCell("Collaboratori", i, ", " + codeOf(i) + ", " + jobTitle + ", non spuntato");
    }
}

TEST_F(HostileNames, AreShownAsTheyAreInTheChart) {
    archivio.write("wgrafici", test::bytesOf(test::rigaGrafico("06", "20060315", "0008:15")));
    open("ctrl+g", "Planner");
    for (std::size_t i = 0; i < names.size(); ++i) {
        checkCell("Grafico", i,
                  " (" + codeOf(i) + "): " + (codeOf(i) == "06" ? "8 ore e 15 minuti" : "nessuna ora"));
    }
}

TEST_F(HostileNames, AreReadAsTheyAreUnderTheChart) {
    archivio.write("wgrafici", test::bytesOf(test::rigaGrafico("99", "20060315", "0008:15")));
    open("ctrl+g", "Planner");
    const Finestra chart = window(planner(), "Planner");
    for (std::size_t i = 0; i < names.size(); ++i) {
        chart.press("Right");
        bus.waitFor(planner(), names.at(i) + " (" + codeOf(i) + "): nessuna ora");
    }
}

} // namespace planner::e2e
