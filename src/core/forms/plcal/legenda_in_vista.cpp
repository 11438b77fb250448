// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/legenda_in_vista.h"

#include "engine/kinds/kind.h"

namespace planner {

std::vector<VoceLegenda> legendaInVista(const ControlliPlcal& controlli) {
    const RegoleTipo* tipo = regoleVisibili(controlli);
    if (tipo == nullptr) {
        return {};
    }
    if (!tipo->perCollaboratore) {
        return {{VoceLegenda::GiornoSegnato, "Giorno con impegni", "giorno con impegni"}};
    }
    std::vector<VoceLegenda> voci = legendaDisegni(controlli.Toolbar1.dettagliato());
    std::erase_if(voci, [](const VoceLegenda& voce) { return voce.breve.empty(); });
    return voci;
}

std::string fraseLegenda(const std::vector<VoceLegenda>& voci) {
    std::string frase;
    for (const VoceLegenda& voce : voci) {
        frase += (frase.empty() ? "" : ", ") + voce.breve;
    }
    return frase;
}

} // namespace planner
