// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/hours.h"

#include "sample_archive/digits.h"
#include "sample_archive/sample_random.h"

#include <algorithm>

namespace planner {

namespace {

constexpr int MinutiMassimi =
    9 * 60 + 45; // from ten hours on the yearly chart's axis would go up to a hundred

/// Around the contract's hours; more when a deadline is near, now and then only half a day.
int minutesWorked(int contratto, int pressione, SampleRandom& random) {
    const bool halfDay = random.chance(10);
    const int percent = halfDay ? random.between(40, 65) : random.between(75, 105) + pressione / 8;
    return std::min(contratto * percent / 100 / QuartoDora * QuartoDora, MinutiMassimi);
}

RigaGrafico hoursRecord(const Collaboratore& collaboratore, Data data, int minutes) {
    RigaGrafico riga;
    riga.codice = collaboratore.codice;
    riga.anno.assign(padded(yearOf(data), 4));
    riga.mese.assign(padded(monthOf(data), 2));
    riga.giorno.assign(padded(dayOf(data), 2));
    riga.ore.fill(FixedText<7>(lengthText(0)));
    riga.ore.front().assign(lengthText(minutes));
    riga.campo10.assign("\r\n"); // lets a text viewer show a line each
    return riga;
}

} // namespace

std::vector<RigaGrafico> creaGrafici(const OpzioniCampione& opzioni, const Ufficio& ufficio) {
    constexpr std::uint64_t hoursStream = 0x4F524520;
    SampleRandom random(opzioni.seme ^ (hoursStream << 32));
    const std::size_t staff = ufficio.collaboratori.size();
    const std::size_t most = ufficio.giorni.size() * staff;
    const std::size_t step = (most + RigheMassime - 1) / RigheMassime; // 1 for all but very large offices

    std::vector<RigaGrafico> grafici;
    for (std::size_t day = 0; day < ufficio.giorni.size(); ++day) {
        for (std::size_t who = 0; who < staff; ++who) {
            const GiornoLavorativo& giorno = ufficio.giorni[day];
            const int minutes = minutesWorked(ufficio.minutiContratto(who), giorno.pressione, random);
            if (ufficio.presenze[who][day] && (day + who) % step == 0) {
                grafici.push_back(hoursRecord(ufficio.collaboratori[who], giorno.data, minutes));
            }
        }
    }
    return grafici;
}

} // namespace planner
