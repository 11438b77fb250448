// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/lettore.h"
#include "e2e/support/scenario_accessibile.h"
#include "support/builders.h"

namespace planner::e2e {

namespace {

using test::conOrario;
using test::riga;

/// What the user presses, and each utterance that follows.
struct Detto {
    std::string tasti;
    std::vector<std::string> parole;
};

class ScreenReader : public ScenarioAccessibile {
protected:
    /// Opens the planner of the kind before the ears of the screen reader.
    void open(char tipo, const std::string& day, const std::string& title, const std::string& cell) {
        archivio.writeStaff({"Neri Carla", "Verdi Anna"});
        archivio.write("wrighipl", entries());
        request(requestBytes(tipo, day));
        lookAt(title);
        lettore.hear(cell);
    }

    /// Presses the keys in the window, one after the other: each is followed by its utterances and no other.
    void check(const Finestra& window, const std::vector<Detto>& table) {
        for (const Detto& detto : table) {
            window.press(detto.tasti);
            for (const std::string& utterance : detto.parole) {
                EXPECT_EQ(lettore.next(), utterance) << "after " << detto.tasti;
            }
        }
    }

    static std::string entries() {
        return test::bytesOf(riga("01", "20060316", {{1, "00002"}, {2, "00001"}})) +
               test::bytesOf(riga("02", "20060316", {{8, "00001"}})) +
               test::bytesOf(
                   conOrario(riga("01", "20060315", {{5, "00001"}, {9, "00001"}}), "08", "30", "0000115")) +
               test::bytesOf(riga("02", "20061225", {{7, "00003"}}));
    }

