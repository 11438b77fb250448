// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfimp/plfimp.h"

namespace planner {

void plfimp::Option1_Click(int index) {
    if (index >= 0 && static_cast<std::size_t>(index) < ScelteImpegno.size()) {
        m_option = index;
    }
}

} // namespace planner
