// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// The planner's link to its host on the real disk and the real event, with a user who closes at once and no
// window. The arguments are the planner's own; with NOEVENT the marker must be there already.
#include "host/ftavtrmpl.h"
#include "host/mtavtrmpl.h"
#include "platform/ipc/tavterm_host_ipc.h"
#include "platform/posix/posix_file_system.h"
#include "support/fakes.h"

#include <cstdlib>

namespace planner::test {

namespace {

class NothingToProcess : public EventPump {
public:
    void waitAndProcess() override {}
    void flush() override {}
};

std::string joined(int count, char** words) {
    std::string line;
    for (int i = 1; i < count; ++i) {
        line += (i > 1 ? " " : "") + std::string(words[i]);
    }
    return line;
}

bool serve(const std::string& commandLine) {
    const RigaComando line = parseCommandLine(commandLine);
    Journal journal;
    RecordingMessages messages(journal);
    RecordingTimer timer(journal);
    NothingToProcess events;
    TavTermHostIpc ipc;
    PosixFileSystem files;
    mtavtrmpl link(line, {files, messages, events, ipc}, [&journal] {
        return std::make_unique<FakeMotore>(journal, [](WPlannerCall& call) {
            call.collab = "  ";
            call.valret = "20060315  E";
        });
    });
    if (line.NomeEvento != "NOEVENT") {
        return link.eventLoop();
    }
    Ftavtrmpl form(link, files, timer);
    return form.Form_Load() == Seguito::Continua && form.Timer1_Timer() == Seguito::Termina;
}

} // namespace

} // namespace planner::test

int main(int argc, char** argv) {
    return planner::test::serve(planner::test::joined(argc, argv)) ? EXIT_SUCCESS : EXIT_FAILURE;
}
