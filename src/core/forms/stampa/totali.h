// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <optional>
#include <string>
#include <vector>

namespace planner {

/// The totals of the shown period: of each staff member, or of each month in the yearly grid.
struct TotaliMostrati {
    struct Riga {
        std::string nome;                        // UTF-8
        std::vector<std::optional<long>> numeri; // nothing where none is known
    };
    std::string nomeRighe;         // what the rows stand for
    std::vector<std::string> nomi; // of the totals, UTF-8
    std::vector<Riga> righe;       // of each row of `righeStampate`
};

/// A grid must be visible. The window variant without deadlines has no totals of them here either. Throws
/// what impossible numbers of the year's archive raise.
TotaliMostrati totaliMostrati(const ControlliPlcal& controlli, const modpl& sessione);

} // namespace planner
