// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/colpo_docchio.h"

#include "archive/cp1252.h"
#include "engine/kinds/kind.h"
#include "forms/plcal/impegni_casella.h"
#include "forms/plcal/lettura.h"
#include "forms/plcal/sentences.h"

namespace planner {

namespace {

std::string deadlinesOf(const ControlliPlcal& controlli, int colonna, int scadenze) {
    const Griglia& griglia = controlli.Flxm;
    const auto day = mensile().giornoCella(controlli.calendario, {griglia.FixedRows(), colonna});
    const std::string count =
        scadenze == 0 ? std::string("nessuna scadenza") : quanti(scadenze, "scadenza", "scadenze");
    return (day ? giornoInParole(*day) + ": " : "") + count + " dello studio";
}

std::string freeAt(int colonna, int liberi) {
    const std::string count =
        liberi == 0 ? std::string("nessuno libero") : quanti(liberi, "libero", "liberi");
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
    return utf8FromCp1252(griglia.TextMatrix(riga, 0)) + ": " + totaliRiga(controlli, sessione, riga);
}

} // namespace planner
