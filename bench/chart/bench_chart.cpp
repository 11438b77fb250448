// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// The daily chart of a large staff: from the event to the painted chart, with the real chart window.

#include "frame/frame_times.h"
#include "frame/sample_chart.h"

using namespace planner;

namespace {

constexpr int Times = 100;

FrameReport measure() {
    SampleChart sample;
    ChartView& chart = sample.view();
    const auto nothing = [] {};
    int value = 0;
    const auto next = [&] { chart.setCurrentIndex(chart.model()->index(++value % SampleChart::Staff, 0)); };
    FrameReport report{"chart of " + std::to_string(SampleChart::Staff) + " staff, " +
                           std::to_string(SampleChart::Records) + " records, event to painted, " +
                           std::to_string(Times) + " times each",
                       {}};
    report.times = {
        measureFrames("contents", false, Times, nothing, [&] { sample.readAgain(); }),
        measureFrames("bars", false, Times, nothing, [&] { sample.choose(0); }),
        measureFrames("next bar", true, Times, nothing, next),
        measureFrames("pie", true, Times, nothing, [&] { sample.choose(2); }),
        measureFrames("next slice", true, Times, nothing, next),
    };
    return report;
}

} // namespace

int main(int argc, char* argv[]) {
    return frameBenchmark(argc, argv, measure);
}
