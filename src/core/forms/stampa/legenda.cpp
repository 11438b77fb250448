// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/stampa/legenda.h"

#include "forms/stampa/impaginazione.h"

#include <algorithm>

namespace planner {

namespace {

constexpr double AltezzaVoce = 14;
constexpr double LatoCampione = 11;
constexpr double DistanzaTesto = 3;
constexpr double DistanzaVoci = 12;

bool showsToday(const Griglia& griglia) {
    for (int riga = 0; riga < griglia.Rows(); ++riga) {
        for (int colonna = 0; colonna < griglia.Cols(); ++colonna) {
            if (griglia.cella(riga, colonna).oggi) {
                return true;
            }
        }
    }
    return false;
}

void addPictures(std::vector<VoceStampa>& voci, const ControlliPlcal& controlli) {
    for (VoceLegenda& voce : legendaDisegni(controlli.Toolbar1.dettagliato())) {
        voci.push_back({SegnoStampa::disegno, voce.immagine, std::move(voce.significato)});
    }
}

void addDaySigns(std::vector<VoceStampa>& voci) {
    voci.push_back({SegnoStampa::fineSettimana, 0, "Sabato e domenica"});
    voci.push_back({SegnoStampa::festivo, 0, "Festivo"});
}

} // namespace

std::vector<VoceStampa> vociLegenda(const ControlliPlcal& controlli) {
    const RegoleTipo& tipo = regole(*controlli.tipoVisibile);
    const Griglia& griglia = *controlli.grigliaVisibile();
    std::vector<VoceStampa> voci;
    if (tipo.perCollaboratore) {
        addPictures(voci, controlli);
    } else {
        voci.push_back({SegnoStampa::segnato, 0, "Giorno con impegni"});
    }
    if (tipo.unGiorno) {
        voci.push_back({SegnoStampa::fascia, 0, "Durata dell'impegno"});
    } else {
        addDaySigns(voci);
    }
    if (showsToday(griglia)) {
        voci.push_back({SegnoStampa::oggi, 0, "Oggi"});
    }
    if (griglia.RigaEvidenziata() >= griglia.FixedRows()) {
        voci.push_back({SegnoStampa::evidenziata, 0, "Riga scelta"});
    }
    if (griglia.sceltaAttiva()) {
        voci.push_back({SegnoStampa::scelta, 0, "Casella scelta"});
    }
    return voci;
}

std::vector<VocePosta> disponiLegenda(const std::vector<VoceStampa>& voci, const AreaStampa& area,
                                      const MisuraTesto& misura) {
    std::vector<VocePosta> poste;
    double x = area.x;
    double y = 0;
    for (const VoceStampa& voce : voci) {
        const double wanted = misura(voce.significato, CorpoLegenda, false) + 1;
        const double width = std::min(wanted, area.larghezza - LatoCampione - DistanzaTesto);
        if (x > area.x && x + LatoCampione + DistanzaTesto + width > area.destra()) {
            x = area.x;
            y += AltezzaVoce;
        }
        const double text = x + LatoCampione + DistanzaTesto;
        poste.push_back({voce,
                         {x, y + (AltezzaVoce - LatoCampione) / 2, LatoCampione, LatoCampione},
                         {text, y, width, AltezzaVoce}});
        x = text + width + DistanzaVoci;
    }
    const double top = area.fondo() - (poste.empty() ? 0 : y + AltezzaVoce);
    for (VocePosta& posta : poste) {
        posta.campione.y += top;
        posta.testo.y += top;
    }
    return poste;
}

} // namespace planner
