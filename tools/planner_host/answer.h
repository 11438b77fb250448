// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/transit_request.h"
#include "session/dates.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// The action letters that an answer can end with.
struct AzioneRisposta {
    char lettera;
    std::string_view significato; // Italian, UTF-8
};

inline constexpr std::array AzioniRisposta{
    AzioneRisposta{'E', "chiusura del planner"},
    AzioneRisposta{'F', "filtri, la finestra resta pronta"},
    AzioneRisposta{'A', "apertura dell'agenda"},
    AzioneRisposta{'C', "collaboratore scelto"},
    AzioneRisposta{'D', "consultazione del giorno"},
    AzioneRisposta{'I', "inserimento di un impegno"},
    AzioneRisposta{'P', "anno precedente"},
    AzioneRisposta{'S', "anno successivo"},
    AzioneRisposta{'T', "inserimento di una pratica"},
    AzioneRisposta{' ', "nessuna azione"},
};

/// What an answer's `valret` says.
struct Risposta {
    Data giorno;
    FixedText<2> collab; // blank for none
    char azione;
};

/// Reads the eleven characters; nothing when the first eight are no day or the last no action letter.
std::optional<Risposta> leggiRisposta(std::string_view valret);

/// The Italian meaning of an action letter; empty for an unknown one.
std::string_view significatoAzione(char azione);

/// Gives the name (UTF-8) of a staff member's code; empty for an unknown code.
using CercaNome = std::function<std::string(std::string_view codice)>;

/// The answer in one line, in Italian and UTF-8:
/// `20060315RBD  giorno 15/03/2006, collaboratore RB (Rossi Bruno), D = consultazione del giorno`.
std::string descriviRisposta(std::string_view valret, const CercaNome& cercaNome);

} // namespace planner
