// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "describe.h"
#include "host/command_line.h"
#include "options.h"
#include "platform/posix/system_clock.h"
#include "ports/runtime_errors.h"
#include "served_request/in_quotes.h"
#include "served_request/snapshot.h"

#include <algorithm>
#include <memory>

namespace {

using namespace planner;

int fail(const std::string& text, int code) {
    print(stderr, "planner-dump: " + text + "\n");
    return code;
}

int dump(const Options& options) {
    TransitRequest richiesta;
    try {
        richiesta = readTransitFile(options.transitPath);
    } catch (const FileError&) {
        return fail("il file di transito " + inQuotes(options.transitPath) + " manca o non si può leggere",
                    ExitFailed);
    }
    const Utente utente{options.oggi ? *options.oggi : SystemClock().today(), options.grafico};
    const auto snapshot = std::make_unique<Snapshot>(); // too large for a stack
    serveRequest(richiesta, folderOf(options.transitPath), utente, *snapshot);
    auto object = describe(*snapshot);
    if (options.grafico) {
        object["grafico"] = describeChart(snapshot->grafico);
    }
    const bool printed = print(stdout, toText(object));
    return printed ? ExitDone : fail("l'uscita non si può scrivere", ExitFailed);
}

int run(std::span<const char* const> arguments) {
    try {
        const Options options = parseOptions(arguments);
        if (options.help) {
            return print(stdout, HelpText) ? ExitDone : ExitFailed;
        }
        return dump(options);
    } catch (const UsageError& error) {
        return fail(std::string(error.what()) + "\n" + HelpText, ExitUsage);
    } catch (const std::exception& error) {
        return fail("errore imprevisto: " + std::string(error.what()), ExitFailed);
    }
}

} // namespace

int main(int argc, char** argv) {
    return run({argv + std::min(argc, 1), argv + argc});
}
