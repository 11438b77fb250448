// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// What the planner of the script does in each system's own way.
namespace planner::toolstest {

// From here on this process does not outlive the one that has started it.
void endWithStarter();
// When FAKE_PLANNER_BEHIND is set, another process plays the planner, and this one lives on when that is
// gone.
void goBehind();
// Gives no answer, and says when it is asked to end.
[[noreturn]] void waitForEver();
// Ends as if it had been killed.
[[noreturn]] void dieAtOnce();

} // namespace planner::toolstest
