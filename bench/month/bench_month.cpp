// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// From the event that moves the month to the painted grid, with the real window over a sample archive.

#include "engine/clsplg.h"
#include "forms/plcal/plcal.h"
#include "forms/plcal/plcal_window.h"
#include "forms/plfimp/plfimp_dialog.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/system_clock.h"
#include "platform/qt/appearance.h"
#include "platform/qt/qt_event_pump.h"
#include "platform/qt/qt_message_boxes.h"
#include "sample_archive/sample_archive.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QToolButton>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <optional>
#include <vector>

using namespace planner;

namespace {

constexpr int Staff = 60;
constexpr int Records = 5000;
constexpr int Year = 2006;
constexpr int Rounds = 10; // through the year and back
constexpr double FrameMs = 1000.0 / 60;

/// What `main` wires, without a host.
struct Planner {
    PosixFileSystem files;
    SystemClock orologio;
    QtMessageBoxes messaggi;
    QtEventPump eventi;
    PlfimpDialog finestraImpegno;
    modpl sessione;
    ControlliPlcal controlli;
    PlcalWindow vista{sessione, controlli};
    plcal finestra{sessione, controlli, {vista, messaggi, finestraImpegno}, [this] { return newEngine(); }};

    std::unique_ptr<clsplg> newEngine() {
        return std::make_unique<clsplg>(
            Ambiente{sessione, controlli, finestra, files, messaggi, eventi, orologio});
    }

    void open(const std::string& folder) {
        vista.setForm(finestra);
        sessione.tipoplanner = "M";
        sessione.PathArchivi = folder;
        newEngine()->Init_planner("M20060115", "20060101", "20061231", "  ");
        finestra.show();
        QApplication::processEvents();
    }
};

/// Milliseconds from the click to the painted window.
double moveMonth(QToolButton& button) {
    const auto begin = std::chrono::steady_clock::now();
    button.click();
    QApplication::processEvents();
    QGuiApplication::sync();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

std::vector<double> moveThroughTheYear(Planner& planner) {
    auto& next = *planner.vista.findChild<QToolButton*>(QStringLiteral("bselm1"));
    auto& previous = *planner.vista.findChild<QToolButton*>(QStringLiteral("bselm0"));
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        for (int month = 1; month < 12; ++month) {
            times.push_back(moveMonth(next));
        }
        for (int month = 1; month < 12; ++month) {
            times.push_back(moveMonth(previous));
        }
    }
    std::sort(times.begin(), times.end());
    return times;
}

bool writeJson(const std::vector<double>& sorted, const char* path) {
    std::ofstream out(path);
    out << "{\"milliseconds\": {\"minimum\": " << sorted.front()
        << ", \"median\": " << sorted[sorted.size() / 2] << ", \"p95\": " << sorted[sorted.size() * 95 / 100]
        << ", \"maximum\": " << sorted.back() << "}, \"frame\": " << FrameMs << "}\n";
    return out.good();
}

} // namespace

int main(int argc, char* argv[]) {
    const char* json = argc == 3 && std::string_view(argv[1]) == "--json" ? argv[2] : nullptr;
    if (argc > 1 && json == nullptr) {
        std::fprintf(stderr, "usage: bench-month [--json FILE]\n");
        return 2;
    }
    int toolkitArguments = 1;
    QApplication application(toolkitArguments, argv);
    setUpAppearance(application);
    const QTemporaryDir folder;
    scriviArchivioCampione(creaArchivioCampione({Year, Staff, Records, 1}), folder.path().toStdString());
    Planner planner;
    planner.open(folder.path().toStdString());
    moveThroughTheYear(planner); // warm
    const std::vector<double> sorted = moveThroughTheYear(planner);
    const double median = sorted[sorted.size() / 2];
    const double p95 = sorted[sorted.size() * 95 / 100];
    std::printf(
        "previous/next month, event to painted, %d staff, %d records, %zu moves on %s: milliseconds\n", Staff,
        Records, sorted.size(), qPrintable(QGuiApplication::platformName()));
    std::printf("%-9s %-9s %-9s %-9s\n%-9.2f %-9.2f %-9.2f %-9.2f\n", "minimum", "median", "p95", "maximum",
                sorted.front(), median, p95, sorted.back());
    std::printf("to reach: a 60 Hz frame (%.1f ms): median %s, p95 %s\n", FrameMs,
                median <= FrameMs ? "reached" : "missed", p95 <= FrameMs ? "reached" : "missed");
    return json == nullptr || writeJson(sorted, json) ? 0 : 1;
}
