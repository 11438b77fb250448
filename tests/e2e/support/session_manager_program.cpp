// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// A session manager for one client. Its first line is the address for SESSION_MANAGER; the others say what
// the client does: "registered", "restart N" (its restart style hint), "saved" (it is ready for a log-out),
// "gone". SIGUSR1 logs out; SIGUSR2 begins a log-out and calls it off once the client is ready; SIGTERM ends
// the program.

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>
#include <array>
#include <csignal>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <sys/poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

/// Why the client is asked to save itself.
enum class Reason { Arrival, LogOut, LogOutCalledOff };

struct Session {
    SmsConn client = nullptr;
    Reason reason = Reason::Arrival;
    IceConn connection = nullptr;
};

Session& sessionOf(SmPointer data) {
    return *static_cast<Session*>(data);
}

void say(const std::string& line) {
    std::cout << line << std::endl;
}

void askToSave(Session& session, Reason reason) {
    session.reason = reason;
    const bool shutdown = reason != Reason::Arrival;
    SmsSaveYourself(session.client, shutdown ? SmSaveBoth : SmSaveLocal, shutdown ? True : False,
                    shutdown ? SmInteractStyleAny : SmInteractStyleNone, False);
}

Status onRegister(SmsConn client, SmPointer data, char* previousId) {
    if (previousId != nullptr) {
        return 0; // nobody is known from before
    }
    SmsRegisterClientReply(client, SmsGenerateClientID(client));
    askToSave(sessionOf(data), Reason::Arrival);
    return 1;
}

void onSaved(SmsConn client, SmPointer data, Bool /*success*/) {
    switch (sessionOf(data).reason) {
    case Reason::Arrival:
        SmsSaveComplete(client);
        say("registered");
        break;
    case Reason::LogOut:
        say("saved");
        SmsDie(client);
        break;
    case Reason::LogOutCalledOff:
        say("saved");
        SmsShutdownCancelled(client);
        break;
    }
}

void onProperties(SmsConn /*client*/, SmPointer /*data*/, int count, SmProp** properties) {
    for (const SmProp* property : std::span(properties, static_cast<std::size_t>(count))) {
        if (std::string_view(property->name) == SmRestartStyleHint) {
            say("restart " + std::to_string(*static_cast<unsigned char*>(property->vals->value)));
        }
    }
}

/// What a client may ask besides is granted at once.
void grantTheRest(SmsCallbacks& callbacks) {
    callbacks.interact_request.callback = [](SmsConn client, SmPointer, int) { SmsInteract(client); };
    callbacks.interact_done.callback = [](SmsConn, SmPointer, Bool) {};
    callbacks.save_yourself_request.callback = [](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {};
    callbacks.save_yourself_phase2_request.callback = [](SmsConn client, SmPointer) {
        SmsSaveYourselfPhase2(client);
    };
    callbacks.close_connection.callback = [](SmsConn, SmPointer, int, char**) {};
    callbacks.delete_properties.callback = [](SmsConn, SmPointer, int, char**) {};
    callbacks.get_properties.callback = [](SmsConn client, SmPointer) {
        SmsReturnProperties(client, 0, nullptr);
    };
}

Status onClient(SmsConn client, SmPointer data, unsigned long* mask, SmsCallbacks* callbacks,
                char** /*failure*/) {
    sessionOf(data).client = client;
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    *callbacks = {};
    grantTheRest(*callbacks);
    callbacks->register_client.callback = onRegister;
    callbacks->save_yourself_done.callback = onSaved;
    callbacks->set_properties.callback = onProperties;
    for (SmPointer* manager :
         {&callbacks->register_client.manager_data, &callbacks->save_yourself_done.manager_data}) {
        *manager = data;
    }
    return 1;
}

Bool anybody(char* /*host*/) {
    return True; // the one client of a test
}

using ErrorText = std::array<char, 256>;

/// Where clients come; closed, and gone from the file system, with the object.
class Sockets {
public:
    explicit Sockets(ErrorText& error) {
        IceListenForConnections(&m_count, &m_sockets, static_cast<int>(error.size()), error.data());
    }
    ~Sockets() {
        if (m_count > 0) {
            IceFreeListenObjs(m_count, m_sockets);
        }
    }
    Sockets(const Sockets&) = delete;
    Sockets& operator=(const Sockets&) = delete;

    /// The one of this machine alone; null without one.
    IceListenObj local() const {
        for (IceListenObj socket : std::span(m_sockets, static_cast<std::size_t>(m_count))) {
            if (std::string_view(IceGetListenConnectionString(socket)).starts_with("unix/")) {
                return socket;
            }
        }
        return nullptr;
    }

private:
    int m_count = 0;
    IceListenObj* m_sockets = nullptr;
};

/// False when it is to end.
bool obey(Session& session, int signals) {
    signalfd_siginfo signal{};
    if (::read(signals, &signal, sizeof signal) != static_cast<ssize_t>(sizeof signal) ||
        signal.ssi_signo == SIGTERM) {
        return false;
    }
    if (session.client != nullptr) {
        askToSave(session, signal.ssi_signo == SIGUSR1 ? Reason::LogOut : Reason::LogOutCalledOff);
    }
    return true;
}

void accept(Session& session, IceListenObj socket) {
    IceAcceptStatus status = IceAcceptSuccess;
    session.connection = IceAcceptConnection(socket, &status);
}

/// False when the client is gone.
bool listen(const Session& session) {
    const bool there = IceProcessMessages(session.connection, nullptr, nullptr) == IceProcessMessagesSuccess;
    if (!there) {
        say("gone");
    }
    return there;
}

void serve(Session& session, IceListenObj socket, int signals) {
    bool goesOn = true;
    while (goesOn) {
        const int client = session.connection == nullptr ? -1 : IceConnectionNumber(session.connection);
        std::array<pollfd, 3> watched{{{IceGetListenConnectionNumber(socket), POLLIN, 0},
                                       {client, POLLIN, 0}, // -1 is passed over
                                       {signals, POLLIN, 0}}};
        ::poll(watched.data(), watched.size(), -1);
        if (watched[0].revents != 0) {
            accept(session, socket);
        }
        goesOn = (watched[1].revents == 0 || listen(session)) &&
                 (watched[2].revents == 0 || obey(session, signals));
    }
}

int heldSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGUSR1, SIGUSR2, SIGTERM}) {
        sigaddset(&set, signal);
    }
    ::sigprocmask(SIG_BLOCK, &set, nullptr);
    return ::signalfd(-1, &set, SFD_CLOEXEC);
}

bool initialize(Session& session, ErrorText& error) {
    std::string vendor = "planner";
    std::string release = "1";
    return SmsInitialize(vendor.data(), release.data(), onClient, &session, anybody,
                         static_cast<int>(error.size()), error.data()) != 0;
}

} // namespace

int main() {
    Session session;
    const int signals = heldSignals();
    IceSetIOErrorHandler([](IceConn) {}); // the client may end without a word
    ErrorText error{};
    const bool ready = initialize(session, error);
    const Sockets sockets(error);
    IceListenObj socket = sockets.local();
    if (!ready || socket == nullptr) {
        std::cerr << "session manager: " << error.data() << '\n';
        return 1;
    }
    IceSetHostBasedAuthProc(socket, anybody);
    say(IceGetListenConnectionString(socket));
    serve(session, socket, signals);
    return 0;
}
