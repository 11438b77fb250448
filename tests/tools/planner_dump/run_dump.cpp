// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "run_dump.h"

#include "tools/support/run_program.h"

namespace planner::test {

DumpRun runDump(const std::vector<std::string>& arguments) {
    toolstest::RunResult result = toolstest::run({PLANNER_DUMP, arguments, {}, {}});
    return {result.exitCode, std::move(result.output), std::move(result.errors)};
}

Json information(const std::string& text) {
    return {{"icona", "informazione"}, {"titolo", "Planner"}, {"testo", text}};
}

Json critical(const std::string& text) {
    return {{"icona", "critica"}, {"titolo", "Planner"}, {"testo", text}};
}

} // namespace planner::test
