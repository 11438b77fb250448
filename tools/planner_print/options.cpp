// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "options.h"

#include "served_request/in_quotes.h"

namespace planner {

namespace {

void setOutput(Options& options, FormatoFile formato, std::string_view path) {
    if (!options.outputPath.empty()) {
        throw UsageError("un solo file da scrivere alla volta; di troppo: " + inQuotes(path));
    }
    if (path.empty()) {
        throw UsageError("il nome del file da scrivere è vuoto");
    }
    options.formato = formato;
    options.outputPath = path;
}

bool readArgument(Options& options, std::string_view argument, ArgumentReader& reader) {
    if (argument == "--pdf") {
        setOutput(options, FormatoFile::pdf, reader.valueOf("dopo --pdf manca il nome del file"));
    } else if (argument == "--png") {
        setOutput(options, FormatoFile::png, reader.valueOf("dopo --png manca il nome del file"));
    } else if (argument == "--a3") {
        options.carta = CartaA3;
    } else if (argument == "--totali") {
        options.totali = true;
    } else {
        return false;
    }
    return true;
}

} // namespace

Options parseOptions(std::span<const std::string> arguments) {
    Options options = readArguments<Options>(arguments, readArgument);
    if (!options.help && options.outputPath.empty()) {
        throw UsageError("manca il file da scrivere: --pdf FILE o --png FILE");
    }
    return options;
}

const char* const HelpText = R"(Uso: planner-print TRANSITO --pdf FILE | --png FILE
                     [--a3] [--totali] [--oggi AAAAMMGG]

Legge la richiesta nel file TRANSITO e gli archivi della stessa cartella come il
planner, e mette su carta ciò che la finestra mostrerebbe. Non occorre alcuno
schermo; oltre a FILE non si scrive nulla. I messaggi che il planner mostrerebbe
stanno sull'uscita degli errori.

  --pdf FILE       scrive un documento PDF con tutte le pagine
  --png FILE       scrive un'immagine per pagina: una sola pagina in FILE, più
                   pagine in FILE-1.png, FILE-2.png e così via
                   (piano.png diventa piano-1.png, piano-2.png, ...)
  --a3             fogli A3 invece di A4, sempre orizzontali
  --totali         aggiunge le pagine dei totali
  --oggi AAAAMMGG  la data di stampa e il giorno da segnare come oggi;
                   altrimenti quella del sistema
  --help           questo testo

Esito: 0 stampato, 1 file di transito illeggibile, nulla da stampare o file che
non si può scrivere, 2 argomenti errati.
)";

} // namespace planner
