// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "served_request/tool.h"

#include "host/command_line.h"
#include "platform/system/system_clock.h"
#include "ports/runtime_errors.h"
#include "served_request/in_quotes.h"

namespace planner {

namespace {

TransitRequest readRequest(const std::string& path) {
    try {
        return readTransitFile(path);
    } catch (const FileError&) {
        throw ToolFailure("il file di transito " + inQuotes(path) + " manca o non si può leggere");
    }
}

} // namespace

void say(const std::string& tool, const std::string& text) {
    print(stderr, tool + ": " + text + "\n");
}

std::unique_ptr<Snapshot> serveTransitFile(const CommonOptions& options, const Utente& utente) {
    auto snapshot = std::make_unique<Snapshot>(); // too large for a stack
    serveRequest(readRequest(options.transitPath), folderOf(options.transitPath), utente, *snapshot);
    return snapshot;
}

Data todayOf(const CommonOptions& options) {
    return options.oggi ? *options.oggi : SystemClock().today();
}

} // namespace planner
