// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "planner_host/conversation.h"

namespace planner {

/// Talks through the marker file LockPl.lck: the host makes it when the request is complete, the planner
/// removes it when the answer is.
class PollingConversation : public Conversation {
public:
    /// Throws HostError with exit code 3 when the folder cannot be watched.
    PollingConversation(DatiColloquio dati, const Interruzioni& interruzioni);

    TransitRequest chiedi(const TransitRequest& richiesta) override;
    void congeda() override;

private:
    void createMarker();
    void waitForRemoval();
    bool markerExists() const;

    std::filesystem::path m_marker;
    FolderWatch m_watch; // tells of files that leave the folder
};

/// Starts the planner with flag "0": it removes the marker TvPlaOK.lck, which is made here first, and ends
/// without an answer. Throws HostError with exit code 2 when it does otherwise.
void provaFlagZero(const DatiColloquio& dati, const Interruzioni& interruzioni);

} // namespace planner
