// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/versione.h"

namespace planner {

std::string_view versione() {
    return PLANNER_VERSION;
}

} // namespace planner
