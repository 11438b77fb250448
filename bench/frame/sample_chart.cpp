// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "frame/sample_chart.h"

#include "frame/frame_times.h"

#include <array>
#include <cstdio>

namespace planner {

namespace {

constexpr Data Day{std::chrono::year{2006}, std::chrono::March, std::chrono::day{15}};
constexpr QSize Window{1366, 768};

std::string codeOf(int number) {
    constexpr std::string_view signs = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const auto n = static_cast<std::size_t>(number);
    return {signs[n / signs.size() % signs.size()], signs[n % signs.size()]};
}

Archivi largeOffice() {
    Archivi archivi;
    archivi.NumCollab = SampleChart::Staff;
    archivi.Collaboratori.resize(SampleChart::Staff + 1);
    archivi.NumGrafici = SampleChart::Records;
    archivi.RigheGrafici.resize(SampleChart::Records + 1);
    for (int i = 0; i < SampleChart::Staff; ++i) {
        Collaboratore& each = archivi.Collaboratori[static_cast<std::size_t>(i)];
        each.codice.assign(codeOf(i));
        each.nome.assign("Collaboratore " + std::to_string(i));
    }
    for (int i = 0; i < SampleChart::Records; ++i) {
        RigaGrafico& each = archivi.RigheGrafici[static_cast<std::size_t>(i)];
        std::array<char, 8> hours{};
        std::snprintf(hours.data(), hours.size(), "%04d:%02d", i * 7 % 10, i % 4 * 15);
        each.codice.assign(codeOf(i % SampleChart::Staff));
        each.anno.assign("2006");
        each.mese.assign("03");
        each.giorno.assign("15");
        each.ore.front().assign(hours.data());
    }
    return archivi;
}

Calendario onTheDay() {
    Calendario calendario;
    calendario.setValue(Day);
    return calendario;
}

} // namespace

SampleChart::SampleChart()
    : m_archivi(largeOffice()), m_calendario(onTheDay()), m_form(m_archivi, m_calendario),
      m_dialog((readAgain(), m_form), m_messaggi, nullptr) {
    m_dialog.resize(Window);
    m_dialog.show();
    paintAll();
}

void SampleChart::choose(int option) {
    m_form.OptTipoGrafico_Click(option);
    view().refresh();
}

} // namespace planner
