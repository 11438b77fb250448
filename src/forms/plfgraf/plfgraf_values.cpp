// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/plfgraf_values.h"

#include "archive/numeric_value.h"
#include "archive/runtime_errors.h"
#include "forms/plfgraf/chart_rules.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace planner {

namespace {

constexpr std::size_t GiorniMassimi = 31;
constexpr std::size_t MesiAnno = 12;

template <typename Record>
std::span<const Record> firstOf(const std::vector<Record>& table, std::int16_t count) {
    const auto wanted = static_cast<std::size_t>(std::max<std::int16_t>(count, 0));
    return std::span(table).first(std::min(wanted, table.size()));
}

/// The row that a text numbers from 1.
std::size_t rowOf(std::string_view testo, std::size_t rows) {
    const int number = wholeNumber(testo);
    if (number < 1 || static_cast<std::size_t>(number) > rows) {
        throw SubscriptError();
    }
    return static_cast<std::size_t>(number - 1);
}

double oreDi(const RigaGrafico& riga) {
    return ConvertiOre(riga.ore.front().view());
}

bool inYear(const RigaGrafico& riga, const Calendario& calendario) {
    return numericValue(riga.anno.view()) == calendario.Year();
}

bool inMonth(const RigaGrafico& riga, const Calendario& calendario) {
    return numericValue(riga.mese.view()) == calendario.Month() && inYear(riga, calendario);
}

bool onDay(const RigaGrafico& riga, const Calendario& calendario) {
    return numericValue(riga.giorno.view()) == calendario.Day() && inMonth(riga, calendario);
}

/// A value for each staff code. The staff table may hold a code more than once.
using OreCodice = std::unordered_map<std::string_view, double>;

OreCodice noHours(std::span<const Collaboratore> staff) {
    OreCodice ore;
    ore.reserve(staff.size());
    for (const Collaboratore& collaboratore : staff) {
        ore.emplace(collaboratore.codice.view(), 0);
    }
    return ore;
}

} // namespace

void ValoriGrafico::metti(std::size_t riga, double ore) {
    valori.at(riga) = ore;
    massimo = std::max(massimo, ore);
}

std::span<const RigaGrafico> righeGrafico(const Archivi& archivi) {
    return firstOf(archivi.RigheGrafici, archivi.NumGrafici);
}

std::span<const Collaboratore> collaboratoriGrafico(const Archivi& archivi) {
    return firstOf(archivi.Collaboratori, archivi.NumCollab);
}

const Collaboratore& collaboratoreGrafico(const Archivi& archivi, std::int16_t indice) {
    if (indice < 0 || static_cast<std::size_t>(indice) >= archivi.Collaboratori.size()) {
        throw SubscriptError();
    }
    return archivi.Collaboratori[static_cast<std::size_t>(indice)];
}

ValoriGrafico valoriMensili(const Archivi& archivi, const Calendario& calendario, std::int16_t collab) {
    ValoriGrafico valori(GiorniMassimi);
    for (const RigaGrafico& riga : righeGrafico(archivi)) {
        if (riga.codice == collaboratoreGrafico(archivi, collab).codice && inMonth(riga, calendario)) {
            const std::size_t row = rowOf(riga.giorno.view(), GiorniMassimi);
            valori.metti(row, oreDi(riga));
        }
    }
    return valori;
}

ValoriGrafico valoriGiornalieri(const Archivi& archivi, const Calendario& calendario) {
    const std::span<const Collaboratore> staff = collaboratoriGrafico(archivi);
    OreCodice oreCodice = noHours(staff);
    ValoriGrafico valori(staff.size());
    for (const RigaGrafico& riga : righeGrafico(archivi)) {
        const auto entry = onDay(riga, calendario) ? oreCodice.find(riga.codice.view()) : oreCodice.end();
        if (entry != oreCodice.end()) {
            entry->second = oreDi(riga);
            valori.massimo = std::max(valori.massimo, entry->second);
        }
    }
    std::transform(staff.begin(), staff.end(), valori.valori.begin(),
                   [&](const Collaboratore& each) { return oreCodice.at(each.codice.view()); });
    return valori;
}

ValoriGrafico valoriAnnuali(const Archivi& archivi, const Calendario& calendario) {
    ValoriGrafico valori(MesiAnno);
    for (const RigaGrafico& riga : righeGrafico(archivi)) {
        if (inYear(riga, calendario)) {
            const std::size_t row = rowOf(riga.mese.view(), MesiAnno);
            valori.metti(row, oreDi(riga));
        }
    }
    return valori;
}

} // namespace planner
