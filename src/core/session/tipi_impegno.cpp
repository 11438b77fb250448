// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/tipi_impegno.h"

#include <algorithm>

namespace planner {

namespace {

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

unsigned tipiPresenti(const ValoriContatori& valori) {
    unsigned tipi = 0;
    for (std::size_t i = 0; i < TipiImpegno.size(); ++i) {
        const auto& [first, second] = descrizione(TipiImpegno[i].totale).contatori;
        const bool holdsFirst = valori.at(first) != 0;
        const bool holdsSecond = valori.at(second) != 0;
        tipi |= static_cast<unsigned>(holdsFirst | holdsSecond) << i;
    }
    return tipi;
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

std::string nomiTipi(unsigned tipi) {
    std::string names;
    for (const TipoImpegno tipo : OrdineTipi) {
        if ((tipi & insieme(tipo)) != 0) {
            names += (names.empty() ? "" : ", ") + std::string(descrizione(tipo).nome);
        }
    }
    return names;
}

std::vector<VoceLegenda> legendaDisegni(bool dettagliato) {
    if (!dettagliato) {
        return {{ImmaginePresenza, "Planner non dettagliato: nel giorno c'è almeno un impegno",
                 "almeno un impegno"}};
    }
    std::vector<VoceLegenda> entries;
    entries.reserve(TipiImpegno.size() + 1);
    for (const DescrizioneImpegno& tipo : TipiImpegno) {
        entries.push_back(
            {Eval_imagedisplay({&tipo.cifra, 1}), inizialeMaiuscola(tipo.nome), std::string(tipo.nome)});
    }
    entries.push_back({Eval_imagedisplay(ChiaviImmagini.front()),
                       "Più disegni insieme: più tipi di impegno nello stesso giorno",
                       {}});
    return entries;
}

std::string inizialeMaiuscola(std::string_view text) {
    std::string capital(text);
    if (!capital.empty() && capital.front() >= 'a' && capital.front() <= 'z') {
        capital.front() = static_cast<char>(capital.front() - 'a' + 'A');
    }
    return capital;
}

} // namespace planner
