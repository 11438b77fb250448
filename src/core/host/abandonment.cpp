// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/abandonment.h"

namespace planner {

namespace {

constexpr int TicksOfTenSeconds = 20;

} // namespace

void Abandonment::starterGone() {
    if (m_conversazione.haAvutoRisposta()) {
        m_timer.setEnabled(true);
    }
}

bool Abandonment::tick() {
    const bool deserted = m_conversazione.attende() && !m_ipc.ospiteVivo();
    m_deserted = deserted ? m_deserted + 1 : 0;
    return m_deserted >= TicksOfTenSeconds;
}

} // namespace planner
