// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/ipc/tavterm_host_ipc.h"

#include "platform/ipc/TavTermIPC.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <system_error>

namespace planner {

namespace {

constexpr std::chrono::milliseconds EndOfWait{200}; // for a wait whose event has been removed

EsitoEvento called(int (*operation)(const char*), const std::string& nome) {
    errno = 0;
    if (operation(nome.c_str()) != 0 || errno == 0) {
        return {};
    }
    return GuaioEvento{errno == EADDRINUSE, std::generic_category().message(errno)};
}

} // namespace

EsitoEvento TavTermHostIpc::TvIpcCreazioneEvento(const std::string& nome) {
    EsitoEvento esito = called(&::TvIpcCreazioneEvento, nome);
    if (!esito && !m_osservato) {
        m_osservato.emplace(nome);
    }
    return esito;
}

EsitoEvento TavTermHostIpc::TvIpcSetEvento(const std::string& nome) {
    return called(&::TvIpcSetEvento, nome);
}

EsitoEvento TavTermHostIpc::TvIpcRimozioneEvento(const std::string& nome) {
    EsitoEvento esito = called(&::TvIpcRimozioneEvento, nome);
    m_osservato.reset();
    return esito;
}

EsitoEvento TavTermHostIpc::TvIpcWaitEvento(const std::string& nome) {
    try {
        return waitBesideEvents(nome);
    } catch (const std::system_error& error) { // no thread can be made
        return GuaioEvento{false, error.code().message()};
    }
}

EsitoEvento TavTermHostIpc::waitBesideEvents(const std::string& nome) {
    std::atomic<bool> returned = false;
    m_attesa = std::async(std::launch::async, [this, &nome, &returned] {
        const EsitoEvento esito = called(&::TvIpcWaitEvento, nome);
        returned = true;
        m_eventi.wakeUp();
        return esito;
    });
    while (!returned) {
        m_eventi.waitAndProcess();
    }
    return m_attesa.get();
}

bool TavTermHostIpc::interrompiAttesa(const std::string& nome) {
    TvIpcRimozioneEvento(nome);
    return m_attesa.valid() && m_attesa.wait_for(EndOfWait) == std::future_status::ready && !m_attesa.get();
}

} // namespace planner
