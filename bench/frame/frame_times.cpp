// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "frame/frame_times.h"

#include "support/benchmark.h"
#include "ui/kit/appearance.h"

#include <QApplication>

#include <array>
#include <cstdio>

namespace planner {

namespace {

using bench::Json;
using bench::percentile;
using bench::reachedOrMissed;

constexpr double FrameMs = 1000.0 / 60;
constexpr double NsPerMs = 1e6;
constexpr int InTime = 95; // percent of all times

/// What is told of the times.
struct Figure {
    const char* name;
    int percent;
};
constexpr std::array Figures{Figure{"minimum", 0}, Figure{"median", 50}, Figure{"p95", InTime},
                             Figure{"maximum", 100}};

void print(const FrameReport& report) {
    std::printf("%s, on %s: milliseconds\n", report.title.c_str(),
                qPrintable(QGuiApplication::platformName()));
    std::printf("%-16s %-9s %-9s %-9s %-9s\n", "", "minimum", "median", "p95", "maximum");
    for (const FrameTimes& row : report.times) {
        std::printf("%-16s", row.name.c_str());
        for (const Figure& figure : Figures) {
            std::printf(" %-9.2f", percentile(row.times, figure.percent));
        }
        std::printf("\n");
    }
    std::printf("to reach: a 60 Hz frame (%.1f ms), at p95:", FrameMs);
    for (const FrameTimes& row : report.times) {
        if (row.withinFrame) {
            std::printf(" %s %s", row.name.c_str(),
                        reachedOrMissed(percentile(row.times, InTime) <= FrameMs));
        }
    }
    std::printf("\n");
}

Json timesJson(const FrameTimes& row) {
    Json::Members members;
    for (const Figure& figure : Figures) {
        members.emplace_back(figure.name, percentile(row.times, figure.percent));
    }
    return members;
}

Json toJson(const FrameReport& report) {
    Json::Members rows;
    for (const FrameTimes& row : report.times) {
        rows.emplace_back(row.name, timesJson(row));
    }
    return Json::Members{{"milliseconds", rows}, {"frame", FrameMs}};
}

} // namespace

void paintAll() {
    QApplication::processEvents();
    QGuiApplication::sync();
}

FrameTimes measureFrames(std::string name, bool withinFrame, int times, const std::function<void()>& prepare,
                         const std::function<void()>& event) {
    bench::Times taken;
    for (int i = 0; i < times; ++i) {
        prepare();
        paintAll();
        const double nanoseconds = bench::timeOnce([&] {
            event();
            paintAll();
        });
        taken.push_back(nanoseconds / NsPerMs);
    }
    return {std::move(name), withinFrame, std::move(taken)};
}

int frameBenchmark(int argc, char* argv[], const std::function<FrameReport()>& measure) {
    return bench::benchmark(argc, argv, {}, [&] {
        int toolkitArguments = 1;
        QApplication application(toolkitArguments, argv);
        setUpAppearance(application);
        const FrameReport report = measure();
        print(report);
        return toJson(report);
    });
}

} // namespace planner
