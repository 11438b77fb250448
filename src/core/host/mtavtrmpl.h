// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/motore.h"
#include "host/command_line.h"
#include "host/transit_request.h"
#include "ports/event_pump.h"
#include "ports/file_system.h"
#include "ports/host_ipc.h"
#include "ports/message_boxes.h"

#include <functional>
#include <memory>

namespace planner {

/// What the program does next.
enum class Seguito { Continua, Termina };

/// The host link: it reads a request from the transit file, has the engine serve it and writes the answer
/// back. `main` makes the one object.
class mtavtrmpl {
public:
    struct Porte {
        FileSystem& files;
        MessageBoxes& messaggi;
        EventPump& eventi;
        HostIpc& ipc;
    };
    using FabbricaMotore = std::function<std::unique_ptr<Motore>()>;

    mtavtrmpl(const RigaComando& riga, const Porte& porte, FabbricaMotore fabbrica);

    /// Event mode: serves requests until an answer ends with "E", blocking on the event between them. A
    /// transit file that cannot be read ends the program as well; false then.
    bool eventLoop();

    /// Reads the transit file into the request buffer; a shorter file leaves blanks. Throws FileError.
    void readRequest();

    /// Has the engine serve the request in the buffer, and writes the answer. False when it could not be
    /// written, which the user has then been told.
    bool dispatch();

    /// The request buffer: what was read, and after a dispatch the answer.
    const TransitRequest& richiesta() const { return m_richiesta; }

    /// Writes an answer that could not be written before, without a word. False when it still cannot be.
    bool repeatAnswer(const TransitRequest& risposta);

    /// True when the answer in the buffer ends the program.
    bool finished() const { return m_richiesta.azione() == 'E'; }

    /// Releases the engine; the next dispatch makes a new one.
    void releaseEngine() { m_oPlanner.reset(); }

    /// Says that the transit file is the trouble.
    void reportTransitFile();
    /// Says that the marker, a path, cannot be deleted, and what to do.
    void reportMarker(const std::string& marker);

    const std::string& PathTransito() const { return m_riga.PathTransito; }
    const std::string& CartellaTransito() const { return m_CartellaTransito; }
    const std::string& FlagAvvio() const { return m_riga.FlagAvvio; }

private:
    void serve();
    void answerWithClose();
    bool writeAnswer();
    void signalAnswer();
    void endConversation();

    RigaComando m_riga;
    Porte m_porte;
    FabbricaMotore m_fabbrica;
    std::string m_CartellaTransito;
    std::string m_evento;     // name passed to the host's library
    bool m_PrimoCiclo = true; // the event has not been created yet
    std::unique_ptr<Motore> m_oPlanner;
    TransitRequest m_richiesta;
};

} // namespace planner
