// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "app/support_log.h"
#include "app/way_out.h"
#include "engine/clsplg.h"
#include "host/abandonment.h"
#include "host/event_conversation.h"
#include "host/ftavtrmpl.h"
#include "host/program_texts.h"
#include "platform/ipc/tavterm_host_ipc.h"
#include "platform/posix/end_signals.h"
#include "platform/posix/fault_watch.h"
#include "platform/posix/starter.h"
#include "platform/system/system_clock.h"
#include "platform/system/system_file_system.h"
#include "ui/kit/appearance.h"
#include "ui/kit/guarded_application.h"
#include "ui/planner_windows.h"
#include "ui/ports/qt_event_pump.h"
#include "ui/ports/qt_message_boxes.h"
#include "ui/ports/qt_periodic_timer.h"

#include <QSocketNotifier>

#include <iostream>
#include <optional>
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

/// Has `act` called in the main thread, once, when the descriptor becomes readable, if there is one.
template <typename Act>
void whenReadable(const FileDescriptor& descriptor, Act act) {
    if (descriptor.get() >= 0) {
        auto* notifier = new QSocketNotifier(descriptor.get(), QSocketNotifier::Read, qApp);
        QObject::connect(notifier, &QSocketNotifier::activated, qApp, [notifier, act] {
            notifier->setEnabled(false); // it stays readable
            act();
        });
    }
}

/// What the program talks to its host and its user through, written down where the environment asks for it.
struct Legame {
    explicit Legame(const std::string& line) : riga(parseCommandLine(line)) {
        supporto.diario().annotaAvvio(riga);
    }

    const RigaComando riga;
    SupportLog supporto;
    SystemFileSystem disco;
    FileConDiario files{disco, supporto.diario()};
    QtMessageBoxes finestre;
    MessaggiConDiario messaggi{finestre, supporto.diario()};
    QtEventPump eventi;
    TavTermHostIpc evento{eventi};
    EventoConDiario ipc{evento, supporto.diario()};
};

/// The end of a planner that has no window yet: its host has asked, and waits.
bool answerWithoutWindow(Legame& legame) {
    mtavtrmpl collegamento(legame.riga, {legame.files, legame.messaggi}, {});
    if (legame.riga.polling()) {
        QtPeriodicTimer Timer1;
        return Ftavtrmpl(collegamento, legame.files, Timer1).congedo();
    }
    return EventConversation(collegamento, legame.ipc, legame.eventi).congedo();
}

int exitCodeOf(Seguito end) {
    return end == Seguito::Termina ? EXIT_SUCCESS : EXIT_FAILURE;
}

int runPolling(mtavtrmpl& collegamento, Legame& legame, WayOut& uscita) {
    QtPeriodicTimer Timer1;
    Ftavtrmpl form(collegamento, legame.files, Timer1);
    uscita.setCongedo([&form] { return form.congedo(); });
    Timer1.onTick([&form] {
        const Seguito seguito = form.Timer1_Timer();
        if (seguito != Seguito::Continua) {
            QCoreApplication::exit(exitCodeOf(seguito));
        }
    });
    const Seguito seguito = form.Form_Load();
    return seguito == Seguito::Continua ? QCoreApplication::exec() : exitCodeOf(seguito);
}

int runEvents(mtavtrmpl& collegamento, Legame& legame, WayOut& uscita, const FileDescriptor& starter) {
    EventConversation conversazione(collegamento, legame.ipc, legame.eventi);
    uscita.setCongedo([&conversazione] { return conversazione.congedo(); });
    QtPeriodicTimer timer;
    Abandonment abbandono(conversazione, legame.ipc, timer);
    timer.onTick([&] {
        if (abbandono.tick()) {
            uscita.leave();
        }
    });
    whenReadable(starter, [&abbandono] { abbandono.starterGone(); });
    return conversazione.eventLoop() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char* argv[]) {
    const std::string line = joinArguments({argv, static_cast<std::size_t>(argc)});
    if (line.empty()) {
        return EXIT_SUCCESS;
    }
    if (const auto text = testoChiesto(line)) {
        return std::cout << *text << std::flush ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    const FileDescriptor endSignals = holdEndSignals(); // before the toolkit makes its threads
    const FileDescriptor starter = watchStarter();
    failBeyondFileLimit();

    Legame legame(line);
    WayOut uscita([&legame] { return answerWithoutWindow(legame); });

    int toolkitArguments = 1; // the command line is the host's: the toolkit takes no switch from it
    std::optional<FaultWatch> arrivo(&WayOut::onFault);
    GuardedApplication application(toolkitArguments, argv);
    arrivo.reset();
    setUpAppearance(application);
    application.setMessages(&legame.messaggi);
    application.onQuit([&uscita] { uscita.leave(); });
    whenReadable(endSignals, [&uscita] { uscita.leave(); });

    SystemClock orologio;
    modpl sessione;
    ControlliPlcal controlli;
    Contenuti contenuti(sessione, controlli, legame.files, legame.messaggi, orologio);
    PlannerWindows finestre(sessione, controlli, contenuti, legame.messaggi);

    mtavtrmpl collegamento(legame.riga, {legame.files, legame.messaggi}, [&] {
        return std::make_unique<clsplg>(Ambiente{sessione, controlli, finestre.finestra, legame.files,
                                                 legame.messaggi, legame.eventi, orologio});
    });
    return legame.riga.polling() ? runPolling(collegamento, legame, uscita)
                                 : runEvents(collegamento, legame, uscita, starter);
}
