// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ipc/event_watch.h"
#include "ports/event_pump.h"
#include "ports/host_ipc.h"

#include <future>
#include <optional>

namespace planner {

/// The named event through the host's library. A thread of its own does nothing but wait, so that the events
/// of `eventi` are processed meanwhile; everything else happens in the caller's thread.
class TavTermHostIpc : public HostIpc {
public:
    explicit TavTermHostIpc(EventPump& eventi) : m_eventi(eventi) {}

    EsitoEvento TvIpcCreazioneEvento(const std::string& nome) override;
    EsitoEvento TvIpcSetEvento(const std::string& nome) override;
    EsitoEvento TvIpcWaitEvento(const std::string& nome) override;
    EsitoEvento TvIpcRimozioneEvento(const std::string& nome) override;
    bool interrompiAttesa(const std::string& nome) override;
    bool rispostaPresa() const override { return !m_osservato || m_osservato->lastSignalTaken(); }
    bool ospiteVivo() const override { return !m_osservato || m_osservato->otherSideAlive(); }

private:
    EsitoEvento waitBesideEvents(const std::string& nome);

    EventPump& m_eventi;
    std::future<EsitoEvento> m_attesa;
    std::optional<EventWatch> m_osservato; // while this process owns the event
};

} // namespace planner
