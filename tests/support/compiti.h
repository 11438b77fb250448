// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace planner::test {

/// One thing that the user does on the keyboard: a key with those held down with it, or a text typed at once.
struct Battuta {
    std::string_view tasto;  // as the program's shortcuts are written; for a text, what it is, in Italian
    std::string_view testo;  // empty for a key
    std::string_view mostra; // the control that shows by then, by its accessible name; empty for none
    std::string_view apre;   // the title of the window that comes; empty for none
    bool chiude = false;     // the window goes that came last
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
    std::string_view nome; // Italian, as the guide has it
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

/// In the order in which they follow on each other. An answer hides the planner; the next task begins with
/// the same request.
inline constexpr std::array Compiti{
    Compito{"Trovare una persona fra sessanta",
            {premi("Ctrl+F"), scrivi("il nome", "collab60"), premi("Return", "Impegni di Collab60 Neri")}},
    Compito{"Leggere i totali di una persona",
            {premi("Ctrl+F"), scrivi("il nome", "collab5"), premi("Return", "Scadenze: 2")}},
    Compito{"Passare al mese dopo", {premi("Ctrl+PgDown", "Mese di Aprile 2006")}},
    Compito{"Aprire il grafico della persona scelta", {apri("Ctrl+G", "Planner", "Tipo Grafico")}},
    Compito{"Copiare i valori del grafico e chiuderlo",
            {premi("Ctrl+C", "Valori copiati."), chiudi("Esc")},
            "3\t7:30\t7,5"},
    Compito{"Spuntare tre persone nell'elenco e chiuderlo",
            {apri("Ctrl+L", "Selezione Collaboratori", "0 spuntati su 60"), scrivi("il nome", "collab12"),
             premi("Space", "1 spuntato su 60"), scrivi("il nome", "collab34"),
             premi("Space", "2 spuntati su 60"), scrivi("il nome", "collab56"),
             premi("Space", "3 spuntati su 60"), chiudi("Esc")}},
    Compito{"Inserire un impegno per una persona e un giorno",
            {premi("Ctrl+F"), scrivi("il nome", "collab33"), premi("Return"), premi("Ctrl+D"),
             scrivi("la data", "20/6"), premi("Return", "Mese di Giugno 2006"),
             apri("Ctrl+N", "Inserimento Impegni"), chiudi("Return")},
            {},
            "2006062033I"},
    Compito{"Andare a un giorno di tre mesi dopo",
            {premi("Ctrl+D"), scrivi("la data", "15/6"), premi("Return", "Mese di Giugno 2006")}},
    Compito{
        "Stampare il mese", {apri("Ctrl+P", "Stampa"), chiudi("Return")}, {}, {}, "Mese di Giugno 2006.pdf"},
    Compito{"Chiudere il planner", {premi("Esc")}, {}, "20060615  E"},
};

} // namespace planner::test
