// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/ingrandimento.h"

#include <cmath>

namespace planner {

int Ingrandimento::percento() const {
    constexpr float hundredths = 100;
    return static_cast<int>(std::lround(righe() * hundredths));
}

bool Ingrandimento::esegui(ComandoGriglia comando) {
    switch (comando) {
    case ComandoGriglia::ingrandisci:
        m_grado = std::min(m_grado + 1, Gradi.size() - 1);
        return true;
    case ComandoGriglia::riduci:
        m_grado -= m_grado > 0 ? 1 : 0;
        return true;
    case ComandoGriglia::grandezzaNormale:
        m_grado = Normale;
        return true;
    default:
        return false;
    }
}

} // namespace planner
