// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/host_options.h"

#include "planner_host/errors.h"
#include "planner_host/option_table.h"

namespace planner {

namespace {

[[noreturn]] void refuse(const std::string& text) {
    throw HostError(CodiceUscita::UsoErrato, text);
}

/// Takes one option, with its value, from the front of the arguments.
void takeOption(std::span<const std::string_view>& argomenti, OpzioniHost& opzioni) {
    const std::string_view argomento = argomenti.front();
    argomenti = argomenti.subspan(1);
    const auto equals = argomento.find('=');
    const std::string_view nome = argomento.substr(0, equals);
    const OpzioneRiga* opzione = nome.starts_with("--") ? trovaOpzione(nome.substr(2)) : nullptr;
    if (opzione == nullptr) {
        refuse("opzione sconosciuta: " + std::string(argomento));
    }
    const bool attached = equals != std::string_view::npos;
    std::string_view valore = attached ? argomento.substr(equals + 1) : std::string_view{};
    if (opzione->valore.empty() && attached) {
        refuse("l'opzione " + std::string(nome) + " non vuole un valore");
    }
    if (!opzione->valore.empty() && !attached) {
        if (argomenti.empty()) {
            refuse("l'opzione " + std::string(nome) + " vuole un valore: " + std::string(opzione->valore));
        }
        valore = argomenti.front();
        argomenti = argomenti.subspan(1);
    }
    try {
        opzione->imposta(opzioni, valore);
    } catch (const HostError& error) {
        refuse(std::string(nome) + ": " + error.what());
    }
}

std::optional<int> yearOfText(const std::string& yyyymmdd) {
    const auto data = parseDate(yyyymmdd);
    return data ? std::optional(yearOf(*data)) : std::nullopt;
}

/// The day to show when none was asked for: today, or a day of another year on which much is going on; the
/// period's first day when that lies outside the period.
std::string defaultDay(const OpzioniHost& opzioni, Data oggi) {
    const int anno = opzioni.opzioniCampione.anno;
    const Data marchDay{std::chrono::year{anno}, std::chrono::month{3}, std::chrono::day{15}};
    const std::string giorno = formatDate(anno == yearOf(oggi) ? oggi : marchDay);
    return giorno < opzioni.inizio || giorno > opzioni.fine ? opzioni.inizio : giorno;
}

void fillDefaults(OpzioniHost& opzioni, Data oggi) {
    const auto inizio = yearOfText(opzioni.inizio);
    const auto giorno = yearOfText(opzioni.giorno);
    const int anno = opzioni.anno.value_or(inizio.value_or(giorno.value_or(yearOf(oggi))));
    opzioni.opzioniCampione.anno = anno;
    if (opzioni.inizio.empty()) {
        opzioni.inizio = std::to_string(anno) + "0101";
    }
    if (opzioni.fine.empty()) {
        opzioni.fine = std::to_string(inizio.value_or(anno)) + "1231";
    }
    if (opzioni.giorno.empty()) {
        opzioni.giorno = defaultDay(opzioni, oggi);
    }
}

} // namespace

OpzioniHost leggiOpzioni(std::span<const std::string_view> argomenti, Data oggi) {
    OpzioniHost opzioni;
    while (!argomenti.empty()) {
        takeOption(argomenti, opzioni);
    }
    if (opzioni.soloArchivio && opzioni.archivio.empty()) {
        refuse("--solo-archivio vuole anche --archivio CARTELLA");
    }
    fillDefaults(opzioni, oggi);
    return opzioni;
}

} // namespace planner
