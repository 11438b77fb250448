// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace planner {

/// Why a call on the event failed.
struct GuaioEvento {
    bool giaUsato;     // another planner owns the name
    std::string causa; // in the system's words

    friend bool operator==(const GuaioEvento&, const GuaioEvento&) = default;
};

/// What a call on the event came to: nothing when it was done, or failed without giving a reason, which
/// passes unnoticed.
using EsitoEvento = std::optional<GuaioEvento>;

/// The four operations on the named event that the host and the planner share.
class HostIpc {
public:
    virtual ~HostIpc() = default;
    virtual EsitoEvento TvIpcCreazioneEvento(const std::string& nome) = 0;
    virtual EsitoEvento TvIpcSetEvento(const std::string& nome) = 0;
    /// Returns when the host has signalled, without a time limit; the user interface, the session manager and
    /// the system's signals are served meanwhile.
    virtual EsitoEvento TvIpcWaitEvento(const std::string& nome) = 0;
    virtual EsitoEvento TvIpcRimozioneEvento(const std::string& nome) = 0;

    /// Removes the event while the planner waits on it, to be called from within that wait. True when the
    /// host had signalled before: it waits for an answer.
    virtual bool interrompiAttesa(const std::string& nome) = 0;
    /// True when the host has taken the last signal; also when that cannot be told.
    virtual bool rispostaPresa() const = 0;
    /// True while a process lives that has used the event from the host's side; also when that cannot be
    /// told.
    virtual bool ospiteVivo() const = 0;
};

} // namespace planner
