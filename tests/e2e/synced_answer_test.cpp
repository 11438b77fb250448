// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/archivio.h"
#include "e2e/support/processo.h"
#include "e2e/support/richiesta.h"
#include "e2e/support/utente.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <sstream>

namespace planner::e2e {

namespace {

using testing::ElementsAre;

/// The system calls of a planner's host link that write its answer and tell the host, as the kernel sees
/// them.
class SyncedAnswer : public testing::Test {
protected:
    /// Serves one request under the observer; what happened to the answer and to the host, in order.
    std::vector<std::string> serve(const std::string& event) {
        archivio.writeTransit(requestBytes('M'));
        Environment environment = utente.environment();
        // Under an observer the sanitizer cannot look for leaks.
        environment["ASAN_OPTIONS"] += ":detect_leaks=0";
        const Esito esito = runTool({"strace", "-f", "-y", "-o", folder.path("calls"), ANSWER_WRITER_FILE,
                                     archivio.transitPath(), "1", event},
                                    environment);
        EXPECT_EQ(esito.exitCode, 0) << "strace must be installed, and allowed to observe";
        return answering(folder.read("calls"));
    }

    const Utente utente;
    const Archivio archivio;
    const test::TempFolder folder;

private:
    /// "write", "sync" and "close" of the transit file, from its writing on; "tell" for the touches of the
    /// event's folder, and "marker" for the marker's deletion, whenever they come.
    static std::vector<std::string> answering(const std::string& calls) {
        std::vector<std::string> happened;
        std::istringstream lines(calls);
        for (std::string line; std::getline(lines, line);) {
            const std::string call = meaningOf(line);
            const bool ofReading = happened.empty() && (call == "sync" || call == "close");
            const bool again = call == "tell" && !happened.empty() && happened.back() == "tell";
            if (!call.empty() && !ofReading && !again) {
                happened.push_back(call);
            }
        }
        return happened;
    }

    static std::string meaningOf(const std::string& line) {
        const auto has = [&line](std::string_view text) { return line.find(text) != std::string::npos; };
        if (has("tavterm-ipc")) {
            return "tell";
        }
        if (has("unlink") && has(Archivio::LockPl)) {
            return "marker";
        }
        if (!has(Archivio::Transit)) {
            return {};
        }
        return has("write(") || has("pwrite64(")    ? "write"
               : has("fsync(") || has("fdatasync(") ? "sync"
               : has("close(")                      ? "close"
                                                    : "";
    }
};

} // namespace

TEST_F(SyncedAnswer, IsWrittenAtOnceSyncedAndClosedBeforeTheHostIsTold) {
    EXPECT_THAT(serve("EV"), ElementsAre("write", "sync", "close", "tell"));
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('M')));
}

TEST_F(SyncedAnswer, IsWrittenAtOnceSyncedAndClosedBeforeTheMarkerGoes) {
    archivio.putMarker(Archivio::LockPl);
    EXPECT_THAT(serve("NOEVENT"), ElementsAre("write", "sync", "close", "marker"));
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('M')));
}

} // namespace planner::e2e
