// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/measure.h"

#include <functional>
#include <string>
#include <vector>

namespace planner {

/// Milliseconds from an event to the painted window, over many times.
struct FrameTimes {
    std::string name;
    bool withinFrame; // must be within a frame of a 60 Hz screen
    bench::Times times;
};

/// Two of the times compared, by their names: the median of one is to be at most `reach` times the other's.
struct FrameRatio {
    std::string of, to;
    double reach;
};

/// What a benchmark has to say.
struct FrameReport {
    std::string title;
    std::vector<FrameTimes> times;
    std::vector<FrameRatio> ratios{};
};

/// Has all that is pending drawn on the screen.
void paintAll();

/// Times `event` and the painting after it; `prepare` and the painting after that go untimed.
FrameTimes measureFrames(std::string name, bool withinFrame, int times, const std::function<void()>& prepare,
                         const std::function<void()>& event);

/// The main program of a benchmark with windows: starts the toolkit, runs `measure` and prints the report.
/// Returns the exit code.
int frameBenchmark(int argc, char* argv[], const std::function<FrameReport()>& measure);

} // namespace planner
