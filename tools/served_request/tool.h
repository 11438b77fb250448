// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "served_request/arguments.h"
#include "served_request/snapshot.h"

#include <memory>

namespace planner {

/// The tool cannot do what it is asked. `what()` says why, Italian, UTF-8.
class ToolFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Says a text on standard error, under the tool's name.
void say(const std::string& tool, const std::string& text);

/// Serves the request in the transit file of the options. Throws ToolFailure when that cannot be read.
std::unique_ptr<Snapshot> serveTransitFile(const CommonOptions& options, const Utente& utente);

/// The day that counts as today.
Data todayOf(const CommonOptions& options);

/// Reads the arguments and has `work` done with them, unless help is wanted; whatever fails is said. Returns
/// the exit code.
template <typename Parse, typename Work>
int runTool(const std::string& tool, std::span<const std::string> arguments, const char* help, Parse parse,
            Work work) {
    try {
        const auto options = parse(arguments);
        if (options.help) {
            return print(stdout, help) ? ExitDone : ExitFailed;
        }
        work(options);
        return ExitDone;
    } catch (const UsageError& error) {
        say(tool, std::string(error.what()) + "\n" + help);
        return ExitUsage;
    } catch (const ToolFailure& failure) {
        say(tool, failure.what());
    } catch (const std::exception& error) {
        say(tool, "errore imprevisto: " + std::string(error.what()));
    }
    return ExitFailed;
}

} // namespace planner
