// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace planner::test {

/// Room for what is said after one key.
inline constexpr std::size_t PostiFrasi = 3;

/// One thing that the user does on the keyboard: a key with those held down with it, or a text typed at once.
struct Battuta {
    std::string_view tasto;  // as the program's shortcuts are written; for a text, what it is, in Italian
    std::string_view testo;  // empty for a key
    std::string_view mostra; // the control that shows by then, by its accessible name; empty for none
    std::string_view apre;   // the title of the window that comes; empty for none
    bool chiude = false;     // the window goes that came last
    /// What a screen reader says then, in this order and nothing else; after a text, what it says at last.
    std::array<std::string_view, PostiFrasi> frasi{};

    constexpr std::span<const std::string_view> dette() const {
        std::size_t count = 0;
        while (count < frasi.size() && !frasi[count].empty()) {
            ++count;
        }
        return {frasi.data(), count};
    }
    template <typename... Frasi>
    constexpr Battuta dice(Frasi... dette) const {
        Battuta battuta = *this;
        battuta.frasi = {dette...};
        return battuta;
    }
};

constexpr Battuta premi(std::string_view tasto, std::string_view mostra = {}) {
    return {tasto, {}, mostra, {}};
}
constexpr Battuta scrivi(std::string_view cheCosa, std::string_view testo) {
    return {cheCosa, testo, {}, {}};
}
constexpr Battuta apri(std::string_view tasto, std::string_view finestra, std::string_view mostra = {}) {
    return {tasto, {}, mostra, finestra};
}
constexpr Battuta chiudi(std::string_view tasto) {
    return {tasto, {}, {}, {}, true};
}

/// Room for more than a task may take, so that a test can tell.
inline constexpr std::size_t PostiBattute = 12;
/// No task takes more.
inline constexpr std::size_t MassimoBattute = 8;

/// What an office does every day, by keys alone, from the planner's grid on.
struct Compito {
    std::string_view nome;  // Italian, as the guide has it
    std::string_view fatto; // said after one of the keys: whoever hears it knows that it is done
    std::array<Battuta, PostiBattute> posti;
    std::string_view negliAppunti{}; // a line that can be pasted afterwards
    std::string_view risposta{};     // what the host is told: day, staff code, action letter
    std::string_view stampa{};       // the file in the user's home, which ends with the last person

    constexpr std::size_t quante() const {
        std::size_t count = 0;
        while (count < posti.size() && !posti[count].tasto.empty()) {
            ++count;
        }
        return count;
    }
    constexpr std::span<const Battuta> battute() const { return {posti.data(), quante()}; }
};

/// The staff of the tasks: "Collab1 Neri" to "Collab60 Neri", of the codes "01" to "60", each with two
/// deadlines in March 2006; the fifth worked 7:30 hours on 3 April. The monthly planner is shown on 15 March.
inline constexpr int PersoneCompiti = 60;

/// The window of the office's program, which comes back with an answer, as a screen reader says it.
inline constexpr std::string_view Studio = "Programma dello studio";
inline constexpr std::string_view StudioDetto = "Programma dello studio frame.";
inline constexpr std::string_view StudioPulsante = "Clienti push button.";

inline constexpr std::string_view CampoPersonaDetto =
    "Cerca collaboratore text. parte del nome, o il codice.";
/// With the text looked for before, in which the toolkit leaves the last letter out; a letter replaces it.
inline constexpr std::string_view CampoCon60Detto =
    "Cerca collaboratore text. collab6 selected. parte del nome, o il codice.";
inline constexpr std::string_view CampoCon5Detto =
    "Cerca collaboratore text. collab selected. parte del nome, o il codice.";
inline constexpr std::string_view TestoSostituito = "Selection deleted.";
inline constexpr std::string_view CampoDataDetto = "Vai alla data text. 15/8.";
inline constexpr std::string_view MensileDetto = "Planner Mensile.";

