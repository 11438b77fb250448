// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/calendario.h"

#include "ports/runtime_errors.h"

namespace planner {

void Calendario::setValue(Data value) {
    if (!value.ok() || yearOf(value) < AnnoMinimo || yearOf(value) > AnnoMassimo) {
        throw DateError(formatDate(value));
    }
    m_value = value;
}

} // namespace planner
