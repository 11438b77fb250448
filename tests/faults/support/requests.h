// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace planner::faults {

inline constexpr const char* NoEvent = "NOEVENT";

/// The exit codes of the sweeps' host. It is killed where its wait has no end.
enum class FineOspite { Servito = 0, SegnaleFallito = 3, AttesaFallita = 4, RispostaSbagliata = 5 };

/// A request that is to be answered with this letter.
std::string requestFor(char letter);
/// That request, answered.
std::string answerTo(char letter);

/// That request, answered by a planner that ends without a window.
std::string endTo(char letter);

/// Writes the request over the one in the transit file, in one call.
void writeRequest(const std::string& transit, char letter);

/// The marker in the transit file's folder.
std::string markerOf(const std::string& transit);
void putMarker(const std::string& transit);

} // namespace planner::faults
