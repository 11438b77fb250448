// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/follow_up.h"

#include <algorithm>

namespace planner {

namespace {

std::string_view workOfHost(char azione) {
    switch (azione) {
    case 'A':
        return "l'host apre l'agenda del giorno";
    case 'C':
        return "l'host tiene conto del collaboratore scelto";
    case 'D':
        return "l'host mostra gli impegni del giorno";
    case 'F':
        return "l'host applica i filtri";
    case 'I':
        return "l'host fa inserire l'impegno";
    case 'T':
        return "l'host fa inserire la pratica";
    default:
        return "l'host non ha niente da fare";
    }
}

/// The same day in another year; the last day of February for a day which that year lacks.
Data sameDay(Data giorno, int anno) {
    const Data moved{std::chrono::year{anno}, giorno.month(), giorno.day()};
    return moved.ok() ? moved : Data{moved.year() / moved.month() / std::chrono::last};
}

/// Only the day changes: period, kind and the host's own fields stay.
TransitRequest repeat(TransitRequest richiesta, Data giorno) {
    richiesta.valret.assign(formatDate(giorno));
    return richiesta;
}

Seguito otherYear(const TransitRequest& richiesta, Data giorno, int step) {
    const int anno = std::clamp(yearOf(giorno) + step, AnnoMinimo, AnnoMassimo);
    TransitRequest next = repeat(richiesta, sameDay(giorno, anno));
    next.tipoplanner.assign("A");
    next.startdate.assign(std::to_string(anno) + "0101");
    next.enddate.assign(std::to_string(anno) + "1231");
    return {"l'host prepara l'anno " + std::to_string(anno) + " e ne chiede il planner annuale", anno, next};
}

} // namespace

Seguito daiSeguito(const TransitRequest& richiesta, const Risposta& risposta) {
    switch (risposta.azione) {
    case 'E':
        return {"il planner è chiuso", std::nullopt, std::nullopt};
    case 'P':
        return otherYear(richiesta, risposta.giorno, -1);
    case 'S':
        return otherYear(richiesta, risposta.giorno, 1);
    default:
        return {std::string(workOfHost(risposta.azione)) + " e rifà la richiesta", std::nullopt,
                repeat(richiesta, risposta.giorno)};
    }
}

} // namespace planner
