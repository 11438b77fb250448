// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/battute.h"
#include "e2e/support/scenario_accessibile.h"
#include "support/builders.h"

namespace planner::e2e {

namespace {

const std::string Mensile = "Planner Mensile";

class Tasks : public ScenarioAccessibile {
protected:
    void showOffice() {
        std::vector<std::string> names;
        std::string entries;
        for (int number = 1; number <= test::PersoneCompiti; ++number) {
            const std::string digits = std::to_string(number);
            names.push_back("Collab" + digits + " Neri");
            entries += test::bytesOf(
                test::riga(std::string(2 - digits.size(), '0') + digits, "20060316", {{1, "00002"}}));
        }
        archivio.writeStaff(names);
        archivio.write("wrighipl", entries);
        archivio.write("wgrafici", test::bytesOf(test::rigaGrafico("05", "20060403", "0007:30")));
        show();
    }
    void show() {
        request(asked);
        lookAt(Mensile);
        bus.waitFor(planner(), "Mese di Marzo 2006");
    }

    void carryOut(const test::Compito& compito) {
        for (const test::Battuta& battuta : compito.battute()) {
            tastiera.press(planner(), battuta);
            if (!battuta.mostra.empty()) {
                bus.waitFor(planner(), std::string(battuta.mostra));
            }
        }
        if (!compito.negliAppunti.empty()) {
            const std::string pasted = schermo.tool({PASTE_FILE});
            EXPECT_NE(pasted.find(compito.negliAppunti), std::string::npos) << pasted;
        }
        if (!compito.risposta.empty()) {
            EXPECT_EQ(ospite.answer(), answeredWith(std::string(compito.risposta), asked));
        }
        if (!compito.stampa.empty()) {
            EXPECT_TRUE(
                comesTrue([&] { return printed(compito.stampa).find("Collab60") != std::string::npos; }));
        }
    }

    /// What a printed file in the user's home says; empty until it is whole.
    std::string printed(std::string_view name) const {
        const std::string file = utente.home() + "/" + std::string(name);
        return schermo.tryTool({"pdftotext", file, "-"}).output;
    }

    const std::string asked = requestBytes('M');
    Battitore tastiera{schermo, Mensile};
};

} // namespace

TEST_F(Tasks, AreDoneByKeysAloneEachWithFewOfThem) {
    showOffice();
    for (const test::Compito& compito : test::Compiti) {
        SCOPED_TRACE(compito.nome);
        EXPECT_LE(compito.quante(), test::MassimoBattute);
        carryOut(compito);
        if (!compito.risposta.empty() && &compito != &test::Compiti.back()) {
            show();
        }
    }
    EXPECT_EQ(planner().exitCode(), 0);
}

} // namespace planner::e2e
