// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

#include <set>

namespace planner::e2e {

namespace {

class AccessibleNames : public ScenarioAccessibile {
protected:
    std::multiset<std::string> namesOf(const std::string& ruolo) const {
        std::multiset<std::string> names;
        for (const auto& controllo : bus.controls(planner())) {
            if (controllo.ruolo == ruolo) {
                names.insert(controllo.nome);
            }
        }
        return names;
    }
    void checkButtons(std::multiset<std::string> period) const {
        period.insert({"Uscita", "Selezione Collaboratori", "Filtri", "Agenda", "Consultazione",
                       "Inserimento impegni", "Planner non dettagliato", "Grafici", "Informazioni"});
        EXPECT_EQ(namesOf("push button"), period);
    }
};

} // namespace

TEST_F(AccessibleNames, TheMonthlyPlannerHasANameForEveryButtonAndItsGrid) {
    request(requestBytes('M'));
    lookAt("Planner Mensile");
    bus.waitFor(planner(), "Mese successivo");
    checkButtons({"Mese precedente", "Mese successivo", "Anno precedente", "Anno successivo"});
    EXPECT_EQ(namesOf("layered pane").count("Planner mensile"), 1U);
    EXPECT_EQ(namesOf("layered pane").count("Planner annuale"), 0U);
}

TEST_F(AccessibleNames, TheDailyPlannerHasANameForEveryButtonAndItsGrid) {
    request(requestBytes('G'));
    lookAt("Planner Giornaliero");
    bus.waitFor(planner(), "Giorno successivo");
    checkButtons({"Giorno precedente", "Giorno successivo"});
    EXPECT_EQ(namesOf("layered pane").count("Planner giornaliero"), 1U);
}

TEST_F(AccessibleNames, TheYearlyPlannerHasANameForEveryButtonAndItsGrid) {
    request(requestBytes('A'));
    lookAt("Planner Annuale");
    bus.waitFor(planner(), "Anno successivo");
    checkButtons({"Anno precedente", "Anno successivo"});
    EXPECT_EQ(namesOf("layered pane").count("Planner annuale"), 1U);
}

TEST_F(AccessibleNames, APickedCellIsASentenceAndItsTotalsAreNumbersWithTheirCaptions) {
    request(requestBytes('M'));
    lookAt("Planner Mensile");
    const Casella casella = casellaConScadenze(archivio, 3);
    EXPECT_EQ(namesOf("label").count(casella.scadenze), 0U) << "nobody is picked yet";
    pick(casella); // finds the cell by its sentence
    bus.waitFor(planner(), casella.scadenze);
}

TEST_F(AccessibleNames, TheDialogOfANewEntryHasANameForEveryChoice) {
    request(requestBytes('M'));
    lookAt("Planner Mensile");
    click("Inserimento impegni");
    bus.waitFor(planner(), "Conferma");
    EXPECT_EQ(namesOf("dialog"), std::multiset<std::string>{"Inserimento Impegni"});
    EXPECT_EQ(namesOf("radio button"), (std::multiset<std::string>{"Impegno", "Pratica"}));
    EXPECT_EQ(namesOf("push button").count("Annulla"), 1U);
    EXPECT_EQ(namesOf("push button").count(""), 0U);
}

TEST_F(AccessibleNames, APressOverTheBusDoesWhatAClickDoes) {
    request(requestBytes('M'));
    lookAt("Planner Mensile");
    press("Mese successivo");
    bus.waitFor(planner(), "Mese di Aprile 2006");
    click("Mese precedente");
    bus.waitFor(planner(), "Mese di Marzo 2006");
    press("Uscita");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
}

} // namespace planner::e2e
