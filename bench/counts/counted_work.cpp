// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// Does one piece of the planner's work, for a profiler that counts its instructions: of the whole process for
// the start, else within `counted` alone.

#include "frame/frame_times.h"
#include "frame/sample_chart.h"
#include "frame/sample_planner.h"
#include "ui/kit/appearance.h"

#include <QApplication>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace planner::bench {

/// What is counted: by this name, which the profiler is told.
[[gnu::noinline]] void counted(const std::function<void()>& work);

void counted(const std::function<void()>& work) {
    work();
    asm volatile(""); // no tail call, which would end the counting
}

} // namespace planner::bench

namespace {

using namespace planner;

constexpr int Moves = 11; // January to December

void start(const std::string& folder) {
    SamplePlanner(folder).show();
    std::_Exit(EXIT_SUCCESS); // the end is not the start
}

void further(const std::string& folder) {
    SamplePlanner sample(folder);
    sample.show();
    sample.finestre().finestra.hide();
    paintAll();
    bench::counted([&] { sample.show(); });
}

/// The months of a year, one after the other.
void months(const std::string& folder) {
    SamplePlanner sample(folder);
    sample.show();
    auto& next = *sample.finestre().vista.findChild<QToolButton*>(QStringLiteral("bselm1"));
    bench::counted([&] {
        for (int move = 0; move < Moves; ++move) {
            next.click();
            paintAll();
        }
    });
}

void fill(const std::string& folder) {
    SamplePlanner sample(folder);
    bench::counted([&] { sample.prepare(); });
}

void pie(const std::string&) {
    SampleChart sample;
    bench::counted([&] {
        sample.choose(2);
        paintAll();
    });
}

struct Work {
    std::string_view name;
    void (*run)(const std::string& folder);
};
constexpr std::array Works{Work{"start", start}, Work{"further", further}, Work{"months", months},
                           Work{"fill", fill}, Work{"pie", pie}};

} // namespace

int main(int argc, char* argv[]) {
    const auto work = std::find_if(Works.begin(), Works.end(),
                                   [&](const Work& each) { return argc == 3 && each.name == argv[1]; });
    if (work == Works.end()) {
        std::fputs("usage: counted-work start|further|months|fill|pie ARCHIVE-FOLDER\n", stderr);
        return 2;
    }
    int toolkitArguments = 1;
    QApplication application(toolkitArguments, argv);
    setUpAppearance(application);
    work->run(argv[2]);
    return EXIT_SUCCESS;
}
