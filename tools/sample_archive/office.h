// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_archive/sample_archive.h"
#include "sample_archive/working_days.h"

#include <vector>

namespace planner {

/// The office of a sample year: what lines and hours are made from.
struct Ufficio {
    int anno;
    std::vector<Collaboratore> collaboratori;
    std::vector<GiornoLavorativo> giorni;
    std::vector<std::vector<bool>> presenze; // [staff index][index in `giorni`]

    /// The contract's minutes of work a day; some of the staff work part time.
    int minutiContratto(std::size_t collaboratore) const;
    /// The share of the office's work, in percent of an average staff member's.
    int caricoLavoro(std::size_t collaboratore) const;
};

/// Throws std::invalid_argument when an option lies outside its range.
Ufficio creaUfficio(const OpzioniCampione& opzioni);

} // namespace planner
