// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/battute.h"
#include "e2e/support/lettore.h"
#include "e2e/support/scenario_accessibile.h"
#include "support/builders.h"

namespace planner::e2e {

namespace {

const std::string Mensile = "Planner Mensile";

class Tasks : public ScenarioAccessibile {
protected:
    void writeOffice() {
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
        checkOutcome(compito);
    }

    void checkOutcome(const test::Compito& compito) {
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

/// Without a look at the screen: keys go where the keyboard is, and each follows what is said after the one
/// before. Behind the planner stands the window of the office's program.
class SpokenTasks : public Tasks {
protected:
    SpokenTasks() { Finestra(schermo, studio, std::string(test::Studio)).activate(); }

    /// At its end the toolkit frees no key that the reader has not acknowledged.
    Environment plannerEnvironment() const override {
        Environment environment = Tasks::plannerEnvironment();
        environment["ASAN_OPTIONS"] += ":detect_leaks=0";
        return environment;
    }
    void showByEar() {
        show();
        lettore.hear("Planner mensile nessun impegno. Collab7 Neri, mercoledì 15 marzo 2006.");
    }
    void carryOutByEar(const test::Compito& compito) {
        for (const test::Battuta& battuta : compito.battute()) {
            SCOPED_TRACE(battuta.tasto);
            const bool key = battuta.testo.empty();
            schermo.tool(
                {"xdotool", key ? "key" : "type", key ? xKeys(battuta.tasto) : std::string(battuta.testo)});
            const bool answers = !compito.risposta.empty() && &battuta == &compito.battute().back();
            key && !answers ? hearEach(battuta.dette()) : hearAtLast(battuta.dette());
        }
        checkOutcome(compito);
    }
    /// These utterances and no other.
    void hearEach(std::span<const std::string_view> utterances) {
        for (const std::string_view utterance : utterances) {
            EXPECT_EQ(lettore.next(), utterance);
        }
    }
    /// These among others: each letter may find another row, and a window that goes may be heard first.
    void hearAtLast(std::span<const std::string_view> utterances) {
        for (const std::string_view utterance : utterances) {
            lettore.hear(std::string(utterance));
        }
    }

    Lettore lettore{bus, utente};
    const Processo studio{{OFFICE_FILE, std::string(test::Studio)}, bus.environment()};
};

} // namespace

TEST_F(Tasks, AreDoneByKeysAloneEachWithFewOfThem) {
    writeOffice();
    show();
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

TEST_F(SpokenTasks, AreDoneByEarAlone) {
    writeOffice();
    showByEar();
    for (const test::Compito& compito : test::Compiti) {
        SCOPED_TRACE(compito.nome);
        carryOutByEar(compito);
        if (!compito.risposta.empty() && &compito != &test::Compiti.back()) {
            showByEar();
        }
    }
    EXPECT_EQ(planner().exitCode(), 0);
}

} // namespace planner::e2e
