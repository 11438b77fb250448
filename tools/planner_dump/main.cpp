// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "describe.h"
#include "options.h"
#include "served_request/tool.h"

#include <algorithm>

namespace {

using namespace planner;

void dump(const Options& options) {
    const auto snapshot = serveTransitFile(options, {todayOf(options), options.grafico});
    auto object = describe(*snapshot);
    if (options.grafico) {
        object["grafico"] = describeChart(snapshot->grafico);
    }
    if (!print(stdout, toText(object))) {
        throw ToolFailure("l'uscita non si può scrivere");
    }
}

} // namespace

int main(int argc, char** argv) {
    return runTool("planner-dump", {argv + std::min(argc, 1), argv + argc}, HelpText, parseOptions, dump);
}
