// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/clsplg.h"
#include "host/ftavtrmpl.h"
#include "host/mtavtrmpl.h"
#include "platform/ipc/tavterm_host_ipc.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/system_clock.h"
#include "ui/kit/appearance.h"
#include "ui/kit/guarded_application.h"
#include "ui/planner_windows.h"
#include "ui/ports/qt_event_pump.h"
#include "ui/ports/qt_message_boxes.h"
#include "ui/ports/qt_periodic_timer.h"

#include <span>

using namespace planner;

namespace {

std::string joinArguments(std::span<char*> arguments) {
    std::string line;
    for (const char* argument : arguments.subspan(1)) {
        line += line.empty() ? "" : " ";
        line += argument;
    }
    return line;
}

int runPolling(mtavtrmpl& collegamento, FileSystem& files) {
    QtPeriodicTimer Timer1;
    Ftavtrmpl form(collegamento, files, Timer1);
    Timer1.onTick([&form] {
        if (form.Timer1_Timer() == Seguito::Termina) {
            QCoreApplication::quit();
        }
    });
    return form.Form_Load() == Seguito::Continua ? QCoreApplication::exec() : 0;
}

} // namespace

int main(int argc, char* argv[]) {
    const std::string line = joinArguments({argv, static_cast<std::size_t>(argc)});
    if (line.empty()) {
        return 0;
    }
    int toolkitArguments = 1; // the command line is the host's: the toolkit takes no switch from it
    GuardedApplication application(toolkitArguments, argv);
    setUpAppearance(application);

    PosixFileSystem files;
    SystemClock orologio;
    QtMessageBoxes messaggi;
    application.setMessages(&messaggi);
    QtEventPump eventi;
    TavTermHostIpc ipc;

    modpl sessione;
    ControlliPlcal controlli;
    Contenuti contenuti({sessione, controlli, files, messaggi, orologio});
    PlannerWindows finestre(sessione, controlli, contenuti, messaggi);

    const RigaComando riga = parseCommandLine(line);
    mtavtrmpl collegamento(riga, {files, messaggi, eventi, ipc}, [&] {
        return std::make_unique<clsplg>(
            Ambiente{sessione, controlli, finestre.finestra, files, messaggi, eventi, orologio});
    });
    if (riga.polling()) {
        return runPolling(collegamento, files);
    }
    return collegamento.eventLoop() ? 0 : 1;
}
