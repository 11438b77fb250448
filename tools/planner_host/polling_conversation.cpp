// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/polling_conversation.h"

#include "planner_host/errors.h"
#include "planner_host/transit_file.h"
#include "platform/system/paths.h"
#include "platform/system/this_process.h"

#include <system_error>

namespace planner {

namespace {

constexpr std::string_view NomeRichiesta = "LockPl.lck";
constexpr std::string_view NomeDisponibile = "TvPlaOK.lck";

/// A folder on another machine reports no change made there: look for oneself now and then, as often as the
/// planner does.
constexpr std::chrono::milliseconds Controllo{500};

constexpr std::chrono::seconds AttesaDellaFine{30};

[[noreturn]] void failFile(const std::filesystem::path& path, const std::string& cause) {
    throw HostError(CodiceUscita::ErroreFile, textOf(path) + ": " + cause);
}

/// Makes an empty file. Whoever finds it may take it at once: all that it announces must be done before.
void createFile(const std::filesystem::path& path) {
    const std::error_code error = createNewFile(path);
    if (error == std::errc::file_exists) {
        failFile(path, "il file c'è già, di un'altra richiesta o di un planner finito male");
    }
    if (error) {
        failFile(path, error.message());
    }
}

void removeFile(const std::filesystem::path& path) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

/// The folder, once it is certain that it can be watched.
std::string watchable(const std::filesystem::path& folder) {
    try {
        const FolderWatch tried(textOf(folder));
    } catch (const std::system_error& error) {
        failFile(folder, "impossibile sorvegliare la cartella: " + error.code().message());
    }
    return textOf(folder);
}

} // namespace

PollingConversation::PollingConversation(DatiColloquio dati, const Interruzioni& interruzioni)
    : Conversation(std::move(dati), interruzioni),
      m_marker(this->dati().transito.parent_path() / NomeRichiesta),
      m_watch(watchable(m_marker.parent_path())) {}

TransitRequest PollingConversation::chiedi(const TransitRequest& richiesta) {
    if (markerExists()) {
        failFile(m_marker, "una richiesta è già in attesa");
    }
    scriviTransito(dati().transito, richiesta);
    createMarker();
    waitForRemoval();
    return leggiTransito(dati().transito);
}

void PollingConversation::createMarker() {
    createFile(m_marker);
    try {
        if (!started()) {
            start();
        }
    } catch (const HostError&) {
        removeFile(m_marker);
        throw;
    }
}

void PollingConversation::waitForRemoval() {
    while (markerExists()) {
        const Sveglia sveglia =
            attendi(m_watch.waitable(), planner().endWaitable(), interruzioni(), Controllo);
        if (sveglia == Sveglia::PlannerFinito && markerExists()) {
            removeFile(m_marker);
            failWithoutAnswer();
        }
        m_watch.forget();
    }
}

bool PollingConversation::markerExists() const {
    std::error_code ignored;
    return std::filesystem::exists(m_marker, ignored);
}

void PollingConversation::congeda() {
    // A marker without a transit file is how a host sends a planner away.
    removeFile(dati().transito);
    createFile(m_marker);
    attendi(planner().endWaitable(), NoWaitable, interruzioni(), AttesaDellaFine);
    removeFile(m_marker);
    planner().terminate();
}

void provaFlagZero(const DatiColloquio& dati, const Interruzioni& interruzioni) {
    const std::filesystem::path marker = dati.transito.parent_path() / NomeDisponibile;
    if (!std::filesystem::exists(marker)) {
        createFile(marker);
    }
    PlannerProcess planner(dati.planner, argomentiPlanner(dati));
    attendi(planner.endWaitable(), NoWaitable, interruzioni, AttesaDellaFine);
    if (!planner.waitForEnd(std::chrono::milliseconds{0}) || std::filesystem::exists(marker)) {
        throw HostError(CodiceUscita::PlannerFallito,
                        "con il flag 0 il planner doveva togliere " + textOf(marker) + " e finire");
    }
}

} // namespace planner
