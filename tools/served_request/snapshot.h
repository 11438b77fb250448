// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "forms/plfgraf/grafico.h"
#include "host/transit_request.h"
#include "ports/message_boxes.h"
#include "session/modpl.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace planner {

/// What a user would have before them after a request: the request as read, the session, the window's
/// controls, and the messages in the order in which they would have been shown.
struct Snapshot {
    TransitRequest richiesta;
    modpl sessione;
    ControlliPlcal controlli;
    std::vector<Message> messaggi;
    std::optional<Grafico> grafico; // nothing when none would be shown
};

/// The user's part in a request.
struct Utente {
    Data oggi;
    std::optional<IndiceCollaboratore> grafico; // opens the charts with this staff member selected
};

/// Reads the transit file's record without touching the file; a shorter file leaves blanks. Throws FileError.
TransitRequest readTransitFile(const std::string& path);

/// Serves the request as the planner would, on the archives in `folder`, and leaves the result in `snapshot`,
/// which must be fresh. No file is written.
void serveRequest(const TransitRequest& richiesta, const std::string& folder, const Utente& utente,
                  Snapshot& snapshot);

} // namespace planner