/// In the order in which they follow on each other. An answer hides the planner; the next task begins with
/// the same request.
inline constexpr std::array Compiti{
    Compito{"Trovare una persona fra sessanta",
            "Impegni di Collab60 Neri: 2 scadenze.",
            {premi("Ctrl+F").dice(CampoPersonaDetto), scrivi("il nome", "collab60"),
             premi("Return", "Impegni di Collab60 Neri")
                 .dice("Impegni di Collab60 Neri: 2 scadenze.",
                       "Planner mensile nessun impegno. Collab60 Neri, mercoledì 15 marzo 2006.")}},
    Compito{"Leggere i totali di una persona",
            "Impegni di Collab5 Neri: 2 scadenze.",
            {premi("Ctrl+F").dice(CampoCon60Detto), scrivi("il nome", "collab5").dice(TestoSostituito),
             premi("Return", "Scadenze: 2")
                 .dice("Impegni di Collab5 Neri: 2 scadenze.",
                       "Planner mensile nessun impegno. Collab5 Neri, mercoledì 15 marzo 2006.")}},
    Compito{"Passare al mese dopo",
            "aprile 2006, nessun impegno. Collab5 Neri, sabato 15 aprile 2006.",
            {premi("Ctrl+PgDown", "Mese di Aprile 2006")
                 .dice("aprile 2006, nessun impegno. Collab5 Neri, sabato 15 aprile 2006.")}},
    Compito{
        "Aprire il grafico della persona scelta",
        "Planner dialog Ore di Collab5 Neri - aprile 2006: totale 7:30, media 7:30 su 1 giorno "
        "Frecce o mouse: leggere i valori.",
        {apri("Ctrl+G", "Planner", "Tipo Grafico")
             .dice("Planner dialog Ore di Collab5 Neri - aprile 2006: totale 7:30, media 7:30 su 1 giorno "
                   "Frecce o mouse: leggere i valori.",
                   "Grafico. List with 31 items.")}},
    Compito{"Copiare i valori del grafico e chiuderlo",
            "Valori copiati.",
            {premi("Ctrl+C", "Valori copiati.").dice("Valori copiati."),
             chiudi("Esc").dice(MensileDetto,
                                "Planner mensile nessun impegno. Collab5 Neri, sabato 15 aprile 2006.")},
            "3\t7:30\t7,5"},
    Compito{"Spuntare tre persone nell'elenco e chiuderlo",
            "spuntato, 3 spuntati su 60.",
            {apri("Ctrl+L", "Selezione Collaboratori", "0 spuntati su 60")
                 .dice("Selezione Collaboratori.", "Collaboratori. 0 spuntati su 60."),
             scrivi("il nome", "collab12").dice("Collab12 Neri, 12, Collab12 Neri, non spuntato."),
             premi("Space", "1 spuntato su 60").dice("spuntato, 1 spuntato su 60."),
             scrivi("il nome", "collab34").dice("Collab34 Neri, 34, Collab34 Neri, non spuntato."),
             premi("Space", "2 spuntati su 60").dice("spuntato, 2 spuntati su 60."),
             scrivi("il nome", "collab56").dice("Collab56 Neri, 56, Collab56 Neri, non spuntato."),
             premi("Space", "3 spuntati su 60").dice("spuntato, 3 spuntati su 60."),
             chiudi("Esc").dice(MensileDetto,
                                "Planner mensile nessun impegno. Collab5 Neri, sabato 15 aprile 2006.")}},
    Compito{"Inserire un impegno per una persona e un giorno",
            StudioDetto,
            {premi("Ctrl+F").dice(CampoCon5Detto), scrivi("il nome", "collab33").dice(TestoSostituito),
             premi("Return").dice("Impegni di Collab33 Neri: nessun impegno.",
                                  "Planner mensile nessun impegno. Collab33 Neri, sabato 15 aprile 2006."),
             premi("Ctrl+D").dice(CampoDataDetto), scrivi("la data", "20/6"),
             premi("Return", "Mese di Giugno 2006")
                 .dice("Planner mensile giugno 2006, nessun impegno. Collab33 Neri, martedì 20 giugno 2006."),
             apri("Ctrl+N", "Inserimento Impegni")
                 .dice("Inserimento Impegni dialog.",
                       "Tipo di inserimento panel. Tipo di inserimento. Impegno. selected radio button"),
             chiudi("Return").dice(StudioDetto, StudioPulsante)},
            {},
            "2006062033I"},
    Compito{
        "Andare a un giorno di tre mesi dopo",
        "Planner mensile giugno 2006, nessun impegno. Collab7 Neri, giovedì 15 giugno 2006.",
        {premi("Ctrl+D").dice(CampoDataDetto), scrivi("la data", "15/6"),
         premi("Return", "Mese di Giugno 2006")
             .dice("Planner mensile giugno 2006, nessun impegno. Collab7 Neri, giovedì 15 giugno 2006.")}},
    Compito{"Stampare il mese",
            "Il planner è stato stampato.",
            {apri("Ctrl+P", "Stampa").dice("Stampa dialog.", "Stampante panel. Nome: combo box."),
             chiudi("Return").dice(MensileDetto,
                                   "Planner mensile nessun impegno. Collab7 Neri, giovedì 15 giugno 2006.",
                                   "Il planner è stato stampato.")},
            {},
            {},
            "Mese di Giugno 2006.pdf"},
    Compito{"Chiudere il planner",
            StudioDetto,
            {premi("Esc").dice(StudioDetto, StudioPulsante)},
            {},
            "20060615  E"},
};

} // namespace planner::test
