// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <optional>
#include <string>
#include <string_view>

namespace planner {

class Contenuti;

/// What a kind of planner is called, what its grid is made of, and which operations fill it.
struct DescrizioneTipo {
    TipoPlanner tipo;
    std::string_view nomeGriglia;
    std::string_view Caption;   // of the window
    std::string_view nomeDetto; // of the grid, by a screen reader
    Griglia ControlliPlcal::*griglia;
    bool perCollaboratore; // a row stands for a staff member, else for a month
    bool unGiorno;         // the whole grid stands for one day, else a column does
    void (Contenuti::*leggi)();
    void (Contenuti::*pulisci)();
    void (Contenuti::*disponi)();
    void (Contenuti::*popola)();
    /// Marks today in the grid, laid out for the date of the calendar, and unmarks every other day.
    void (*segnaOggi)(Griglia&, const Calendario&, Data oggi);
};

/// All that differs between the monthly, the daily and the yearly planner, whatever window shows them. There
/// is one object for each kind; none has a state.
class RegoleTipo : public DescrizioneTipo {
public:
    // The request.
    /// The day that a request for `giorno` shows in a period that starts on `inizio`.
    virtual Data giornoDaMostrare(Data giorno, Data /*inizio*/) const { return giorno; }
    /// True when the mode flag has the window open with the detailed grid.
    virtual bool dettagliato(std::string_view /*ModoFinestra*/) const { return true; }
    /// The title label; `collab` is the code of the staff member whom the request names.
    virtual std::string titolo(const modpl& sessione, const Calendario& calendario,
                               const std::string& collab) const = 0;

    // The period.
    /// The days that may be shown in a session of the given period.
    virtual PeriodoSessione limiti(const PeriodoSessione& periodo, Data mostrata) const = 0;
    /// Where a press of a period button leads, `passo` being 1 or -1 and `riga` the header row of the button;
    /// nothing where the button has no effect.
    virtual std::optional<Data> mossa(int riga, int passo, Data mostrata,
                                      const PeriodoSessione& periodo) const = 0;
    /// True when the grid laid out for `mostrata` shows `giorno` too.
    virtual bool mostraAnche(Data giorno, Data mostrata) const = 0;

    // The cells.
    /// The day that a data cell stands for; nothing for a cell that stands for none.
    virtual std::optional<Data> giornoCella(const Calendario& calendario, Casella casella) const = 0;
    /// The column of the shown day; `colonna` where every column is of that day.
    int colonnaGiorno(const Calendario& calendario, int colonna) const;

protected:
    ~RegoleTipo() = default;
    explicit constexpr RegoleTipo(const DescrizioneTipo& descrizione) : DescrizioneTipo(descrizione) {}
};

const RegoleTipo& mensile();
const RegoleTipo& giornaliero();
const RegoleTipo& annuale();

/// The kind that a request's letter names; nothing for any other text.
std::optional<TipoPlanner> tipoPlanner(std::string_view lettera);
/// The rules of a kind.
const RegoleTipo& regole(TipoPlanner tipo);
/// The rules of the visible grid's kind; null when none is visible.
const RegoleTipo* regoleVisibili(const ControlliPlcal& controlli);

} // namespace planner
