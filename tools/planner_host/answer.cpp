// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/answer.h"

#include "planner_host/readable_text.h"
#include "planner_host/request.h"

#include <algorithm>

namespace planner {

namespace {

const AzioneRisposta* trovaAzione(char lettera) {
    const auto found = std::find_if(AzioniRisposta.begin(), AzioniRisposta.end(),
                                    [&](const AzioneRisposta& azione) { return azione.lettera == lettera; });
    return found == AzioniRisposta.end() ? nullptr : &*found;
}

std::string describeStaff(const FixedText<2>& collab, const CercaNome& cercaNome) {
    if (collab.trimmed().empty()) {
        return "nessun collaboratore";
    }
    const std::string nome = cercaNome(collab.view());
    return "collaboratore " + testoLeggibile(collab.view()) + " (" + (nome.empty() ? "sconosciuto" : nome) +
           ")";
}

std::string describeAction(char azione) {
    const std::string letter = azione == ' ' ? "spazio" : std::string(1, azione);
    return letter + " = " + std::string(significatoAzione(azione));
}

} // namespace

std::optional<Risposta> leggiRisposta(std::string_view valret) {
    const auto giorno = parseDate(slice(valret, 0, 8));
    const bool complete = valret.size() == 11 && trovaAzione(valret.back()) != nullptr;
    if (!giorno || !complete) {
        return std::nullopt;
    }
    return Risposta{*giorno, FixedText<2>(slice(valret, 8, 2)), valret.back()};
}

std::string_view significatoAzione(char azione) {
    const AzioneRisposta* found = trovaAzione(azione);
    return found == nullptr ? std::string_view{} : found->significato;
}

std::string descriviRisposta(std::string_view valret, const CercaNome& cercaNome) {
    const std::string text = testoLeggibile(valret);
    const auto risposta = leggiRisposta(valret);
    if (!risposta) {
        return text + "  risposta non valida";
    }
    return text + "  giorno " + giornoLeggibile(slice(valret, 0, 8)) + ", " +
           describeStaff(risposta->collab, cercaNome) + ", " + describeAction(risposta->azione);
}

} // namespace planner
