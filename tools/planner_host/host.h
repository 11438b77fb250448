// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "planner_host/answer.h"
#include "planner_host/archive_folder.h"
#include "planner_host/conversation.h"
#include "planner_host/follow_up.h"
#include "planner_host/host_options.h"

#include <iosfwd>
#include <memory>

namespace planner {

/// The host: prepares the archive, asks, follows up the answers, and tells what happens on `out`.
class Host {
public:
    Host(const OpzioniHost& opzioni, const Interruzioni& interruzioni, std::ostream& out);

    /// Does all that the options ask for. Throws HostError.
    void esegui();

private:
    void prepareArchive(int anno);
    void converse(char tipo);
    Risposta ask(Conversation& colloquio, const TransitRequest& richiesta);
    void carryOut(const Seguito& seguito, Conversation& colloquio);
    void tryFlagZero(const DatiColloquio& dati, char tipo);
    void warnAboutReservedFields(const TransitRequest& richiesta, const TransitRequest& record);
    DatiColloquio makeDati();
    std::unique_ptr<Conversation> makeConversation(DatiColloquio dati);

    void tell(std::string_view what, const std::string& text);
    void tellBytes(const TransitRequest& record);

    const OpzioniHost& m_opzioni;
    const Interruzioni& m_interruzioni;
    std::ostream& m_out;
    ArchiveFolder m_archivio;
    int m_avviati = 0; // planners started so far
};

} // namespace planner
