// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/tables.h"
#include "session/calendar_rules.h"
#include "session/calendario.h"
#include "session/staff.h"

#include <span>
#include <vector>

namespace planner {

/// What a chart takes from the records: hours by row.
struct ValoriGrafico {
    explicit ValoriGrafico(std::size_t righe) : valori(righe) {}

    /// Replaces the row's value. Throws std::out_of_range.
    void metti(std::size_t riga, double ore);

    std::vector<double> valori;
    double massimo = 0; // the largest value that any row has had, those since replaced included
};

/// The records that the file held.
std::span<const RigaGrafico> righeGrafico(const Archivi& archivi);
/// The staff that the file held.
std::span<const Collaboratore> collaboratoriGrafico(const Archivi& archivi);
/// An entry of the staff table, its blank last one included. Throws SubscriptError.
const Collaboratore& collaboratoreGrafico(const Archivi& archivi, IndiceCollaboratore indice);

/// 31 values, one for each day that a month may have, of one staff member in the calendar's month. Later
/// records replace earlier ones of the same day. Throws SubscriptError for a day or, unless there is no
/// record at all, an index outside its range, TypeMismatchError for a day that is no number, OverflowError
/// for hours.
ValoriGrafico valoriMensili(const Archivi& archivi, const Calendario& calendario, IndiceCollaboratore collab);

/// A value for each staff member on the calendar's day; records of unknown codes are not looked at. Throws
/// OverflowError for hours.
ValoriGrafico valoriGiornalieri(const Archivi& archivi, const Calendario& calendario);

/// Twelve values, for each month of the calendar's year that of its last record, whatever its code. Throws
/// SubscriptError, TypeMismatchError and OverflowError for month and hours.
ValoriGrafico valoriAnnuali(const Archivi& archivi, const Calendario& calendario);

} // namespace planner
