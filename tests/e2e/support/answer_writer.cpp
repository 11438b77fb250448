// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// The planner's link to its host on the real disk and the real event, with a user who answers at once and no
// window, who gives up an answer that cannot be written. The arguments are the planner's own; with NOEVENT
// the timer ticks faster. Each request is answered with the letter that it holds as `planrichiesto`, one that
// holds none with "E".
#include "host/event_conversation.h"
#include "host/ftavtrmpl.h"
#include "platform/ipc/tavterm_host_ipc.h"
#include "platform/system/system_file_system.h"
#include "support/fakes.h"

#include <cstdlib>
#include <semaphore>
#include <thread>

namespace planner::test {

namespace {

constexpr std::chrono::milliseconds BetweenTicks{5};

/// Nothing but wake-ups from the thread that waits for the host.
class WakeUps : public EventPump {
public:
    void waitAndProcess() override { m_pending.acquire(); }
    void processFor(std::chrono::milliseconds time) override { std::this_thread::sleep_for(time); }
    void wakeUp() override { m_pending.release(); }
    void flush() override {}

private:
    std::counting_semaphore<> m_pending{0};
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
    WakeUps events;
    TavTermHostIpc ipc(events);
    SystemFileSystem files;
    mtavtrmpl link(line, {files, messages}, [&journal] {
        return std::make_unique<FakeMotore>(journal, [&journal](WPlannerCall& call) {
            journal.clear(); // however many requests come
            call.collab = "  ";
            call.valret = "20060315  " + (call.planrichiesto == " " ? "E" : call.planrichiesto);
        });
    });
    if (line.NomeEvento != "NOEVENT") {
        return EventConversation(link, ipc, events).eventLoop();
    }
    Ftavtrmpl form(link, files, timer);
    Seguito seguito = form.Form_Load();
    while (seguito == Seguito::Continua) {
        events.processFor(BetweenTicks);
        seguito = form.Timer1_Timer();
    }
    return seguito == Seguito::Termina;
}

} // namespace

} // namespace planner::test

int main(int argc, char** argv) {
    return planner::test::serve(planner::test::joined(argc, argv)) ? EXIT_SUCCESS : EXIT_FAILURE;
}
