// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_texts.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "session/dates.h"

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

constexpr double MostHours = 1e9; // that minutes mean something beside
constexpr long long MinutesPerHour = 60;

long long minutesOf(double ore) {
    return std::llround(ore * static_cast<double>(MinutesPerHour));
}

std::string counted(long long number, std::string_view one, std::string_view many) {
    return std::to_string(number) + " " + std::string(number == 1 ? one : many);
}

/// What a value stands for. Throws std::out_of_range past the last value.
std::string voceDi(const Grafico& grafico, std::size_t numero) {
    if (numero >= grafico.numValori()) {
        throw std::out_of_range("no such value in the chart");
    }
    return visibleFromCp1252(grafico.voci.at(numero));
}

/// What a pie adds to a value that it shows a slice of.
std::string share(const Grafico& grafico, std::size_t numero) {
    const std::string quota = grafico.tipo == TipoGrafico::Torta
                                  ? testoQuota(grafico.valore(numero), totaleTorta(grafico))
                                  : std::string();
    return quota.empty() ? quota : ", " + quota;
}

} // namespace

std::string testoOre(double ore) {
    if (!(std::abs(ore) <= MostHours)) {
        return testoDecimale(ore);
    }
    const long long minutes = minutesOf(ore);
    const long long distance = std::abs(minutes);
    return (minutes < 0 ? "-" : "") + std::to_string(distance / MinutesPerHour) + ":" +
           twoDigits(static_cast<int>(distance % MinutesPerHour));
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

std::string oreParlate(double ore) {
    if (!(std::abs(ore) <= MostHours)) {
        return testoDecimale(ore) + " ore";
    }
    const long long minutes = minutesOf(ore);
    if (minutes == 0) {
        return "nessuna ora";
    }
    const long long hours = std::abs(minutes) / MinutesPerHour;
    const long long rest = std::abs(minutes) % MinutesPerHour;
    std::string text = minutes < 0 ? "meno " : "";
    text += hours > 0 ? counted(hours, "ora", "ore") : "";
    text += hours > 0 && rest > 0 ? " e " : "";
    return text + (rest > 0 ? counted(rest, "minuto", "minuti") : "");
}

std::string fraseValore(const Grafico& grafico, std::size_t numero) {
    return voceDi(grafico, numero) + ": " + testoOre(grafico.valore(numero)) + share(grafico, numero);
}

std::string fraseParlata(const Grafico& grafico, std::size_t numero) {
    return voceDi(grafico, numero) + ": " + oreParlate(grafico.valore(numero)) + share(grafico, numero);
}

double totaleTorta(const Grafico& grafico) {
    double total = 0;
    for (std::size_t each = 0; each < grafico.numValori(); ++each) {
        total += std::max(grafico.valore(each), 0.0);
    }
    return total;
}

std::string testoQuota(double value, double total) {
    if (!(value > 0) || !std::isfinite(total)) {
        return {};
    }
    constexpr double hundred = 100;
    const long hundredths = std::lround(value / total * hundred);
    return hundredths == 0 ? "<1 %" : std::to_string(hundredths) + " %";
}

std::string testoPiede(const Grafico& grafico) {
    double total = 0;
    long long count = 0;
    for (std::size_t each = 0; each < grafico.numValori(); ++each) {
        total += grafico.valore(each);
        count += grafico.valore(each) != 0 ? 1 : 0;
    }
    const std::string heading = testoIntestazione(grafico);
    const std::string hours = count == 0 ? std::string("nessuna ora")
                                         : "totale " + testoOre(total) + ", media " +
                                               testoOre(total / static_cast<double>(count)) + " su " +
                                               counted(count, grafico.voceUna, grafico.voceMolte);
    return heading.empty() ? hours : heading + ": " + hours;
}

std::string testoIntestazione(const Grafico& grafico) {
    return visibleFromCp1252(grafico.intestazione);
}

std::string nomeFileGrafico(const Grafico& grafico) {
    // Points would be taken for the beginning of a suffix; the others are forbidden in one system or another.
    constexpr std::string_view unsafe = "/\\:*?\"<>|.";
    std::string name;
    for (const char c : grafico.intestazione) {
        const bool blank = isControlByte(c) || c == ' ' || c == '\xA0';
        if (!blank || !name.ends_with(' ')) {
            name += blank ? ' ' : unsafe.find(c) == std::string_view::npos ? c : '_';
        }
    }
    const std::string_view trimmed = trim(name);
    return trimmed.empty() ? "Grafico" : utf8FromCp1252(trimmed);
}

std::string tabellaValori(const Grafico& grafico) {
    std::string table = grafico.intestazione.empty() ? "" : testoIntestazione(grafico) + "\n";
    table += visibleFromCp1252(grafico.asseX) + "\tOre\tOre decimali\n";
    for (std::size_t numero = 0; numero < grafico.numValori(); ++numero) {
        const double ore = grafico.valore(numero);
        table += visibleFromCp1252(grafico.etichetta(numero)) + "\t" + testoOre(ore) + "\t" +
                 testoDecimale(ore) + "\n";
    }
    return table;
}

std::string testoVisibile(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += isControlByte(c) ? std::string("\\x") + digits[byte / 16] + digits[byte % 16]
                                 : utf8FromCp1252({&c, 1});
    }
    return text;
}

} // namespace planner
