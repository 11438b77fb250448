// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/office.h"

#include "sample_archive/sample_random.h"
#include "sample_archive/staff_list.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace planner {

namespace {

constexpr std::array MinutiContratto{540, 480, 480, 360, 480, 240, 480, 480, 300, 480, 420, 480};
constexpr std::array CarichiLavoro{80, 120, 110, 90, 130, 60, 100, 140, 70, 110, 50, 100};

void check(const OpzioniCampione& opzioni) {
    const bool valid = opzioni.anno >= AnnoMinimo && opzioni.anno <= AnnoMassimo &&
                       opzioni.collaboratori >= 1 && opzioni.collaboratori <= CollaboratoriMassimi &&
                       opzioni.righe >= 0 && opzioni.righe <= RigheMassime;
    if (!valid) {
        throw std::invalid_argument("sample archive option outside its range");
    }
}

/// The first index of `giorni` in August, and how many of its days are working days.
struct Agosto {
    int first;
    int count;
};

Agosto findAgosto(const std::vector<GiornoLavorativo>& giorni) {
    const auto inMonth = [](const GiornoLavorativo& giorno) { return monthOf(giorno.data) == 8; };
    const auto first = std::find_if(giorni.begin(), giorni.end(), inMonth);
    const auto count = std::count_if(first, giorni.end(), inMonth);
    return {static_cast<int>(first - giorni.begin()), static_cast<int>(count)};
}

/// Two to three weeks of holidays in August and some single days off over the year.
std::vector<bool> presenzeAnno(const std::vector<GiornoLavorativo>& giorni, SampleRandom& random) {
    std::vector<bool> presenze(giorni.size(), true);
    const Agosto agosto = findAgosto(giorni);
    const int holidays = random.between(10, 15);
    const int start = agosto.first + random.between(2, agosto.count - holidays);
    for (int day = start; day < start + holidays; ++day) {
        presenze[static_cast<std::size_t>(day)] = false;
    }
    for (int off = random.between(6, 11); off > 0; --off) {
        presenze[static_cast<std::size_t>(random.below(static_cast<int>(giorni.size())))] = false;
    }
    return presenze;
}

} // namespace

int Ufficio::minutiContratto(std::size_t collaboratore) const {
    return MinutiContratto[collaboratore % MinutiContratto.size()];
}

int Ufficio::caricoLavoro(std::size_t collaboratore) const {
    return CarichiLavoro[collaboratore % CarichiLavoro.size()];
}

Ufficio creaUfficio(const OpzioniCampione& opzioni) {
    check(opzioni);
    constexpr std::uint64_t presenceStream = 0x50524553;
    SampleRandom random(opzioni.seme ^ (presenceStream << 32));
    Ufficio ufficio{
        opzioni.anno, creaCollaboratori(opzioni.collaboratori), giorniLavorativi(opzioni.anno), {}};
    for (std::size_t i = 0; i < ufficio.collaboratori.size(); ++i) {
        ufficio.presenze.push_back(presenzeAnno(ufficio.giorni, random));
    }
    return ufficio;
}

} // namespace planner
