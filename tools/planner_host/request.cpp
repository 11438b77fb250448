// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/request.h"

#include "planner_host/readable_text.h"

namespace planner {

namespace {

/// A plain title. The yearly planner is prepared for the whole office: unless a staff member was asked for,
/// it shows no name in its title.
std::string defaultCaption(const OpzioniHost& opzioni, char tipo) {
    const bool wholeOffice = tipo == 'A' && opzioni.collab.empty();
    return std::string(wholeOffice ? "N" : " ") + "Studio di prova";
}

std::string_view kindName(char tipo) {
    switch (tipo) {
    case 'M':
        return "planner mensile";
    case 'G':
        return "planner giornaliero";
    case 'A':
        return "planner annuale";
    default:
        return "planner di tipo sconosciuto";
    }
}

std::string periodDay(std::string_view yyyymmdd) {
    return yyyymmdd == "00000000" ? "(nessuna data)" : giornoLeggibile(yyyymmdd);
}

} // namespace

TransitRequest creaRichiesta(const OpzioniHost& opzioni, char tipo) {
    TransitRequest richiesta;
    richiesta.riservato1.assign(opzioni.riservato1);
    richiesta.tipoplanner.assign({&tipo, 1});
    richiesta.startdate.assign(opzioni.inizio);
    richiesta.enddate.assign(opzioni.fine);
    richiesta.riservato2.assign(opzioni.riservato2);
    richiesta.tipocall.assign({&opzioni.tipocall, 1});
    richiesta.collab.assign(opzioni.collab);
    richiesta.valret.assign(opzioni.valret.empty() ? opzioni.giorno : opzioni.valret);
    richiesta.Windowcaption.assign(opzioni.windowcaption.empty() ? defaultCaption(opzioni, tipo)
                                                                 : opzioni.windowcaption);
    richiesta.planrichiesto.assign({&opzioni.planrichiesto, 1});
    return richiesta;
}

std::string giornoLeggibile(std::string_view yyyymmdd) {
    if (!parseDate(yyyymmdd)) {
        return "\"" + testoLeggibile(yyyymmdd) + "\"";
    }
    const std::string text(yyyymmdd);
    return text.substr(6, 2) + "/" + text.substr(4, 2) + "/" + text.substr(0, 4);
}

std::string descriviRichiesta(const TransitRequest& richiesta) {
    std::string text(kindName(richiesta.tipoplanner.view().front()));
    text += " dal " + periodDay(richiesta.startdate.view()) + " al " + periodDay(richiesta.enddate.view());
    text += ", giorno " + periodDay(slice(richiesta.valret.view(), 0, 8));
    if (!richiesta.collab.trimmed().empty()) {
        text += ", collaboratore " + testoLeggibile(richiesta.collab.view());
    }
    return text;
}

} // namespace planner
