// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "frame/frame_times.h"

#include "ui/kit/appearance.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string_view>

namespace planner {

namespace {

constexpr double FrameMs = 1000.0 / 60;

void print(const FrameReport& report) {
    std::printf("%s, on %s: milliseconds\n", report.title.c_str(),
                qPrintable(QGuiApplication::platformName()));
    std::printf("%-16s %-9s %-9s %-9s %-9s\n", "", "minimum", "median", "p95", "maximum");
    for (const FrameTimes& row : report.times) {
        std::printf("%-16s %-9.2f %-9.2f %-9.2f %-9.2f\n", row.name.c_str(), row.minimum, row.median, row.p95,
                    row.maximum);
    }
    std::printf("to reach: a 60 Hz frame (%.1f ms), at p95:", FrameMs);
    for (const FrameTimes& row : report.times) {
        if (row.withinFrame) {
            std::printf(" %s %s", row.name.c_str(), row.p95 <= FrameMs ? "reached" : "missed");
        }
    }
    std::printf("\n");
}

bool writeJson(const FrameReport& report, const char* path) {
    std::ofstream out(path);
    out << "{\"milliseconds\": {";
    const char* separator = "";
    for (const FrameTimes& row : report.times) {
        out << separator << '"' << row.name << "\": {\"minimum\": " << row.minimum
            << ", \"median\": " << row.median << ", \"p95\": " << row.p95 << ", \"maximum\": " << row.maximum
            << '}';
        separator = ", ";
    }
    out << "}, \"frame\": " << FrameMs << "}\n";
    out.flush();
    return out.good();
}

} // namespace

void paintAll() {
    QApplication::processEvents();
    QGuiApplication::sync();
}

FrameTimes measureFrames(std::string name, bool withinFrame, int times, const std::function<void()>& prepare,
                         const std::function<void()>& event) {
    std::vector<double> sorted;
    for (int i = 0; i < times; ++i) {
        prepare();
        paintAll();
        const auto begin = std::chrono::steady_clock::now();
        event();
        paintAll();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
        sorted.push_back(taken.count());
    }
    std::sort(sorted.begin(), sorted.end());
    return {std::move(name),
            withinFrame,
            sorted.front(),
            sorted[sorted.size() / 2],
            sorted[sorted.size() * 95 / 100],
            sorted.back()};
}

int frameBenchmark(int argc, char* argv[], const std::function<FrameReport()>& measure) {
    const char* json = argc == 3 && std::string_view(argv[1]) == "--json" ? argv[2] : nullptr;
    if (argc > 1 && json == nullptr) {
        std::fprintf(stderr, "usage: %s [--json FILE]\n", argv[0]);
        return 2;
    }
    int toolkitArguments = 1;
    QApplication application(toolkitArguments, argv);
    setUpAppearance(application);
    const FrameReport report = measure();
    print(report);
    return json == nullptr || writeJson(report, json) ? 0 : 1;
}

} // namespace planner
