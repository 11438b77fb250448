// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/command_line.h"
#include "host/transit_request.h"
#include "ports/file_system.h"
#include "ports/host_ipc.h"
#include "ports/message_boxes.h"

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace planner {

/// The log for who looks into a trouble from afar: one line an event, Italian, UTF-8. It holds no staff code,
/// no name and nothing of the archives' contents. What cannot be written is lost, and disturbs nobody; a file
/// that is not open takes nothing.
class Diario {
public:
    /// `ora` is written at the begin of each line.
    Diario(std::ostream& uscita, std::function<std::string()> ora)
        : m_uscita(uscita), m_ora(std::move(ora)) {}

    /// Control characters, line feeds among them, become blanks.
    void annota(std::string_view riga);
    /// The first line: which planner, and how it talks with its host.
    void annotaAvvio(const RigaComando& riga);

private:
    std::ostream& m_uscita;
    std::function<std::string()> m_ora;
};

/// The same files; writes down what is read and written. A look whether a file is there is no event.
class FileConDiario : public FileSystem {
public:
    FileConDiario(FileSystem& files, Diario& diario) : m_files(files), m_diario(diario) {}
    bool fileExists(const std::string& path) const override { return m_files.fileExists(path); }
    bool isMissing(const std::string& path) const override { return m_files.isMissing(path); }
    bool deleteFile(const std::string& path) override;
    std::unique_ptr<InputFile> openForReading(const std::string& path) const override;
    /// A request that is the record last read or written says nothing: it is looked at again and again.
    std::size_t readStart(const std::string& path, std::span<char> out) override;
    void writeStart(const std::string& path, std::span<const char> bytes) override;

private:
    FileSystem& m_files;
    Diario& m_diario;
    std::optional<TransitRequest> m_ultimo;
};

/// The same messages; writes down what is said, and what is answered.
class MessaggiConDiario : public MessageBoxes {
public:
    MessaggiConDiario(MessageBoxes& messaggi, Diario& diario) : m_messaggi(messaggi), m_diario(diario) {}
    void show(const Message& message) override;
    bool askToRetry(const Message& message) override;

private:
    void annota(const Message& message);

    MessageBoxes& m_messaggi;
    Diario& m_diario;
};

/// The same event; writes down each call and what became of it.
class EventoConDiario : public HostIpc {
public:
    EventoConDiario(HostIpc& ipc, Diario& diario) : m_ipc(ipc), m_diario(diario) {}
    EsitoEvento TvIpcCreazioneEvento(const std::string& nome) override;
    EsitoEvento TvIpcSetEvento(const std::string& nome) override;
    EsitoEvento TvIpcWaitEvento(const std::string& nome) override;
    EsitoEvento TvIpcRimozioneEvento(const std::string& nome) override;
    bool interrompiAttesa(const std::string& nome) override;
    bool rispostaPresa() const override { return m_ipc.rispostaPresa(); }
    bool ospiteVivo() const override { return m_ipc.ospiteVivo(); }

private:
    EsitoEvento annotato(std::string_view chiamata, EsitoEvento esito);

    HostIpc& m_ipc;
    Diario& m_diario;
};

} // namespace planner
