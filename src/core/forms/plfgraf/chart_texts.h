// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/grafico.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace planner {

/// Texts about a chart's values, in UTF-8.

/// Hours as hours and minutes, to the nearest minute: "7:30", "-1:15". Beyond a billion hours, where minutes
/// mean nothing, as a decimal number.
std::string testoOre(double ore);

/// A number with decimal comma and at most two decimals: "7,5".
std::string testoDecimale(double valore);

/// Hours as they are spoken: "7 ore e 30 minuti", "1 ora", "nessuna ora"; below 0 "meno 2 ore". Beyond a
/// billion hours without minutes.
std::string oreParlate(double ore);

/// The value in a line to read: "15 marzo: 7:30", in a pie with its share. Throws std::out_of_range past the
/// last value.
std::string fraseValore(const Grafico& grafico, std::size_t numero);

/// The value in a spoken sentence: "15 marzo: 7 ore e 30 minuti", in a pie with its share. Throws
/// std::out_of_range past the last value.
std::string fraseParlata(const Grafico& grafico, std::size_t numero);

/// The hours that a pie's slices share: only values above 0 have one.
double totaleTorta(const Grafico& grafico);

/// A value's share of that total, in hundredths: "48 %", "<1 %"; empty for one that has no slice.
std::string testoQuota(double value, double total);

/// The line at the chart's foot: its heading, the hours in all and the mean of the values that are not 0,
/// "Ore di Rossi Bruno - marzo 2006: totale 152:30, media 7:15 su 21 giorni".
std::string testoPiede(const Grafico& grafico);

/// The chart's heading, with blanks for control characters: "Ore di Rossi Bruno - marzo 2006".
std::string testoIntestazione(const Grafico& grafico);

/// The heading as the name of a file, without suffix; "Grafico" where there is no heading.
std::string nomeFileGrafico(const Grafico& grafico);

/// All values as a table for other programs: the chart's heading, if any, a line of headings and one for each
/// value; columns, parted by tabs, for the label, the hours as 7:30 and the hours as a decimal number; lines
/// ended by "\n". Control characters in labels become blanks.
std::string tabellaValori(const Grafico& grafico);

/// Bytes of an archive, in Windows-1252, with each control character as its number: "3\x00".
std::string testoVisibile(std::string_view bytes);

} // namespace planner
