// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "frame/frame_times.h"

#include "support/benchmark.h"
#include "ui/kit/appearance.h"

#include <QApplication>

#include <algorithm>
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

double valueOf(const FrameRatio& ratio, const FrameReport& report) {
    const auto medianOf = [&](const std::string& name) {
        const auto found = std::find_if(report.times.begin(), report.times.end(),
                                        [&](const FrameTimes& each) { return each.name == name; });
        return bench::median(found == report.times.end() ? bench::Times{} : found->times);
    };
    return medianOf(ratio.of) / medianOf(ratio.to);
}

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
    for (const FrameRatio& ratio : report.ratios) {
        const double value = valueOf(ratio, report);
        std::printf("to reach: %s at most %.2f of %s: %.2f, %s\n", ratio.of.c_str(), ratio.reach,
                    ratio.to.c_str(), value, reachedOrMissed(value <= ratio.reach));
    }
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
    Json::Members ratios;
    for (const FrameRatio& ratio : report.ratios) {
        ratios.emplace_back(ratio.of + " / " + ratio.to, valueOf(ratio, report));
    }
    return Json::Members{{"milliseconds", rows}, {"frame", FrameMs}, {"ratios", ratios}};
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
