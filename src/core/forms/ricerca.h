// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/cp1252.h"
#include "ports/collation.h"

#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// What of a staff member is searched, Windows-1252.
struct TestiCercati {
    std::string_view nome, codice;
};

/// The first of `righe` rows, counted from 0, that holds the UTF-8 text anywhere in name or code, case and
/// accents aside: from the one after `corrente` (-1 for none) on and round the end, so that it comes last.
/// `testiDi` gives what a row holds. Nothing for a text that has nothing but accents.
template <typename TestiDi>
std::optional<int> cercaRiga(const Collation& alfabeto, const std::string& testo, int righe, int corrente,
                             TestiDi testiDi) {
    const std::string piegato = alfabeto.folded(testo);
    const auto holds = [&](std::string_view text) {
        return alfabeto.folded(utf8FromCp1252(text)).find(piegato) != std::string::npos;
    };
    for (int passo = 1; !piegato.empty() && passo <= righe; ++passo) {
        const int riga = (corrente + passo) % righe;
        const TestiCercati testi = testiDi(riga);
        if (holds(testi.nome) || holds(testi.codice)) {
            return riga;
        }
    }
    return std::nullopt;
}

} // namespace planner
