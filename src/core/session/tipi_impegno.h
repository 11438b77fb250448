// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/totals.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// The kinds of entries that pictures stand for. A set of kinds has a bit for each, see `insieme`.
enum class TipoImpegno : std::uint8_t { noteRiservate, impegniVari, scadenze, pratiche };

/// Everything about a kind. The digit is its place in a picture key, and the corner of the picture in which
/// its drawing stands: 1 top left, 2 top right, 3 bottom left, 4 bottom right.
struct DescrizioneImpegno {
    char cifra;
    std::string_view nome;      // Italian, as sentences name it
    std::string_view singolare; // of one
    Totale totale;              // whose counters hold it
    std::string_view disegno;   // of the program's resources
};

/// By kind.
inline constexpr std::array<DescrizioneImpegno, 4> TipiImpegno{
    {{'1', "note riservate", "nota riservata", Totale::noteRiservate, "note"},
     {'2', "impegni vari", "impegno vario", Totale::impegniVari, "impegni"},
     {'3', "scadenze", "scadenza", Totale::scadenze, "scadenze"},
     {'4', "pratiche", "pratica", Totale::pratiche, "pratiche"}}};

/// The kinds in the order in which sentences name them.
inline constexpr std::array OrdineTipi{TipoImpegno::scadenze, TipoImpegno::pratiche, TipoImpegno::impegniVari,
                                       TipoImpegno::noteRiservate};

constexpr const DescrizioneImpegno& descrizione(TipoImpegno tipo) {
    return TipiImpegno.at(static_cast<std::size_t>(tipo));
}

/// The set of this kind alone; sets add up with "|".
constexpr unsigned insieme(TipoImpegno tipo) {
    return 1U << static_cast<unsigned>(tipo);
}

/// The kinds of a set in words, as sentences name them: "scadenze, pratiche".
std::string nomiTipi(unsigned tipi);

/// The set of kinds that the counters hold, 0 for nothing to mark.
unsigned tipiPresenti(const ValoriContatori& valori);

/// The picture, 1 to 15, for the kinds present, given as ascending digits ("134"); 0 for anything else.
std::int16_t Eval_imagedisplay(std::string_view deps);

/// The same for a set of kinds.
std::int16_t immagineTipi(unsigned tipi);

/// The picture of the grid that shows no details.
inline constexpr std::int16_t ImmaginePresenza = 16;

/// The text with a capital letter at its beginning.
std::string inizialeMaiuscola(std::string_view text);

/// What a picture means.
struct VoceLegenda {
    static constexpr int GiornoSegnato = 0; // no picture: the ground of a marked day

    int immagine;
    std::string significato; // UTF-8
    std::string breve;       // the same in a word or two; empty where that would say nothing new

    friend bool operator==(const VoceLegenda&, const VoceLegenda&) = default;
};

/// The legend of the pictures in the grid that shows details, or in the one that shows none.
std::vector<VoceLegenda> legendaDisegni(bool dettagliato);

/// Picture keys in the order of their pictures: the first is picture 1.
inline constexpr std::array<std::string_view, 15> ChiaviImmagini{
    "1234", "123", "12", "124", "134", "13", "14", "1", "2", "3", "4", "234", "23", "24", "34"};

/// The key of picture 1 to 15; empty for any other number.
std::string_view chiaveImmagine(int immagine);

} // namespace planner
