// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/polling_conversation.h"

#include "planner_host/errors.h"
#include "planner_host/transit_file.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/inotify.h>
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
    throw HostError(CodiceUscita::ErroreFile, path.string() + ": " + cause);
}

/// Makes an empty file. Whoever finds it may take it at once: all that it announces must be done before.
void createFile(const std::filesystem::path& path) {
    const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.get() < 0 && errno == EEXIST) {
        failFile(path, "il file c'è già, di un'altra richiesta o di un planner finito male");
    }
    if (file.get() < 0) {
        failFile(path, std::generic_category().message(errno));
    }
}

void removeFile(const std::filesystem::path& path) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

} // namespace

PollingConversation::PollingConversation(DatiColloquio dati, const Interruzioni& interruzioni)
    : Conversation(std::move(dati), interruzioni),
      m_marker(this->dati().transito.parent_path() / NomeRichiesta),
      m_watch(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    const std::filesystem::path folder = m_marker.parent_path();
    if (::inotify_add_watch(m_watch.get(), folder.c_str(), IN_DELETE | IN_MOVED_FROM) < 0) {
        failFile(folder, "impossibile sorvegliare la cartella: " + std::generic_category().message(errno));
    }
}

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
        const Sveglia sveglia = attendi(m_watch.get(), planner().endDescriptor(), interruzioni(), Controllo);
        if (sveglia == Sveglia::PlannerFinito && markerExists()) {
            removeFile(m_marker);
            failWithoutAnswer();
        }
        std::array<char, 4096> news{};
        while (::read(m_watch.get(), news.data(), news.size()) > 0) {
        }
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
    attendi(planner().endDescriptor(), NessunDescrittore, interruzioni(), AttesaDellaFine);
    removeFile(m_marker);
    planner().terminate();
}

void provaFlagZero(const DatiColloquio& dati, const Interruzioni& interruzioni) {
    const std::filesystem::path marker = dati.transito.parent_path() / NomeDisponibile;
    if (!std::filesystem::exists(marker)) {
        createFile(marker);
    }
    PlannerProcess planner(dati.planner, argomentiPlanner(dati));
    attendi(planner.endDescriptor(), NessunDescrittore, interruzioni, AttesaDellaFine);
    if (!planner.waitForEnd(std::chrono::milliseconds{0}) || std::filesystem::exists(marker)) {
        throw HostError(CodiceUscita::PlannerFallito,
                        "con il flag 0 il planner doveva togliere " + marker.string() + " e finire");
    }
}

} // namespace planner
