// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/staff.h"

#include <algorithm>

namespace planner {

namespace {

constexpr std::size_t CodeCount = std::size_t{256} * 256;

/// Two bytes of a trimmed code as a number; nothing fits a longer text.
std::size_t slotOf(std::string_view trimmed) {
    const auto byteAt = [&](std::size_t i) {
        return static_cast<std::size_t>(static_cast<unsigned char>(i < trimmed.size() ? trimmed[i] : ' '));
    };
    return byteAt(0) * 256 + byteAt(1);
}

} // namespace

const Collaboratore* trovaCollaboratore(std::span<const Collaboratore> collaboratori,
                                        IndiceCollaboratore indice) {
    const auto at = static_cast<std::size_t>(indice.valore);
    return indice.presente() && at < collaboratori.size() ? &collaboratori[at] : nullptr;
}

IndiceCodici::IndiceCodici(std::span<const Collaboratore> collaboratori)
    : m_posti(std::make_unique<std::uint16_t[]>(CodeCount)) {
    const std::size_t count = std::min<std::size_t>(collaboratori.size(), std::size_t{INT16_MAX} + 1);
    for (std::size_t i = 0; i < count; ++i) {
        auto& posto = m_posti[slotOf(collaboratori[i].codice.trimmed())];
        posto = posto == 0 ? static_cast<std::uint16_t>(i + 1) : posto;
    }
    m_ultimo = static_cast<std::int16_t>(count > 0 ? count - 1 : 0);
}

IndiceCollaboratore IndiceCodici::trova(std::string_view codice) const {
    const std::string_view trimmed = trim(codice);
    return {trimmed.size() > 2 || !m_posti ? -1 : m_posti[slotOf(trimmed)] - 1};
}

IndiceCollaboratore IndiceCodici::IndCollaboratore(std::string_view codice) const {
    const IndiceCollaboratore found = trova(codice);
    return found.presente() ? found : IndiceCollaboratore{m_ultimo};
}

std::string EstraiCollaboratore(std::span<const Collaboratore> collaboratori, const IndiceCodici& indice,
                                std::string_view codice) {
    const Collaboratore* found = trovaCollaboratore(collaboratori, indice.trova(codice));
    return found != nullptr ? std::string(found->nome.trimmedRight()) : "  ";
}

} // namespace planner
