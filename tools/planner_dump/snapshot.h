// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "engine/session/modpl.h"
#include "host/transit_request.h"
#include "platform/ports/message_boxes.h"

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
};

/// Reads the transit file's record without touching the file; a shorter file leaves blanks. Throws FileError.
TransitRequest readTransitFile(const std::string& path);

/// Serves the request as the planner would, on the archives in `folder` and with `oggi` as today, and leaves
/// the result in `snapshot`, which must be fresh. No file is written.
void serveRequest(const TransitRequest& richiesta, const std::string& folder, Data oggi, Snapshot& snapshot);

} // namespace planner
