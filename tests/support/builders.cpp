// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/builders.h"

namespace planner::test {

RigaPlanner riga(std::string_view codice, std::string_view giorno,
                 std::initializer_list<Contatore> contatori) {
    RigaPlanner riga;
    riga.codice.assign(codice);
    riga.anno.assign(giorno.substr(0, 4));
    riga.mese.assign(giorno.substr(4, 2));
    riga.giorno.assign(giorno.substr(6, 2));
    for (const auto& [number, text] : contatori) {
        riga.contatori.at(number - 1).assign(text);
    }
    return riga;
}

RigaPlanner conOrario(RigaPlanner riga, std::string_view ora, std::string_view minuto,
                      std::string_view durata) {
    riga.oraInizio.assign(ora);
    riga.minutoInizio.assign(minuto);
    riga.durata.assign(durata);
    return riga;
}

Collaboratore collaboratore(std::string_view codice, std::string_view nome, std::string_view mansione) {
    Collaboratore collaboratore;
    collaboratore.codice.assign(codice);
    collaboratore.nome.assign(nome);
    collaboratore.mansione.assign(mansione);
    return collaboratore;
}

RigaGrafico rigaGrafico(std::string_view codice, std::string_view giorno, std::string_view ore) {
    RigaGrafico riga;
    riga.codice.assign(codice);
    riga.anno.assign(giorno.substr(0, 4));
    riga.mese.assign(giorno.substr(4, 2));
    riga.giorno.assign(giorno.substr(6, 2));
    riga.ore.front().assign(ore);
    return riga;
}

std::vector<MesePlanner> annoPlanner(std::string_view anno,
                                     std::initializer_list<std::pair<int, int>> segnati) {
    std::vector<MesePlanner> mesi(12);
    for (MesePlanner& mese : mesi) {
        mese.anno.assign(anno);
    }
    for (const auto& [month, cell] : segnati) {
        mesi.at(static_cast<std::size_t>(month - 1)).segni.at(static_cast<std::size_t>(cell - 1)).assign("*");
    }
    return mesi;
}

TransitRequest richiesta(std::string_view tipoplanner) {
    TransitRequest request;
    request.riservato1.assign("host-001");
    request.tipoplanner.assign(tipoplanner);
    request.startdate.assign("20060315");
    request.enddate.assign("20061231");
    request.riservato2.assign("dati del programma chiamante");
    request.valret.assign("00000000");
    return request;
}

} // namespace planner::test
