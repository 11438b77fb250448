// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner {

/// Escape as a virtual-key code, the key that closes a form.
inline constexpr int TastoEscape = 27;

} // namespace planner
