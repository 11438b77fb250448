// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/check/field_rules.h"

#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "planner_host/readable_text.h"
#include "ports/runtime_errors.h"

namespace planner {

namespace {

constexpr std::size_t LettereOre = 5; // of the hours in a length; the minutes follow
constexpr int MinutiOra = 60;

std::size_t lengthOf(std::span<const Field> campi) {
    return campi.back().offset + campi.back().length;
}

/// The rule of the field; null when its content is free.
const RegolaCampo* ruleOf(const Field& campo, std::span<const RegolaCampo> regole) {
    const auto found = std::find_if(regole.begin(), regole.end(), [&](const RegolaCampo& regola) {
        return campo.name.starts_with(regola.prefisso);
    });
    return found == regole.end() ? nullptr : &*found;
}

} // namespace

std::string fraVirgolette(std::string_view bytes) {
    return "\"" + testoLeggibile(bytes) + "\"";
}

std::string guaioConteggio(std::string_view testo) {
    try {
        if (!trim(testo).empty()) {
            wholeNumber(testo);
        }
    } catch (const TypeMismatchError&) {
        return fraVirgolette(testo) + " non è un numero: ne vale la parte che lo è, o zero";
    } catch (const OverflowError&) {
        return fraVirgolette(testo) + " è troppo grande: il planner conta fino a 32767";
    }
    return {};
}

std::string guaioOre(std::string_view testo) {
    const std::string_view minuti = slice(testo, LettereOre, 2);
    const std::string_view ore = slice(testo, 0, LettereOre);
    const bool separated = ore.ends_with(':') || ore.ends_with('.'); // "0004:30", as people write it
    std::string trouble =
        guaioConteggio(separated ? ore.substr(0, ore.size() - 1) : ore) + guaioConteggio(minuti);
    if (trouble.empty() && numericValue(minuti) >= MinutiOra) {
        return fraVirgolette(testo) + ": i minuti, le ultime due cifre, sono più di 59";
    }
    return trouble;
}

std::string guaioSegno(std::string_view testo) {
    const bool known = testo.find_first_not_of(" *") == std::string_view::npos;
    return known ? "" : "contiene segni diversi da \"*\" e spazio: non segnano nulla";
}

void checkFields(Rilievi& rilievi, const std::string& file, std::string_view bytes,
                 std::span<const Field> campi, std::span<const RegolaCampo> regole) {
    const std::size_t length = lengthOf(campi);
    for (std::size_t start = 0; start + length <= bytes.size(); start += length) {
        for (const Field& campo : campi) {
            const RegolaCampo* rule = ruleOf(campo, regole);
            const std::size_t at = start + campo.offset;
            const std::string trouble = rule == nullptr ? "" : rule->guaio(bytes.substr(at, campo.length));
            if (!trouble.empty()) {
                rilievi.add(file, start / length, at, std::string(campo.name) + " " + trouble);
            }
        }
    }
}

} // namespace planner
