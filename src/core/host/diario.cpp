// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/diario.h"

#include "archive/readers.h"
#include "archive/records.h"
#include "ports/runtime_errors.h"
#include "session/versione.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace planner {

namespace {

struct Archivio {
    std::string_view nome;
    std::size_t record; // bytes
};

constexpr std::array Archivi{Archivio{FileRighe.substr(1), sizeof(RigaPlanner)},
                             Archivio{FileAnnuale.substr(1), sizeof(MesePlanner)},
                             Archivio{FileCollaboratori.substr(1), sizeof(Collaboratore)},
                             Archivio{FileGrafici.substr(1), sizeof(RigaGrafico)}};

std::string_view nomeDiFile(std::string_view path) {
    return path.substr(path.find_last_of("/\\") + 1); // npos + 1 is the begin
}

std::string conteggio(std::string_view nome, std::uint64_t bytes) {
    const auto archivio = std::ranges::find(Archivi, nome, &Archivio::nome);
    const std::string length = std::to_string(bytes) + " byte";
    return archivio == Archivi.end() ? length
                                     : length + ", " + std::to_string(bytes / archivio->record) + " record";
}

template <std::size_t N>
std::string leggibile(const FixedText<N>& field) {
    std::string text(field.trimmed());
    std::ranges::replace_if(
        text, [](char letter) { return letter < ' ' || letter > '~'; }, '?');
    return text.empty() ? "-" : text;
}

std::string descrizione(const TransitRequest& r) {
    const FixedText<8> giorno(r.valret.view());
    return "tipo " + leggibile(r.tipoplanner) + ", dal " + leggibile(r.startdate) + " al " +
           leggibile(r.enddate) + ", giorno " + leggibile(giorno);
}

std::string risposta(const TransitRequest& r) {
    const FixedText<8> giorno(r.valret.view());
    const FixedText<1> azione(lastChars(r.valret.view(), 1));
    return "risposta: giorno " + leggibile(giorno) +
           (trim(slice(r.valret.view(), 8, 2)).empty() ? ", nessun collaboratore" : ", un collaboratore") +
           ", azione " + leggibile(azione);
}

TransitRequest richiestaDa(std::span<const char> bytes) {
    std::array<char, sizeof(TransitRequest)> record;
    record.fill(' ');
    std::copy_n(bytes.begin(), std::min(bytes.size(), record.size()), record.begin());
    return std::bit_cast<TransitRequest>(record);
}

} // namespace

void Diario::annota(std::string_view riga) {
    std::string text(riga);
    std::ranges::replace_if(
        text, [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
    m_uscita << m_ora() + " " + text + "\n" << std::flush;
    m_uscita.clear(); // a disk that is full may have room again
}

void Diario::annotaAvvio(const RigaComando& riga) {
    annota("avvio: planner " + std::string(versione()) +
           (riga.polling() ? ", a marcatori" : ", evento " + riga.NomeEvento));
}

bool FileConDiario::deleteFile(const std::string& path) {
    const bool done = m_files.deleteFile(path);
    m_diario.annota("file " + std::string(nomeDiFile(path)) + (done ? " eliminato" : " non eliminato"));
    return done;
}

std::unique_ptr<InputFile> FileConDiario::openForReading(const std::string& path) const {
    const std::string nome(nomeDiFile(path));
    try {
        auto file = m_files.openForReading(path);
        m_diario.annota("archivio " + nome + ": " + conteggio(nome, file->length()));
        return file;
    } catch (const FileError& error) {
        m_diario.annota("archivio " + nome + ": non si apre: " + error.what());
        throw;
    }
}

std::size_t FileConDiario::readStart(const std::string& path, std::span<char> out) {
    try {
        const std::size_t count = m_files.readStart(path, out);
        const TransitRequest request = richiestaDa(out.first(std::min(count, out.size())));
        if (m_ultimo != request) {
            m_diario.annota("richiesta: " + descrizione(request) + ", " + std::to_string(count) + " byte");
            m_ultimo = request;
        }
        return count;
    } catch (const FileError& error) {
        m_diario.annota("richiesta: non si legge: " + std::string(error.what()));
        throw;
    }
}

void FileConDiario::writeStart(const std::string& path, std::span<const char> bytes) {
    try {
        m_files.writeStart(path, bytes);
    } catch (const FileError& error) {
        m_diario.annota("risposta: non si scrive: " + std::string(error.what()));
        throw;
    }
    m_ultimo = richiestaDa(bytes);
    m_diario.annota(risposta(*m_ultimo));
}

void MessaggiConDiario::annota(const Message& message) {
    m_diario.annota((message.icon == MessageIcon::Critical ? "messaggio critico: " : "messaggio: ") +
                    message.text);
}

void MessaggiConDiario::show(const Message& message) {
    annota(message);
    m_messaggi.show(message);
}

bool MessaggiConDiario::askToRetry(const Message& message) {
    annota(message);
    const bool again = m_messaggi.askToRetry(message);
    m_diario.annota(again ? "scelto: Riprova" : "scelto: Annulla");
    return again;
}

EsitoEvento EventoConDiario::annotato(std::string_view chiamata, EsitoEvento esito) {
    m_diario.annota("evento " + std::string(chiamata) + (esito ? ": non riuscito: " + esito->causa : ""));
    return esito;
}

EsitoEvento EventoConDiario::TvIpcCreazioneEvento(const std::string& nome) {
    return annotato("creato", m_ipc.TvIpcCreazioneEvento(nome));
}

EsitoEvento EventoConDiario::TvIpcSetEvento(const std::string& nome) {
    return annotato("segnalato", m_ipc.TvIpcSetEvento(nome));
}

EsitoEvento EventoConDiario::TvIpcWaitEvento(const std::string& nome) {
    m_diario.annota("evento atteso");
    return annotato("ricevuto", m_ipc.TvIpcWaitEvento(nome));
}

EsitoEvento EventoConDiario::TvIpcRimozioneEvento(const std::string& nome) {
    return annotato("rimosso", m_ipc.TvIpcRimozioneEvento(nome));
}

bool EventoConDiario::interrompiAttesa(const std::string& nome) {
    const bool asked = m_ipc.interrompiAttesa(nome);
    m_diario.annota(asked ? "attesa interrotta: l'host ha chiesto" : "attesa interrotta");
    return asked;
}

} // namespace planner
