// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/colpo_docchio.h"

#include "archive/cp1252.h"
#include "engine/kinds/kind.h"
#include "forms/plcal/design.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/sentences.h"

namespace planner {

namespace {

std::string deadlinesOf(const ControlliPlcal& controlli, int colonna, int scadenze) {
    const Griglia& griglia = controlli.Flxm;
    const auto day = mensile().giornoCella(controlli.calendario, {griglia.FixedRows(), colonna});
    const std::string count = scadenze == 0   ? "nessuna scadenza"
                              : scadenze == 1 ? "1 scadenza"
                                              : std::to_string(scadenze) + " scadenze";
    return (day ? dataEstesa(*day) + ": " : "") + count + " dello studio";
}

std::string freeAt(int colonna, int liberi) {
    const std::string count = liberi == 0   ? "nessuno libero"
                              : liberi == 1 ? "1 libero"
                                            : std::to_string(liberi) + " liberi";
    return count + " alle " + oraColonna(colonna);
}

} // namespace

std::string fraseColonna(const ControlliPlcal& controlli, TipoPlanner tipo, int colonna) {
    if (controlli.tipoVisibile != tipo) {
        return {};
    }
    const auto valore = controlli.griglia(tipo).riepilogo(colonna);
    return !valore                 ? std::string()
           : regole(tipo).unGiorno ? freeAt(colonna, *valore)
                                   : deadlinesOf(controlli, colonna, *valore);
}

std::string fraseTotali(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo, int riga) {
    const Griglia& griglia = controlli.griglia(tipo);
    const bool name = controlli.tipoVisibile == tipo && griglia.isDataCell({riga, Griglia::FixedCols()}) &&
                      griglia.cella(riga, 0).testo != 0;
    if (!name || !regole(tipo).perCollaboratore) {
        return {};
    }
    std::string totals;
    for (std::size_t i = 0; i < CategorieTotali.size(); ++i) {
        const auto totale = static_cast<Totale>(i);
        const std::string number =
            formatoTotale(sessione.TotaliImpegni.at(indiceDiRiga(griglia, riga), totale));
        const bool deadlines = totale == Totale::scadenze || totale == Totale::scadenzeConcluse;
        if (!number.empty() && !(deadlines && sessione.varianteRidotta())) {
            totals += (totals.empty() ? "" : ", ") + std::string(CategorieTotali[i].nome) + " " + number;
        }
    }
    return utf8FromCp1252(griglia.TextMatrix(riga, 0)) + ": " + (totals.empty() ? "nessun impegno" : totals);
}

} // namespace planner
