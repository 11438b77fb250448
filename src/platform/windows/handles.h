// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/waiting.h"

namespace planner {

/// The system's own form of it.
inline void* handleOf(Waitable waitable) {
    return reinterpret_cast<void*>(waitable); // NOLINT(performance-no-int-to-ptr)
}

} // namespace planner
