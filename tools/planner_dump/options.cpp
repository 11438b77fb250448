// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "options.h"

#include "served_request/in_quotes.h"

#include <charconv>
#include <string_view>
#include <system_error>

namespace planner {

namespace {

IndiceCollaboratore readStaffIndex(ArgumentReader& reader) {
    const std::string_view text = reader.valueOf("dopo --grafico manca l'indice del collaboratore");
    std::int16_t index = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
    if (error != std::errc{} || end != text.data() + text.size()) {
        throw UsageError(inQuotes(text) + " non è un indice fra -32768 e 32767");
    }
    return {index};
}

bool readArgument(Options& options, std::string_view argument, ArgumentReader& reader) {
    const bool own = argument == "--grafico";
    if (own) {
        options.grafico = readStaffIndex(reader);
    }
    return own;
}

} // namespace

Options parseOptions(std::span<const std::string> arguments) {
    return readArguments<Options>(arguments, readArgument);
}

const char* const HelpText = R"(Uso: planner-dump TRANSITO [--grafico N] [--oggi AAAAMMGG]

Legge la richiesta nel file TRANSITO e gli archivi della stessa cartella come il
planner, e scrive sull'uscita un oggetto JSON con tutto ciò che la finestra
mostrerebbe. Non apre finestre e non scrive alcun file.

  --grafico N      aggiunge il grafico delle ore che si aprirebbe con il
                   collaboratore N selezionato: il primo è 0, un numero
                   negativo è nessuno; null se non se ne aprirebbe alcuno
  --oggi AAAAMMGG  la data da prendere come oggi; altrimenti quella del sistema
  --help           questo testo

Esito: 0 richiesta letta, 1 file di transito illeggibile o altro errore,
2 argomenti errati.
)";

} // namespace planner
