// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// Start-up time, memory and a further request of the planner, against an empty window of the toolkit.

#include "frame/sample_planner.h"
#include "support/benchmark.h"
#include "support/measure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <vector>

using namespace planner;

namespace {

constexpr int Staff = 60;
constexpr int Records = 5000;
constexpr int Rounds = 21;

/// What one start of a program showed.
struct Start {
    double startMs, kilobytes, nextMs;
};

double numberAfter(const QByteArray& text, const QByteArray& key) {
    const qsizetype at = text.indexOf(key);
    return at < 0 ? 0 : text.mid(at + key.size()).trimmed().split('\n').front().toDouble();
}

Start startProgram(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    const bool painted = process.waitForReadyRead();
    const double startMs = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    if (!painted || !process.waitForFinished() || process.exitCode() != 0) {
        throw std::runtime_error("cannot run " + program.toStdString());
    }
    const QByteArray said = process.readAll();
    return {startMs, numberAfter(said, "kilobytes "), numberAfter(said, "milliseconds ")};
}

double median(const std::vector<Start>& starts, double Start::*figure) {
    bench::Times figures;
    std::transform(starts.begin(), starts.end(), std::back_inserter(figures),
                   [figure](const Start& each) { return each.*figure; });
    return bench::median(figures);
}

struct Ratio {
    const char* name;
    double planner, empty;
    double reach, thenReach;

    double value() const { return planner / empty; }
};

void print(const std::vector<Ratio>& ratios) {
    std::printf("the planner with %d staff, %d records against an empty window, medians of %d starts\n",
                Staff, Records, Rounds);
    std::printf("%-24s %-10s %-10s %s\n", "", "planner", "empty", "ratio");
    for (const Ratio& ratio : ratios) {
        std::printf("%-24s %-10.1f %-10.1f %.2f\n", ratio.name, ratio.planner, ratio.empty, ratio.value());
    }
    for (const Ratio& ratio : ratios) {
        std::printf("to reach: %s at most %.2f, then %.2f: %s\n", ratio.name, ratio.reach, ratio.thenReach,
                    ratio.value() <= ratio.thenReach ? "reached"
                    : ratio.value() <= ratio.reach   ? "reached the first"
                                                     : "missed");
    }
}

bench::Json toJson(const std::vector<Ratio>& ratios) {
    bench::Json::Members members;
    for (const Ratio& each : ratios) {
        members.emplace_back(
            each.name,
            bench::Json::Members{{"planner", each.planner}, {"empty", each.empty}, {"ratio", each.value()}});
    }
    return members;
}

std::vector<Ratio> measure() {
    const QString bin = QCoreApplication::applicationDirPath();
    const QTemporaryDir folder;
    makeSample(folder.path().toStdString(), Staff, Records);
    std::vector<Start> planner;
    std::vector<Start> empty;
    for (int round = 0; round < Rounds; ++round) { // in turn, so that both see the same machine
        empty.push_back(startProgram(bin + QStringLiteral("/empty-window"), {}));
        planner.push_back(startProgram(bin + QStringLiteral("/first-grid"), {folder.path()}));
    }
    const auto ratio = [&](const char* name, double Start::*figure, double reach, double thenReach) {
        return Ratio{name, median(planner, figure), median(empty, figure), reach, thenReach};
    };
    return {ratio("start, ms", &Start::startMs, 2.0, 1.5), ratio("memory, kB", &Start::kilobytes, 1.6, 1.6),
            ratio("further request, ms", &Start::nextMs, 0.5, 0.15)};
}

} // namespace

int main(int argc, char* argv[]) {
    return bench::benchmark(argc, argv, {}, [&] {
        int noArguments = 1;
        const QCoreApplication application(noArguments, argv);
        const std::vector<Ratio> ratios = measure();
        print(ratios);
        return toJson(ratios);
    });
}
