// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/salti.h"

#include "engine/kinds/kind.h"
#include "forms/plcal/design.h"
#include "forms/plcal/gesti.h"
#include "forms/plcal/yearly_day.h"

#include <algorithm>

namespace planner {

namespace {

/// The kinds that the counters of a day of the year hold: they have the names of the yearly panel.
unsigned kindsOfDay(const ValoriContatori& valori) {
    unsigned kinds = 0;
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        for (const TipoImpegno tipo : OrdineTipi) {
            if (etichetta.annuale && etichetta.nomeInFrase == descrizione(tipo).nome &&
                somma(valori, etichetta.totale) != 0) {
                kinds |= insieme(tipo);
            }
        }
    }
    return kinds;
}

bool appointmentBegins(const Griglia& griglia, Casella casella) {
    const auto bars = griglia.fasce(casella.riga);
    return std::any_of(bars.begin(), bars.end(),
                       [&](const FasciaImpegno& bar) { return bar.prima == casella.colonna; });
}

bool stopsAt(const ControlliPlcal& controlli, const Archivi& archivi, const Salto& salto, Casella casella) {
    const RegoleTipo& tipo = *regoleVisibili(controlli);
    const Griglia& griglia = *controlli.grigliaVisibile();
    if (!giornoCella(controlli, tipo.tipo, casella) ||
        (tipo.unGiorno && salto.colonne != 0 && !appointmentBegins(griglia, casella))) {
        return false;
    }
    const Cella& cella = griglia.cella(casella);
    if (salto.tipi == 0) {
        return cella.tipi != 0 || cella.immagine != 0 || cella.impegno || cella.segnato;
    }
    const unsigned kinds = tipo.perCollaboratore ? cella.tipi : kindsOfDay(valoriGiorno(archivi, casella));
    return (kinds & salto.tipi) != 0;
}

} // namespace

std::optional<Casella> destinazione(const ControlliPlcal& controlli, const Archivi& archivi,
                                    const Salto& salto) {
    const Griglia* griglia = controlli.grigliaVisibile();
    if (griglia == nullptr) {
        return std::nullopt;
    }
    const auto after = [&salto](Casella from) {
        return Casella{from.riga + salto.righe, from.colonna + salto.colonne};
    };
    for (Casella casella = after(griglia->corrente()); griglia->isDataCell(casella);
         casella = after(casella)) {
        if (stopsAt(controlli, archivi, salto, casella)) {
            return casella;
        }
    }
    return std::nullopt;
}

std::string saltoVuoto(const Salto& salto) {
    const bool lungoLaRiga = salto.colonne != 0;
    const std::string dove =
        lungoLaRiga ? (salto.colonne > 0 ? "dopo" : "prima di") : (salto.righe > 0 ? "sotto" : "sopra");
    const std::string che = salto.tipi == 0 ? "non c'è altro " : "non ci sono " + nomiTipi(salto.tipi) + " ";
    return std::string(lungoLaRiga ? "Nella riga " : "Nella colonna ") + che + dove + " questa casella.";
}

} // namespace planner
