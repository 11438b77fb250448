// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "describe.h"
#include "options.h"
#include "platform/system/this_process.h"
#include "served_request/tool.h"

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
    keepStreamsPlain();
    return runTool("planner-dump", programArguments(argc, argv), HelpText, parseOptions, dump);
}
