// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/impegni_casella.h"

#include "archive/numeric_value.h"
#include "engine/kinds/kind.h"
#include "forms/plcal/panel.h"
#include "grids/entries.h"

#include <algorithm>

namespace planner {

namespace {

bool isOn(const RigaPlanner& riga, Data giorno) {
    return numericValue(riga.giorno.view()) == dayOf(giorno) &&
           numericValue(riga.mese.view()) == monthOf(giorno) &&
           numericValue(riga.anno.view()) == yearOf(giorno);
}

bool showsAny(const Griglia& griglia, Casella casella) {
    const auto bars = griglia.fasce(casella.riga);
    return griglia.cella(casella).tipi != 0 ||
           std::any_of(bars.begin(), bars.end(),
                       [&](const FasciaImpegno& bar) { return bar.copre(casella.colonna); });
}

} // namespace

std::vector<ImpegnoCasella> impegniCasella(const ControlliPlcal& controlli, const modpl& sessione,
                                           TipoPlanner tipo, Casella casella) {
    std::vector<ImpegnoCasella> found;
    const RegoleTipo& rules = regole(tipo);
    const Griglia& griglia = controlli.griglia(tipo);
    const auto giorno = rules.giornoCella(controlli.calendario, casella);
    if (!rules.perCollaboratore || !giorno || !showsAny(griglia, casella)) {
        return found;
    }
    const auto onDay = [&](const RigaPlanner& riga) { return isOn(riga, *giorno); };
    forEachRecord(sessione.archivi, onDay, [&](const RigaPlanner& riga) {
        const Impegno impegno = leggiImpegno(riga, sessione, /*dettagliato=*/true);
        const IntervalloColonne colonne = rules.unGiorno ? colonneImpegno(riga) : IntervalloColonne{};
        const bool covers =
            !rules.unGiorno || (colonne.prima <= casella.colonna && casella.colonna <= colonne.ultima);
        if (covers && rigaCollaboratore(griglia, impegno.indice) == casella.riga) {
            found.push_back({impegno.valori, colonne});
        }
    });
    return found;
}

std::string quanti(double numero, std::string_view singolare, std::string_view plurale) {
    const std::string digits = formatoTotale(numero);
    return digits.empty() ? std::string(plurale)
                          : digits + " " + std::string(digits == "1" ? singolare : plurale);
}

std::string quantiPerTipo(const ValoriContatori& valori) {
    std::string text;
    const unsigned present = tipiPresenti(valori);
    for (const TipoImpegno tipo : OrdineTipi) {
        if ((present & insieme(tipo)) != 0) {
            const DescrizioneImpegno& described = descrizione(tipo);
            text += (text.empty() ? "" : ", ") +
                    quanti(somma(valori, described.totale), described.singolare, described.nome);
        }
    }
    return text;
}

} // namespace planner
