// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/tables.h"
#include "session/calendar_rules.h"
#include "session/staff.h"
#include "session/tipi_impegno.h"
#include "session/totals.h"

#include <cstdint>
#include <string>

namespace planner {

/// First and last day of a period, and their parts as texts of digits.
struct PeriodoSessione {
    Data inizio{}, fine{};

    bool contiene(Data data) const { return inizio <= data && data <= fine; }

    std::string GiornoInizio() const { return twoDigits(dayOf(inizio)); }
    std::string MeseInizio() const { return twoDigits(monthOf(inizio)); }
    std::string AnnoInizio() const { return std::to_string(yearOf(inizio)); }
    std::string GiornoFine() const { return twoDigits(dayOf(fine)); }
    std::string MeseFine() const { return twoDigits(monthOf(fine)); }
    std::string AnnoFine() const { return std::to_string(yearOf(fine)); }
};

/// Whether the last reading of each archive went well. Where it did not, what there was is shown.
struct LettureArchivi {
    bool righe = true, annuale = true, collaboratori = true, grafici = true;
};

/// The state of the planner session, shared by the engine and all windows. `main` makes the one object;
/// each request refills it. Texts are Windows-1252.
struct modpl {
    std::string tipocall;      // "A" disables the agenda
    std::string planrichiesto; // "S" disables the charts
    std::string PathArchivi;   // without a trailing "\"
    std::string valret;        // the answer being built: ten data characters and the action letter
    std::string collab = "  "; // staff code that the user picked, two blanks for none
    bool FinePlanner = false;  // the user is done

    std::string ModoFinestra;   // "N": see Init_planner
    std::string TitoloFinestra; // kept, read by nobody
    std::string FlagFinestra;   // "B": reduced window

    TabellaGiorniMese GiorniMese = giorniMese(2001);
    PeriodoSessione periodo; // that the host asked for

    Archivi archivi;
    LettureArchivi letture;
    IndiceCodici indiceCodici;
    TabellaTotali TotaliImpegni;

    IndiceCollaboratore IndiceCollab;    // selected staff member
    IndiceCollaboratore IndiceRichiesto; // the one that the request names
    std::int16_t LivelloDettaglio = 4;   // 4 detailed, 1 not
    bool CalendarioAttivo = false;       // moves in the yearly grid may move the calendar

    /// True when the last character of the answer is `azione`.
    bool risposta(char azione) const { return !valret.empty() && valret.back() == azione; }
    /// The path of an archive file.
    std::string percorso(std::string_view file) const { return PathArchivi + std::string(file); }
    /// True in the window variant without deadlines.
    bool varianteRidotta() const { return FlagFinestra == "B"; }
};

} // namespace planner
