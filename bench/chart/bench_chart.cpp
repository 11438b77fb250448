// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// The daily chart of a large staff: from the event to the painted chart, with the real chart window.

#include "forms/plfgraf/plfgraf.h"
#include "frame/frame_times.h"
#include "ui/plfgraf/chart_dialog.h"
#include "ui/plfgraf/chart_view.h"
#include "ui/ports/qt_message_boxes.h"

#include <QApplication>

#include <array>
#include <cstdio>

using namespace planner;

namespace {

constexpr int Staff = 500;
constexpr int Records = 32'766; // all on the shown day
constexpr int Times = 100;
constexpr Data Day{std::chrono::year{2006}, std::chrono::March, std::chrono::day{15}};
constexpr Dimensioni Window{1366, 768};

std::string codeOf(int number) {
    constexpr std::string_view signs = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const auto n = static_cast<std::size_t>(number);
    return {signs[n / signs.size() % signs.size()], signs[n % signs.size()]};
}

Archivi largeOffice() {
    Archivi archivi;
    archivi.NumCollab = Staff;
    archivi.Collaboratori.resize(Staff + 1);
    archivi.NumGrafici = Records;
    archivi.RigheGrafici.resize(Records + 1);
    for (int i = 0; i < Staff; ++i) {
        Collaboratore& each = archivi.Collaboratori[static_cast<std::size_t>(i)];
        each.codice.assign(codeOf(i));
        each.nome.assign("Collaboratore " + std::to_string(i));
    }
    for (int i = 0; i < Records; ++i) {
        RigaGrafico& each = archivi.RigheGrafici[static_cast<std::size_t>(i)];
        std::array<char, 8> hours{};
        std::snprintf(hours.data(), hours.size(), "%04d:%02d", i * 7 % 10, i % 4 * 15);
        each.codice.assign(codeOf(i % Staff));
        each.anno.assign("2006");
        each.mese.assign("03");
        each.giorno.assign("15");
        each.ore.front().assign(hours.data());
    }
    return archivi;
}

FrameReport measure() {
    const Archivi archivi = largeOffice();
    Calendario calendario;
    calendario.setValue(Day);
    plfgraf form(archivi, calendario);
    form.VisualizzaGraficoGiornaliero({1});
    QtMessageBoxes messaggi;
    ChartDialog dialog(form, messaggi, nullptr);
    dialog.resize(Window.width, Window.height);
    dialog.show();
    paintAll();
    ChartView& chart = *dialog.findChild<ChartView*>();
    const auto choose = [&](int option) {
        form.OptTipoGrafico_Click(option);
        chart.refresh();
    };
    const auto nothing = [] {};
    int value = 0;
    const auto next = [&] { chart.setCurrentIndex(chart.model()->index(++value % Staff, 0)); };
    FrameReport report{"chart of " + std::to_string(Staff) + " staff, " + std::to_string(Records) +
                           " records, event to painted, " + std::to_string(Times) + " times each",
                       {}};
    report.times = {
        measureFrames("contents", false, Times, nothing, [&] { form.VisualizzaGraficoGiornaliero({1}); }),
        measureFrames("bars", false, Times, nothing, [&] { choose(0); }),
        measureFrames("next bar", true, Times, nothing, next),
        measureFrames("pie", false, Times, nothing, [&] { choose(2); }),
        measureFrames("next slice", true, Times, nothing, next),
    };
    return report;
}

} // namespace

int main(int argc, char* argv[]) {
    return frameBenchmark(argc, argv, measure);
}
