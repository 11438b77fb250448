// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/motore.h"
#include "host/command_line.h"
#include "host/transit_request.h"
#include "ports/file_system.h"
#include "ports/host_ipc.h"
#include "ports/message_boxes.h"

#include <functional>
#include <memory>

namespace planner {

/// What the program does next. Rinuncia: it ends, and the host has no answer.
enum class Seguito { Continua, Termina, Rinuncia };

/// The host link, whichever way host and planner wait for each other: it reads a request from the transit
/// file, has the engine serve it and writes the answer back. `main` makes the one object.
class mtavtrmpl {
public:
    struct Porte {
        FileSystem& files;
        MessageBoxes& messaggi;
    };
    using FabbricaMotore = std::function<std::unique_ptr<Motore>()>;

    mtavtrmpl(const RigaComando& riga, const Porte& porte, FabbricaMotore fabbrica);

    /// Reads the transit file into the request buffer; a shorter file leaves blanks. Throws FileError.
    void readRequest();
    /// The same; false when the file cannot be read.
    bool tryToRead();

    /// Has the engine serve the request in the buffer, and writes the answer. An answer that cannot be
    /// written is said, and written again as often as the user wishes; false when the user gives up.
    bool dispatch();

    /// Answers as a closed window does, without a word: the request that the engine is serving, else the one
    /// in the transit file. False when that file cannot be read or written.
    bool answerWithClose();

    /// True from the moment when the engine gets a request until its answer is in the transit file.
    bool serving() const { return m_serving; }

    /// The request buffer: what was read, and after a dispatch the answer.
    const TransitRequest& richiesta() const { return m_richiesta; }

    /// True when the answer in the buffer ends the program.
    bool finished() const { return m_richiesta.azione() == 'E'; }

    /// Releases the engine; the next dispatch makes a new one.
    void releaseEngine() { m_oPlanner.reset(); }

    /// Says that the transit file is the trouble.
    void reportTransitFile();
    /// Says that the marker, a path, cannot be deleted, and what to do.
    void reportMarker(const std::string& marker);
    /// Says that the event cannot be used, and why.
    void reportEvent(const GuaioEvento& guaio);

    const std::string& PathTransito() const { return m_riga.PathTransito; }
    const std::string& CartellaTransito() const { return m_CartellaTransito; }
    const std::string& FlagAvvio() const { return m_riga.FlagAvvio; }
    /// The event's name as it is passed to the host's library.
    std::string_view nomeEvento() const { return trim(m_riga.NomeEvento); }

private:
    void serve();
    void putAnswer(std::string_view collab, std::string_view valret);
    bool writeAnswer();
    Message transitTrouble() const;

    RigaComando m_riga;
    Porte m_porte;
    FabbricaMotore m_fabbrica;
    std::string m_CartellaTransito;
    std::unique_ptr<Motore> m_oPlanner;
    TransitRequest m_richiesta;
    bool m_serving = false;
};

} // namespace planner
