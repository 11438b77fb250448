// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/dates.h"

namespace planner {

/// The month calendar's content: the date being shown. It always holds a valid date.
class Calendario {
public:
    Data Value() const { return m_value; }
    int Day() const { return dayOf(m_value); }
    int Month() const { return monthOf(m_value); }
    int Year() const { return yearOf(m_value); }

    /// Throws DateError when `value` is not a day of the years 1753 to 9999.
    void setValue(Data value);

    /// The date part of an answer: yyyymmdd.
    std::string testoRisposta() const { return formatDate(m_value); }
    /// A whole answer of eleven characters: date, staff code and action letter.
    std::string risposta(const std::string& collab, std::string_view azione) const {
        return testoRisposta() + collab + std::string(azione);
    }

private:
    Data m_value{std::chrono::year{2000}, std::chrono::January, std::chrono::day{1}};
};

} // namespace planner
