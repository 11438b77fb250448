// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/plfgraf_values.h"

#include "archive/numeric_value.h"
#include "archive/readers.h"
#include "forms/plfgraf/chart_rules.h"
#include "forms/plfgraf/chart_texts.h"
#include "ports/runtime_errors.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace planner {

namespace {

template <typename Record>
std::span<const Record> firstOf(const std::vector<Record>& table, std::int16_t count) {
    const auto wanted = static_cast<std::size_t>(std::max<std::int16_t>(count, 0));
    return std::span(table).first(std::min(wanted, table.size()));
}

/// A field that numbers rows from 1, how an error names it, and where numbers beyond the last row lie.
struct CampoRiga {
    FixedText<2> RigaGrafico::*numero;
    std::size_t righe;
    std::string_view nome;
    std::string_view fuori;
};

constexpr CampoRiga CampoGiorno{&RigaGrafico::giorno, GiorniMassimi, "il giorno", "è fuori dal mese"};
constexpr CampoRiga CampoMese{&RigaGrafico::mese, 12, "il mese", "è fuori dall'anno"};

/// Where in the file a record stands, counted from 0.
using Posto = std::size_t;

template <typename Error>
[[noreturn]] void refuse(Posto posto, std::string_view campo, std::string_view testo, std::string_view che) {
    throw Error(std::string(FileGrafici.substr(1)) + ", record " + std::to_string(posto + 1) + ": " +
                std::string(campo) + " \"" + testoVisibile(testo) + "\" " + std::string(che));
}

std::size_t rowOf(const RigaGrafico& riga, Posto posto, const CampoRiga& campo) {
    const std::string_view testo = (riga.*campo.numero).view();
    int number = 0;
    try {
        number = wholeNumber(testo);
    } catch (const TypeMismatchError&) {
        refuse<TypeMismatchError>(posto, campo.nome, testo, "non è un numero");
    }
    if (number < 1 || static_cast<std::size_t>(number) > campo.righe) {
        refuse<SubscriptError>(posto, campo.nome, testo, campo.fuori);
    }
    return static_cast<std::size_t>(number - 1);
}

double oreDi(const RigaGrafico& riga, Posto posto) {
    const std::string_view testo = riga.ore.front().view();
    try {
        return ConvertiOre(testo);
    } catch (const OverflowError&) {
        refuse<OverflowError>(posto, "le ore", testo, "sono troppe");
    }
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

/// The hours of the records that `wanted` takes, each in the row that the field numbers.
template <typename Wanted>
ValoriGrafico valoriPerRiga(const Archivi& archivi, const CampoRiga& campo, Wanted wanted) {
    ValoriGrafico valori(campo.righe);
    const std::span<const RigaGrafico> righe = righeGrafico(archivi);
    for (Posto posto = 0; posto < righe.size(); ++posto) {
        if (wanted(righe[posto])) {
            const std::size_t row = rowOf(righe[posto], posto, campo);
            valori.metti(row, oreDi(righe[posto], posto));
        }
    }
    return valori;
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

const Collaboratore& collaboratoreGrafico(const Archivi& archivi, IndiceCollaboratore indice) {
    const Collaboratore* collaboratore = trovaCollaboratore(archivi.Collaboratori, indice);
    return collaboratore != nullptr ? *collaboratore : throw SubscriptError();
}

ValoriGrafico valoriMensili(const Archivi& archivi, const Calendario& calendario,
                            IndiceCollaboratore collab) {
    return valoriPerRiga(archivi, CampoGiorno, [&](const RigaGrafico& riga) {
        return riga.codice == collaboratoreGrafico(archivi, collab).codice && inMonth(riga, calendario);
    });
}

ValoriGrafico valoriGiornalieri(const Archivi& archivi, const Calendario& calendario) {
    const std::span<const Collaboratore> staff = collaboratoriGrafico(archivi);
    OreCodice oreCodice = noHours(staff);
    ValoriGrafico valori(staff.size());
    const std::span<const RigaGrafico> righe = righeGrafico(archivi);
    for (Posto posto = 0; posto < righe.size(); ++posto) {
        const RigaGrafico& riga = righe[posto];
        const auto entry = onDay(riga, calendario) ? oreCodice.find(riga.codice.view()) : oreCodice.end();
        if (entry != oreCodice.end()) {
            entry->second = oreDi(riga, posto);
            valori.massimo = std::max(valori.massimo, entry->second);
        }
    }
    std::transform(staff.begin(), staff.end(), valori.valori.begin(),
                   [&](const Collaboratore& each) { return oreCodice.at(each.codice.view()); });
    return valori;
}

ValoriGrafico valoriAnnuali(const Archivi& archivi, const Calendario& calendario) {
    return valoriPerRiga(archivi, CampoMese,
                         [&](const RigaGrafico& riga) { return inYear(riga, calendario); });
}

} // namespace planner
