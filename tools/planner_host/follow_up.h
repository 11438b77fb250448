// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/transit_request.h"
#include "planner_host/answer.h"

#include <optional>
#include <string>

namespace planner {

/// What the host does about an answer.
struct Seguito {
    std::string testo;                       // Italian, UTF-8
    std::optional<int> annoArchivio;         // the archive to prepare first
    std::optional<TransitRequest> richiesta; // the next request; nothing after "E"
};

/// `richiesta` is the request that was answered, as the host sent it.
Seguito daiSeguito(const TransitRequest& richiesta, const Risposta& risposta);

} // namespace planner
