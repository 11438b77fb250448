// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// From the event that moves the month to the painted grid, with the real window over a sample archive.

#include "frame/frame_times.h"
#include "frame/sample_planner.h"

#include <QTemporaryDir>
#include <QToolButton>

using namespace planner;

namespace {

constexpr int Staff = 60;
constexpr int Records = 5000;
constexpr int MonthsOneWay = 11;
constexpr int Moves = 20 * MonthsOneWay; // through the year and back, ten times

/// As many rows in sight as can be: without details, at half the designed size.
void showAll(plcal& finestra) {
    finestra.Toolbar1_ButtonClick("dettno");
    while (finestra.ingrandimento().percento() > 50) {
        finestra.griglia_Comando(ComandoGriglia::riduci);
    }
}

FrameReport measure() {
    const QTemporaryDir folder;
    makeSample(folder.path().toStdString(), Staff, Records);
    SamplePlanner planner(folder.path().toStdString());
    planner.show();
    auto& next = *planner.finestre().vista.findChild<QToolButton*>(QStringLiteral("bselm1"));
    auto& previous = *planner.finestre().vista.findChild<QToolButton*>(QStringLiteral("bselm0"));
    int move = 0;
    const auto moveMonth = [&] { (move++ / MonthsOneWay % 2 == 0 ? next : previous).click(); };
    const auto nothing = [] {};
    measureFrames("warm", false, Moves, nothing, moveMonth);
    FrameReport report{"previous/next month, event to painted, " + std::to_string(Staff) + " staff, " +
                           std::to_string(Records) + " records, " + std::to_string(Moves) + " moves",
                       {measureFrames("month", true, Moves, nothing, moveMonth)}};
    showAll(planner.finestre().finestra);
    measureFrames("warm", false, Moves, nothing, moveMonth);
    report.times.push_back(measureFrames("all in sight", true, Moves, nothing, moveMonth));
    return report;
}

} // namespace

int main(int argc, char* argv[]) {
    return frameBenchmark(argc, argv, measure);
}
