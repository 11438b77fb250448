// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/dates.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace planner {

/// Month names, index 0 = January.
inline constexpr std::array<std::string_view, 12> NomiMesi{"Gennaio",   "Febbraio", "Marzo",    "Aprile",
                                                           "Maggio",    "Giugno",   "Luglio",   "Agosto",
                                                           "Settembre", "Ottobre",  "Novembre", "Dicembre"};

/// The name of month 1 to 12. Throws SubscriptError.
std::string_view nomeMese(int mese);
/// The same as it stands inside a sentence: "gennaio". Throws SubscriptError.
std::string meseInFrase(int mese);

/// The days that a month may have.
inline constexpr std::size_t GiorniMassimi = 31;

/// A fixed public holiday.
struct Festivita {
    int giorno;
    int mese;
    std::string_view nome; // Windows-1252
};

inline constexpr std::array Festivi{Festivita{1, 1, "Capodanno"},
                                    Festivita{1, 5, "Festa del lavoro"},
                                    Festivita{1, 11, "Ognissanti"},
                                    Festivita{8, 12, "Immacolata Concezione"},
                                    Festivita{25, 12, "Natale"},
                                    Festivita{26, 12, "Santo Stefano"},
                                    Festivita{6, 1, "Epifania"},
                                    Festivita{25, 4, "Festa della Liberazione"},
                                    Festivita{2, 6, "Festa della Repubblica"},
                                    Festivita{15, 8, "Ferragosto"}};

/// The holiday on the day `giorno`, counted from 0, of month 1 to 12; null when there is none.
const Festivita* trovaFestivo(int giorno, int mese);

/// The number of 15-minute slots, to the nearest, of a length given as hours (first five characters) and
/// minutes (last two). Throws OverflowError when hours or total exceed 16 bits of minutes.
std::int16_t ConvertiDurata(std::string_view durata);

/// The Gregorian leap-year rule.
bool CheckAnnoBisestile(int anno);

/// Month lengths as texts, index 0 = January.
using TabellaGiorniMese = std::array<std::string_view, 12>;
TabellaGiorniMese giorniMese(int anno);

/// The length of a month, 1 to 12, in days.
int lunghezzaMese(const TabellaGiorniMese& tabella, int mese);

/// Weekday of the month's first day: 1 = Sunday ... 7 = Saturday.
std::int16_t primoGiornoSettimana(int anno, int mese);

/// The Monday-first column, 1 to 7, of the month's first day.
int colonnaPrimoGiorno(int anno, int mese);

} // namespace planner
