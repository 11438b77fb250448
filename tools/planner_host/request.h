// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/transit_request.h"
#include "planner_host/host_options.h"

#include <string>

namespace planner {

/// The first request for a planner of kind `tipo`.
TransitRequest creaRichiesta(const OpzioniHost& opzioni, char tipo);

/// The request in one line, in Italian and UTF-8.
std::string descriviRichiesta(const TransitRequest& richiesta);

/// The text yyyymmdd as dd/mm/yyyy; the text itself, quoted, when it is no day.
std::string giornoLeggibile(std::string_view yyyymmdd);

} // namespace planner
