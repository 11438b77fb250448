// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/diario.h"

#include <fstream>

namespace planner {

/// The log that the environment asks for: PLANNER_LOG names a file, to which lines are added. Unset, or with
/// a file that cannot be opened, nothing is written.
class SupportLog {
public:
    SupportLog();

    Diario& diario() { return m_diario; }

private:
    std::ofstream m_file;
    Diario m_diario;
};

} // namespace planner
