// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/style.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// How a chart shows its values.
enum class TipoGrafico : std::uint8_t { Istogramma, Torta };

/// One column of a chart's data: a value, in hours, for each row.
struct SerieGrafico {
    std::string etichetta; // in the legend
    std::vector<double> valori;
    Rgb colore;
};

/// Navy, the colour of a chart with one series.
inline constexpr Rgb ColoreSerie{0, 0, 128};

/// The colours of the yearly chart's series, January first: neighbours differ in hue and lightness, and each
/// stands out from white by 3 to 1 at least.
inline constexpr std::array<Rgb, 12> ColoriMesi{{
    {31, 78, 160},
    {192, 80, 0},
    {46, 125, 50},
    {183, 28, 28},
    {106, 27, 154},
    {109, 76, 65},
    {194, 24, 91},
    {84, 110, 122},
    {130, 119, 23},
    {0, 131, 143},
    {21, 21, 90},
    {230, 74, 25},
}};

/// A line of the grid behind the bars.
struct Penna {
    Rgb colore;
    int Width; // points
};

/// The value axis; it starts at 0.
struct AsseOre {
    std::string titolo;
    double Maximum = 0; // hours
    std::int16_t MajorDivision = 0;
    int MinorDivision = 1; // parts of one major division
    Penna PennaMajor{{255, 0, 0}, 4};
    Penna PennaMinor{{0, 0, 255}, 2};
};

/// What a chart shows, as plain data. Texts are Windows-1252.
struct Grafico {
    std::string_view nome; // of the control
    bool Visible = false;
    TipoGrafico tipo = TipoGrafico::Istogramma;
    std::string TitleText;
    std::string intestazione;        // whose hours these are, and of which month, day or year
    std::string avviso;              // what the user must know of the data, before anything else; UTF-8
    bool titoloIncorniciato = false; // a yellow double line and a shadow around the title
    bool areaIncorniciata = false;   // a thick frame and a shadow around the plot
    std::string asseX;
    AsseOre asseY;
    DescrizioneCarattere fontTitoliAssi{"Tahoma", 9, true};
    std::vector<std::string> etichette; // of the rows, along the X axis
    std::vector<SerieGrafico> serie;
    std::string_view voceUna = "valore", voceMolte = "valori"; // what a value is of, one and several
    std::vector<std::string> voci; // what each value stands for, in sentences; in the order of `valore`

    /// The values are counted from 0: the rows of the first series, then those of the next one.
    std::size_t numValori() const { return serie.size() * etichette.size(); }
    /// Where a value stands; meant for the numbers below `numValori()`.
    std::size_t serieDi(std::size_t numero) const {
        return etichette.empty() ? 0 : numero / etichette.size();
    }
    std::size_t rigaDi(std::size_t numero) const { return etichette.empty() ? 0 : numero % etichette.size(); }
    /// The label of a value's row, or of its series where there are several. Throws std::out_of_range past
    /// the last value.
    const std::string& etichetta(std::size_t numero) const {
        return serie.size() > 1 ? serie.at(serieDi(numero)).etichetta : etichette.at(rigaDi(numero));
    }
    /// Hours. Throws std::out_of_range past the last value.
    double valore(std::size_t numero) const { return serie.at(serieDi(numero)).valori.at(rigaDi(numero)); }
};

} // namespace planner
