// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
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

#include <QTimer>

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
    Seguito seguito = Seguito::Continua;
    std::function<void()> tick = [] {};
    QtPeriodicTimer Timer1([&tick] { tick(); });
    Ftavtrmpl form(collegamento, files, Timer1);
    tick = [&] {
        seguito = form.Timer1_Timer();
        if (seguito == Seguito::Termina) {
            QCoreApplication::quit();
        }
    };
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
    std::function<std::unique_ptr<clsplg>()> newEngine;
    PlannerWindows finestre(sessione, controlli, messaggi, orologio, [&newEngine] { return newEngine(); });
    newEngine = [&] {
        return std::make_unique<clsplg>(
            Ambiente{sessione, controlli, finestre.finestra, files, messaggi, eventi, orologio});
    };

    const RigaComando riga = parseCommandLine(line);
    mtavtrmpl collegamento(riga, {files, messaggi, eventi, ipc}, [&newEngine] { return newEngine(); });
    if (riga.polling()) {
        return runPolling(collegamento, files);
    }
    return collegamento.eventLoop() ? 0 : 1;
}
