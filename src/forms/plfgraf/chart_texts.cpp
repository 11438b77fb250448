// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_texts.h"

#include "archive/cp1252.h"
#include "engine/session/dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string_view>

namespace planner {

namespace {

/// The number with `decimals` digits after a point, whatever its size.
std::string fixedText(double value, int decimals) {
    constexpr std::size_t otherCharacters = 16; // sign, point and decimals
    std::array<char, std::numeric_limits<double>::max_exponent10 + otherCharacters> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    return error == std::errc{} ? std::string(text.data(), end) : std::string();
}

/// Bytes that stand for no visible character; the last five are those that the code page leaves undefined.
bool isControl(char c) {
    constexpr std::string_view controls = "\x7F\x81\x8D\x8F\x90\x9D";
    return static_cast<unsigned char>(c) < ' ' || controls.find(c) != std::string_view::npos;
}

std::string visibleText(std::string_view bytes) {
    std::string text(bytes);
    std::replace_if(text.begin(), text.end(), isControl, ' ');
    return utf8FromCp1252(text);
}

std::string_view etichettaValore(const Grafico& grafico, std::size_t numero) {
    const std::size_t serie = grafico.serieDi(numero);
    return grafico.serie.size() > 1 ? grafico.serie.at(serie).etichetta
                                    : grafico.etichette.at(grafico.rigaDi(numero));
}

} // namespace

std::string testoOre(double ore) {
    constexpr double mostHours = 1e9;
    constexpr long long minutesPerHour = 60;
    if (!(std::abs(ore) <= mostHours)) {
        return testoDecimale(ore);
    }
    const long long minutes = std::llround(ore * static_cast<double>(minutesPerHour));
    const long long distance = std::abs(minutes);
    return (minutes < 0 ? "-" : "") + std::to_string(distance / minutesPerHour) + ":" +
           twoDigits(static_cast<int>(distance % minutesPerHour));
}

std::string testoDecimale(double valore) {
    constexpr int decimals = 2;
    std::string text = fixedText(valore, decimals);
    const std::size_t point = text.find('.');
    if (point != std::string::npos) {
        text[point] = ',';
        text.resize(text.find_last_not_of('0') + 1);
    }
    if (text.ends_with(',')) {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string fraseValore(const Grafico& grafico, std::size_t numero) {
    if (numero >= grafico.numValori()) {
        throw std::out_of_range("no such value in the chart");
    }
    const std::string valore = testoDecimale(grafico.valore(numero));
    return visibleText(grafico.voci.at(numero)) + ": " + valore + (valore == "1" ? " ora" : " ore");
}

std::string tabellaValori(const Grafico& grafico) {
    std::string table = visibleText(grafico.asseX) + "\tOre\n";
    for (std::size_t numero = 0; numero < grafico.numValori(); ++numero) {
        table += visibleText(etichettaValore(grafico, numero)) + "\t" +
                 testoDecimale(grafico.valore(numero)) + "\n";
    }
    return table;
}

} // namespace planner
