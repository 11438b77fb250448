// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace planner::e2e {

/// How long anything that must happen may take: far more than it needs, so that only a hang exceeds it.
inline constexpr std::chrono::milliseconds Deadline{E2E_SANITIZED ? 120'000 : 60'000};

/// Looks again and again whether `condition` holds, until the deadline; only for what gives no event to wait
/// for.
bool comesTrue(const std::function<bool()>& condition, std::chrono::milliseconds within = Deadline);

} // namespace planner::e2e
