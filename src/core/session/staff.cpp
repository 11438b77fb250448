// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/staff.h"

#include <algorithm>

namespace planner {

namespace {

constexpr std::size_t CodeCount = 256u * 256u;

/// Two bytes of a trimmed code as a number; nothing fits a longer text.
std::size_t slotOf(std::string_view trimmed) {
    const auto byteAt = [&](std::size_t i) {
        return static_cast<std::size_t>(static_cast<unsigned char>(i < trimmed.size() ? trimmed[i] : ' '));
    };
    return byteAt(0) * 256 + byteAt(1);
}

/// The pictures by set of kinds: the fills ask for one with every record.
constexpr std::array<std::int16_t, 1u << TipiImpegno.size()> ImmaginiTipi = [] {
    std::array<std::int16_t, 1u << TipiImpegno.size()> pictures{};
    for (std::size_t i = 0; i < ChiaviImmagini.size(); ++i) {
        unsigned tipi = 0;
        for (const char cifra : ChiaviImmagini[i]) {
            tipi |= 1u << (cifra - '1');
        }
        pictures[tipi] = static_cast<std::int16_t>(i + 1);
    }
    return pictures;
}();

} // namespace

IndiceCodici::IndiceCodici() : m_indici(CodeCount, -1) {}

IndiceCodici::IndiceCodici(std::span<const Collaboratore> collaboratori) : IndiceCodici() {
    const std::size_t count = std::min<std::size_t>(collaboratori.size(), std::size_t{INT16_MAX} + 1);
    for (std::size_t i = 0; i < count; ++i) {
        auto& indice = m_indici[slotOf(collaboratori[i].codice.trimmed())];
        indice = indice < 0 ? static_cast<std::int16_t>(i) : indice;
    }
    m_ultimo = static_cast<std::int16_t>(count > 0 ? count - 1 : 0);
}

std::int16_t IndiceCodici::trova(std::string_view codice) const {
    const std::string_view trimmed = trim(codice);
    return trimmed.size() > 2 ? std::int16_t{-1} : m_indici[slotOf(trimmed)];
}

std::int16_t IndiceCodici::IndCollaboratore(std::string_view codice) const {
    const std::int16_t found = trova(codice);
    return found < 0 ? m_ultimo : found;
}

std::string EstraiCollaboratore(std::span<const Collaboratore> collaboratori, const IndiceCodici& indice,
                                std::string_view codice) {
    const std::int16_t found = indice.trova(codice);
    const bool known = found >= 0 && static_cast<std::size_t>(found) < collaboratori.size();
    return known ? std::string(collaboratori[static_cast<std::size_t>(found)].nome.trimmedRight()) : "  ";
}

std::int16_t Eval_imagedisplay(std::string_view deps) {
    const auto found = std::find(ChiaviImmagini.begin(), ChiaviImmagini.end(), deps);
    return found == ChiaviImmagini.end() ? std::int16_t{0}
                                         : static_cast<std::int16_t>(found - ChiaviImmagini.begin() + 1);
}

std::int16_t immagineTipi(unsigned tipi) {
    return tipi < ImmaginiTipi.size() ? ImmaginiTipi[tipi] : std::int16_t{0};
}

std::string_view chiaveImmagine(int immagine) {
    const bool known = immagine >= 1 && static_cast<std::size_t>(immagine) <= ChiaviImmagini.size();
    return known ? ChiaviImmagini[static_cast<std::size_t>(immagine - 1)] : std::string_view{};
}

} // namespace planner
