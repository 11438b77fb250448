// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "served_request/snapshot.h"

#include <nlohmann/json.hpp>

namespace planner {

/// The snapshot as one JSON object, keys in their documented order. Texts that the archives hold become
/// UTF-8; message texts go in as they are, so that a path in one of them may hold any bytes.
nlohmann::ordered_json describe(const Snapshot& snapshot);

/// The chart as one JSON object, null for none.
nlohmann::ordered_json describeChart(const std::optional<Grafico>& grafico);

/// The object as text, a new line at its end. Always valid UTF-8: bytes that are not come out as U+FFFD.
std::string toText(const nlohmann::ordered_json& object);

} // namespace planner
