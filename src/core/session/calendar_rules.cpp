// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/calendar_rules.h"

#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "ports/runtime_errors.h"

#include <algorithm>

namespace planner {

namespace {

template <typename Table>
const auto& monthEntry(const Table& table, int mese) {
    if (mese < 1 || mese > 12) {
        throw SubscriptError();
    }
    return table[static_cast<std::size_t>(mese - 1)];
}

} // namespace

std::string_view nomeMese(int mese) {
    return monthEntry(NomiMesi, mese);
}

std::string meseInFrase(int mese) {
    std::string name(nomeMese(mese));
    name.front() = static_cast<char>(name.front() - 'A' + 'a');
    return name;
}

const Festivita* trovaFestivo(int giorno, int mese) {
    const auto found = std::find_if(Festivi.begin(), Festivi.end(), [&](const Festivita& festivo) {
        return festivo.giorno == giorno + 1 && festivo.mese == mese;
    });
    return found == Festivi.end() ? nullptr : &*found;
}

std::int16_t ConvertiDurata(std::string_view durata) {
    constexpr double minutesPerSlot = 15;
    const std::int16_t hours = roundTo16Bit(numericValue(slice(durata, 0, 5)) * 60);
    const std::int16_t minutes = roundTo16Bit(numericValue(lastChars(durata, 2)));
    const std::int16_t total = roundTo16Bit(static_cast<double>(hours) + minutes);
    return roundTo16Bit(total / minutesPerSlot);
}

bool CheckAnnoBisestile(int anno) {
    return std::chrono::year{anno}.is_leap();
}

TabellaGiorniMese giorniMese(int anno) {
    return {
        "31", CheckAnnoBisestile(anno) ? "29" : "28", "31", "30", "31", "30", "31", "31", "30", "31", "30",
        "31"};
}

int lunghezzaMese(const TabellaGiorniMese& tabella, int mese) {
    return wholeNumber(monthEntry(tabella, mese));
}

std::int16_t primoGiornoSettimana(int anno, int mese) {
    const auto primo = makeDate(anno, mese, 1);
    if (!primo) {
        throw DateError("1/" + twoDigits(mese) + "/" + std::to_string(anno));
    }
    return static_cast<std::int16_t>(weekdayOf(*primo));
}

int colonnaPrimoGiorno(int anno, int mese) {
    const int primoGiorno = primoGiornoSettimana(anno, mese);
    return primoGiorno >= 2 ? primoGiorno - 1 : primoGiorno + 6;
}

} // namespace planner
