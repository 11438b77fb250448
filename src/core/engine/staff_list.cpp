// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/staff_list.h"

#include "archive/fixed_text.h"
#include "ports/runtime_errors.h"

#include <algorithm>

namespace planner {

std::size_t ListaCollaboratori::checked(int indice) const {
    if (indice < 0 || indice >= righe()) {
        throw SubscriptError();
    }
    return static_cast<std::size_t>(indice);
}

const RigaCollaboratore& ListaCollaboratori::riga(int indice) const {
    return m_righe[checked(indice)];
}

void ListaCollaboratori::svuota() {
    m_righe.clear();
    m_selezionata.reset();
    m_ordinamento = Ordinamento::nessuno;
    m_tolte = 0;
}

void ListaCollaboratori::aggiungi(std::string_view codice, std::string_view nome, std::string_view mansione) {
    m_righe.push_back({std::string(codice), std::string(trimRight(nome)), std::string(trimRight(mansione))});
}

void ListaCollaboratori::spunta(int indice, bool spuntata) {
    m_righe[checked(indice)].spuntata = spuntata;
}

void ListaCollaboratori::spuntaTutte(bool spuntata) {
    for (RigaCollaboratore& riga : m_righe) {
        riga.spuntata = spuntata;
    }
}

int ListaCollaboratori::spuntate() const {
    return static_cast<int>(
        std::count_if(m_righe.begin(), m_righe.end(), [](const auto& riga) { return riga.spuntata; }));
}

void ListaCollaboratori::tieniSpuntate() {
    if (m_selezionata) {
        const auto selected = m_righe.begin() + *m_selezionata;
        const auto kept =
            std::count_if(m_righe.begin(), selected, [](const auto& riga) { return riga.spuntata; });
        m_selezionata = selected->spuntata ? std::optional(static_cast<int>(kept)) : std::nullopt;
    }
    m_tolte += static_cast<int>(std::erase_if(m_righe, [](const auto& riga) { return !riga.spuntata; }));
}

void ListaCollaboratori::seleziona(std::optional<int> indice) {
    if (indice) {
        checked(*indice);
    }
    m_selezionata = indice;
}

void ListaCollaboratori::checkOrder(const std::vector<int>& indici) const {
    std::vector<bool> seen(m_righe.size());
    for (const int indice : indici) {
        const std::size_t from = checked(indice);
        if (seen[from]) {
            throw SubscriptError();
        }
        seen[from] = true;
    }
    if (indici.size() != m_righe.size()) {
        throw SubscriptError();
    }
}

void ListaCollaboratori::riordina(const std::vector<int>& indici, Ordinamento ordinamento) {
    checkOrder(indici);
    std::vector<RigaCollaboratore> sorted;
    sorted.reserve(m_righe.size());
    std::optional<int> selected;
    for (const int from : indici) {
        if (m_selezionata == from) {
            selected = static_cast<int>(sorted.size());
        }
        sorted.push_back(std::move(m_righe[static_cast<std::size_t>(from)]));
    }
    m_righe = std::move(sorted);
    m_selezionata = selected;
    m_ordinamento = ordinamento;
}

} // namespace planner
