// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/option_values.h"

#include "planner_host/errors.h"
#include "platform/system/paths.h"
#include "sample_archive/cp1252_from_utf8.h"

#include <algorithm>

namespace planner::option_values {

void refuse(std::string_view valore, std::string_view expected) {
    throw HostError(CodiceUscita::UsoErrato,
                    "valore \"" + std::string(valore) + "\" non valido: " + std::string(expected));
}

std::string fieldText(std::string_view valore, std::size_t length) {
    const auto bytes = cp1252FromUtf8(valore);
    if (!bytes) {
        refuse(valore, "contiene caratteri che Windows-1252 non ha");
    }
    if (bytes->size() > length) {
        refuse(valore, "al massimo " + std::to_string(length) + " caratteri");
    }
    return *bytes;
}

char oneCharacter(std::string_view valore) {
    const std::string bytes = fieldText(valore, 1);
    if (bytes.empty()) {
        refuse(valore, "serve un carattere");
    }
    return bytes.front();
}

std::string dateText(std::string_view valore) {
    if (valore.size() != 8 || valore.find_first_not_of("0123456789") != std::string_view::npos) {
        refuse(valore, "serve una data aaaammgg, o 00000000 per nessuna data");
    }
    return std::string(valore);
}

char kind(std::string_view valore) {
    if (valore != "M" && valore != "G" && valore != "A") {
        refuse(valore, "serve M, G o A");
    }
    return valore.front();
}

Modo mode(std::string_view valore) {
    if (valore != "evento" && valore != "polling") {
        refuse(valore, "serve evento o polling");
    }
    return valore == "evento" ? Modo::Evento : Modo::Polling;
}

std::string eventName(std::string_view valore) {
    std::string upper(valore);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    if (valore.empty() || valore.find(' ') != std::string_view::npos || upper == "NOEVENT") {
        refuse(valore, "serve un nome senza spazi, diverso da NOEVENT");
    }
    return std::string(valore);
}

std::string transitName(std::string_view valore) {
    const bool special = valore.empty() || valore == "." || valore == "..";
    const bool padded = !special && (valore.front() == ' ' || valore.back() == ' ');
    if (special || padded || valore.find_first_of("/\\") != std::string_view::npos) {
        refuse(valore, "serve un nome di file senza cartella");
    }
    return std::string(valore);
}

std::filesystem::path folder(std::string_view valore) {
    constexpr bool separates = std::filesystem::path::preferred_separator == '\\';
    if (valore.empty() || (!separates && valore.find('\\') != std::string_view::npos)) {
        refuse(valore, "serve il percorso di una cartella, con \"/\" tra le cartelle");
    }
    return pathOf(valore);
}

} // namespace planner::option_values
