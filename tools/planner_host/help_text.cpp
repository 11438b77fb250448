// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/option_table.h"

#include <algorithm>

namespace planner {

namespace {

constexpr std::string_view Introduzione =
    R"(Uso: planner-host [opzioni]

Fa la parte dell'host: prepara una cartella di archivio, scrive la richiesta nel
file di transito, avvia il planner, aspetta la risposta, la mostra e le dà seguito,
finché il planner risponde "E". Senza opzioni mostra il planner mensile di oggi su
un archivio campione.
)";

constexpr std::string_view Conclusione =
    R"(
Il planner è avviato così, con argomenti separati:
  planner CARTELLA/transito.dat FLAG EVENTO       in modo evento
  planner CARTELLA/transito.dat FLAG NOEVENT      in modo polling

Modo evento: l'host scrive la richiesta, avvia il planner e aspetta l'evento
(TvIpcWaitEvento); poi legge la risposta. Per ogni altra richiesta riscrive il file,
segnala l'evento (TvIpcSetEvento) e aspetta di nuovo.
Modo polling: l'host scrive la richiesta, poi crea LockPl.lck nella stessa cartella;
quando il planner lo toglie, la risposta è nel file.

Seguito dato alle risposte (ultima lettera di valret):
  E              il planner è chiuso: planner-host ne aspetta la fine
  P, S           prepara l'anno precedente o seguente e ne chiede il planner annuale
  F              applica i filtri e rifà la richiesta: la finestra era rimasta pronta
  A, C, D, I, T  fa la sua parte e rifà la richiesta, con il giorno della risposta

Codici d'uscita: 0 risposta "E", o limite di --risposte raggiunto; 1 uso errato;
2 planner non avviato, finito senza rispondere o con risposta non valida;
3 errore di file o di evento; 128 + n interrotto dal segnale n.

Esempi:
  planner-host --tipo A --anno 2006
  planner-host --giro
  planner-host --modo polling --tipo G --giorno 20060315 --mostra-byte
  planner-host --solo-archivio --archivio prova --anno 2006 --collaboratori 60
)";

void appendOption(std::string& text, const OpzioneRiga& opzione) {
    constexpr std::size_t column = 26;
    std::string head = "  --" + std::string(opzione.nome);
    head += opzione.valore.empty() ? "" : " " + std::string(opzione.valore);
    head.resize(std::max(head.size() + 1, column), ' ');
    text += head;
    for (const char character : opzione.aiuto) {
        text += character;
        if (character == '\n') {
            text.append(column, ' ');
        }
    }
    text += '\n';
}

} // namespace

std::string testoAiuto() {
    std::string text(Introduzione);
    std::string_view gruppo;
    for (const OpzioneRiga& opzione : tabellaOpzioni()) {
        if (opzione.gruppo != gruppo) {
            gruppo = opzione.gruppo;
            text += "\n" + std::string(gruppo) + ":\n";
        }
        appendOption(text, opzione);
    }
    text += Conclusione;
    return text;
}

} // namespace planner
