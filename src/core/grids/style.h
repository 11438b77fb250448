// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/cella.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace planner {

struct Rgb {
    std::uint8_t red, green, blue;
    friend constexpr bool operator==(Rgb, Rgb) = default;
};

/// The colours of the grids. `predefinito` is what a cell has that has no colour of its own.
enum class Colore : std::uint8_t {
    predefinito,
    nero,
    bianco,
    rosso,
    navy,
    giallo,
    gialloChiaro,
    ciano,
    grigioChiaro,
    azzurro,
    intestazione,
    // The program's own, for what the given ones leave open.
    linea,
    lineaForte,
    bordoFascia,
    oggi,
    oggiSuScuro,
    riepilogo,
};

inline constexpr std::array<Rgb, 17> ColoriRgb{{
    {0, 0, 0},       // predefinito, as text colour
    {0, 0, 0},       // nero: ordinary text
    {255, 255, 255}, // bianco: text of marked days
    {255, 0, 0},     // rosso: Saturdays, Sundays, holidays
    {0, 0, 128},     // navy: captions, marked days
    {244, 244, 1},   // giallo: highlighted staff row
    {255, 255, 215}, // gialloChiaro: plain staff rows
    {0, 255, 255},   // ciano: selected cell
    {224, 224, 224}, // grigioChiaro: days of the yearly grid
    {176, 208, 255}, // azzurro: quarters of an appointment
    {240, 240, 240}, // intestazione: fixed cells
    {200, 200, 188}, // linea: between cells; no meaning hangs on it
    {112, 112, 104}, // lineaForte: at the end of a week or an hour, and below the header
    {70, 110, 180},  // bordoFascia: edge of an appointment's bar
    {0, 110, 60},    // oggi: frame of today
    {144, 238, 170}, // oggiSuScuro: the same on a marked day
    {64, 88, 128},   // riepilogo: a bar in the header
}};

constexpr Rgb rgb(Colore colore) {
    return ColoriRgb.at(static_cast<std::size_t>(colore));
}

/// Lines around the current and the selected cell, and above and below the highlighted row: told from the
/// ground without their colour.
constexpr Colore cornice(Colore fondo) {
    return fondo == Colore::navy ? Colore::bianco : Colore::navy;
}
/// Today's frame on the ground.
constexpr Colore corniceOggi(Colore fondo) {
    return fondo == Colore::navy ? Colore::oggiSuScuro : Colore::oggi;
}

/// The fonts of the grids.
enum class Carattere : std::uint8_t { normale, grassetto, ora, minuti, anno, minutiGrassetto };

struct DescrizioneCarattere {
    std::string_view famiglia;
    int punti;
    bool grassetto;
};

inline constexpr std::array<DescrizioneCarattere, 6> Caratteri{{
    {"Tahoma", 9, false},       // normale
    {"Tahoma", 9, true},        // grassetto
    {"MS Sans Serif", 9, true}, // ora: hours of the daily header
    {"SmallFonts", 7, false},   // minuti: quarters of the daily header
    {"Tahoma", 10, true},       // anno: corner of the yearly grid
    {"SmallFonts", 7, true},    // minutiGrassetto: the quarter of the selected cell
}};

constexpr const DescrizioneCarattere& carattere(Carattere which) {
    return Caratteri.at(static_cast<std::size_t>(which));
}

/// The same letters, bold.
constexpr Carattere inGrassetto(Carattere which) {
    return which == Carattere::normale  ? Carattere::grassetto
           : which == Carattere::minuti ? Carattere::minutiGrassetto
                                        : which;
}

enum class Allineamento : std::uint8_t { sinistra, centro };

/// How a cell of a role looks where nothing about it says otherwise.
struct Stile {
    Colore colore = Colore::predefinito;
    Colore sfondo = Colore::predefinito;
    Carattere carattere = Carattere::normale;
    Allineamento allineamento = Allineamento::centro;
};

/// By role.
inline constexpr std::array<Stile, 11> Stili{{
    {},                                                                          // casella
    {},                                                                          // nomeMensile
    {.allineamento = Allineamento::sinistra},                                    // nomeGiornaliero
    {.carattere = Carattere::grassetto, .allineamento = Allineamento::sinistra}, // mese
    {.colore = Colore::navy, .carattere = Carattere::grassetto},                 // periodo
    {.colore = Colore::navy, .carattere = Carattere::anno},                      // anno
    {.colore = Colore::nero},                                                    // lettera
    {.colore = Colore::nero},                                                    // numeroGiorno
    {.colore = Colore::nero, .sfondo = Colore::grigioChiaro},                    // giornoAnno
    {.colore = Colore::navy, .carattere = Carattere::ora},                       // ora
    {.colore = Colore::navy, .carattere = Carattere::minuti},                    // minuti
}};

constexpr const Stile& stile(const Cella& cella) {
    return Stili.at(static_cast<std::size_t>(cella.ruolo));
}

/// What a cell's look takes from its grid.
struct PostoCella {
    Colore base;      // of cells without a colour of their own
    bool evidenziata; // in the highlighted row
    bool scelta;      // the selected cell
    bool inEvidenza;  // name or header of either
};

/// The colours in which a cell appears, and its letters.
struct Aspetto {
    Colore colore; // of the text
    Colore sfondo; // of the cell, appointments included
    Colore fondo;  // of what is in sight around an appointment's bar
    Colore barra;  // of an appointment's bar
    Carattere carattere;
};

/// The one place where meaning becomes colour. Red on grey stands out little: its letters are bold.
constexpr Aspetto aspetto(const Cella& cella, const PostoCella& posto) {
    const Stile& proprio = stile(cella);
    if (posto.scelta) {
        return {Colore::nero, Colore::ciano, Colore::ciano, Colore::ciano, inGrassetto(proprio.carattere)};
    }
    const Colore colore = cella.segnato                          ? Colore::bianco
                          : cella.fineSettimana || cella.festivo ? Colore::rosso
                                                                 : proprio.colore;
    const Colore fondo = posto.evidenziata                       ? Colore::giallo
                         : cella.segnato                         ? Colore::navy
                         : proprio.sfondo != Colore::predefinito ? proprio.sfondo
                                                                 : posto.base;
    const bool colorato = cella.impegno && !posto.evidenziata;
    const bool grassetto = posto.inEvidenza || colore == Colore::rosso;
    return {colore, colorato ? Colore::azzurro : fondo, fondo, Colore::azzurro,
            grassetto ? inGrassetto(proprio.carattere) : proprio.carattere};
}

} // namespace planner