    Lettore lettore{bus, utente};
};

} // namespace

TEST_F(ScreenReader, SaysOfTheMonthOneThingForEachKey) {
    open('M', "20060315", "Planner Mensile",
         "Planner mensile scadenze. Neri Carla, mercoledì 15 marzo 2006: 1 scadenza.");
    check(
        finestra(),
        {{"Right", {"scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica."}},
         {"Right", {"nessun impegno. Neri Carla, venerdì 17 marzo 2006."}},
         {"Down", {"nessun impegno. Verdi Anna, venerdì 17 marzo 2006."}},
         {"Left", {"impegni vari. Verdi Anna, giovedì 16 marzo 2006: 1 impegno vario."}},
         {"space", {"Impegni di Verdi Anna: 1 impegno vario."}},
         {"Up", {"scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica."}},
         {"ctrl+space",
          {"Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica. Totali di marzo 2006: 3 scadenze "
           "(1 conclusa), 1 pratica. Poi nessun altro impegno."}},
         {"ctrl+c", {"La tabella è stata copiata."}},
         {"alt+Right", {"aprile 2006, nessun impegno. Neri Carla, domenica 16 aprile 2006."}},
         {"alt+Left",
          {"marzo 2006, scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica."}},
         {"ctrl+Left", {"scadenze. Neri Carla, mercoledì 15 marzo 2006: 1 scadenza."}},
         {"ctrl+Left", {"Nella riga non c'è altro prima di questa casella."}},
         {"ctrl+m", {"planner non dettagliato, scadenze. Neri Carla, mercoledì 15 marzo 2006: 1 scadenza."}},
         {"ctrl+m", {"planner dettagliato, scadenze. Neri Carla, mercoledì 15 marzo 2006: 1 scadenza."}},
         {"shift+F10", {"Consultazione."}},
         {"Down", {"Inserimento impegni."}},
         {"Escape", {"Planner mensile scadenze. Neri Carla, mercoledì 15 marzo 2006: 1 scadenza."}},
         {"ctrl+minus", {"Ingrandimento al 90 %."}},
         {"ctrl+0", {"Ingrandimento al 100 %."}}});
}

TEST_F(ScreenReader, NamesAFieldAndSaysWhereItLeadsWithTheHolidaysName) {
    open('M', "20061226", "Planner Mensile",
         "Planner mensile nessun impegno. Neri Carla, martedì 26 dicembre 2006, Santo Stefano.");
    check(finestra(), {{"ctrl+f", {"Cerca collaboratore text. parte del nome, o il codice."}},
                       {"ctrl+d", {"Vai alla data text. 15/8."}}});
    finestra().type("25");
    check(finestra(),
          {{"Return", {"Planner mensile nessun impegno. Neri Carla, lunedì 25 dicembre 2006, Natale."}},
           {"ctrl+f", {"Cerca collaboratore text. parte del nome, o il codice."}}});
    finestra().type("verdi");
    check(finestra(), {{"Return",
                        {"Impegni di Verdi Anna: 3 note riservate.",
                         "Planner mensile note riservate. Verdi Anna, lunedì 25 dicembre 2006, Natale: "
                         "3 note riservate."}}});
}

TEST_F(ScreenReader, SaysOfTheDayFromWhenToWhen) {
    open('G', "20060315", "Planner Giornaliero",
         "Planner giornaliero nessun impegno. Neri Carla, mercoledì 15 marzo 2006, ore 8:00.");
    check(finestra(),
          {{"Right", {"nessun impegno. Neri Carla, mercoledì 15 marzo 2006, ore 8:15."}},
           {"Right",
            {"scadenze. Neri Carla, mercoledì 15 marzo 2006, ore 8:30: 1 scadenza dalle 8:30 alle 9:45."}},
           {"Down", {"nessun impegno. Verdi Anna, mercoledì 15 marzo 2006, ore 8:30."}},
           {"alt+Right",
            {"giovedì 16 marzo 2006, nessun impegno. Verdi Anna, giovedì 16 marzo 2006, ore 8:00."}},
           {"alt+Right",
            {"venerdì 17 marzo 2006, nessun impegno. Verdi Anna, venerdì 17 marzo 2006, ore 8:00."}}});
}

TEST_F(ScreenReader, SaysOfTheYearWhatADayHolds) {
    auto months = test::annoPlanner("2006", {{3, 17}});
    months[2].testi[16].assign("00010002000100000000000000000000000000000000");
    archivio.write("wplanner", test::bytesOf(months));
    open('A', "20060315", "Planner Annuale",
         "Planner annuale scadenze, pratiche. mercoledì 15 marzo 2006: 1 scadenza, 1 scadenza conclusa, "
         "2 pratiche.");
    check(finestra(), {{"Right", {"nessun impegno. giovedì 16 marzo 2006."}},
                       {"Down", {"nessun impegno. giovedì 13 aprile 2006."}},
                       {"Home", {"nessun giorno."}}});
}

TEST_F(ScreenReader, ComesBackFromADialogToTheCell) {
    open('M', "20060316", "Planner Mensile",
         "Planner mensile scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica.");
    check(finestra(), {{"ctrl+n",
                        {"Inserimento Impegni dialog.",
                         "Tipo di inserimento panel. Tipo di inserimento. Impegno. selected radio button"}}});
    check(window(planner(), "Inserimento Impegni"),
          {{"Down", {"Tipo di inserimento. Pratica. selected radio button"}},
           {"Escape",
            {"Planner Mensile.",
             "Planner mensile scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, "
             "1 pratica."}}});
}

TEST_F(ScreenReader, SaysEachRowOfTheStaffListOnceAndItsTicks) {
    open('M', "20060316", "Planner Mensile",
         "Planner mensile scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica.");
    finestra().press("ctrl+l");
    lettore.hear("Collaboratori. 0 spuntati su 2.");
    const Finestra list = window(planner(), "Selezione Collaboratori");
    check(list, {{"Down", {"Neri Carla, 01, Neri Carla, non spuntato."}},
                 {"Down", {"Verdi Anna, 02, Verdi Anna, non spuntato."}},
                 {"space", {"spuntato, 1 spuntato su 2."}},
                 {"Up", {"Neri Carla, 01, Neri Carla, non spuntato."}},
                 {"Down", {"Verdi Anna, 02, Verdi Anna, spuntato."}},
                 {"space", {"non spuntato, 0 spuntati su 2."}},
                 {"Escape",
                  {"Planner Mensile.",
                   "Planner mensile scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, "
                   "1 pratica."}}});
}

TEST_F(ScreenReader, SaysWhatAMessageSaysAndWhereTheFocusIsAfterIt) {
    open('M', "20060316", "Planner Mensile",
         "Planner mensile scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica.");
    check(finestra(), {{"ctrl+g",
                        {"alert Planner. Selezionare un collaboratore prima di visualizzare il grafico.",
                         "OK push button."}}});
    check(window(planner(), "Planner"),
          {{"Return",
            {"Planner Mensile.",
             "Planner mensile scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, "
             "1 pratica."}}});
}

TEST_F(ScreenReader, SaysTheValuesOfAChart) {
    archivio.write("wgrafici", test::bytesOf(test::rigaGrafico("01", "20060302", "0007:30")));
    open('M', "20060316", "Planner Mensile",
         "Planner mensile scadenze, pratiche. Neri Carla, giovedì 16 marzo 2006: 2 scadenze, 1 pratica.");
    finestra().press("space");
    EXPECT_EQ(lettore.next(), "Impegni di Neri Carla: 3 scadenze (1 conclusa), 1 pratica.");
    finestra().press("ctrl+g");
    lettore.hear("Planner dialog Ore di Neri Carla - marzo 2006: totale 7:30, media 7:30 su 1 giorno "
                 "Frecce o mouse: leggere i valori.");
    lettore.hear("Grafico. List with 31 items.");
    check(window(planner(), "Planner"), {{"Right", {"1 marzo: nessuna ora."}},
                                         {"Right", {"2 marzo: 7 ore e 30 minuti."}},
                                         {"ctrl+c", {"Valori copiati."}}});
}

} // namespace planner::e2e
