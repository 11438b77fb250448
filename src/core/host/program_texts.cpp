// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/program_texts.h"

#include "session/versione.h"

namespace planner {

namespace {

constexpr std::string_view Aiuto = R"(Uso: planner TRANSITO FLAG EVENTO

Mostra il planner degli impegni dei collaboratori. Lo avvia il programma dello studio,
che scrive una richiesta alla volta nel file di transito e aspetta lì la risposta; da
solo non serve. Per provarlo: planner-host.

  TRANSITO   il file di transito, un record di 121 byte; gli archivi stanno nella sua cartella
  FLAG       un carattere; 0 con NOEVENT toglie TvPlaOK.lck e finisce
  EVENTO     il nome dell'evento che planner e programma si segnalano, oppure NOEVENT: allora
             si parlano con i file LockPl.lck e TvPlaOK.lck, nella cartella del file di transito

  --help     mostra questo aiuto, se è il solo argomento
  --version  mostra la versione, se è il solo argomento

Codici di uscita: 0 il planner è stato chiuso, o non c'era nulla da fare; 1 qualcosa non ha
funzionato, e lo dice un messaggio o l'errore standard.
)";

} // namespace

std::optional<std::string> testoChiesto(std::string_view line) {
    if (line == "--help") {
        return std::string(Aiuto);
    }
    if (line == "--version") {
        return "planner " + std::string(versione()) + "\n";
    }
    return std::nullopt;
}

} // namespace planner
