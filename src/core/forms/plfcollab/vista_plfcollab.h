// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// The staff window's widgets, as its logic sees them. Rows are those of `List_Prenotazione`.
class VistaPlfcollab {
public:
    virtual ~VistaPlfcollab() = default;
    /// Shows the window modeless, in front of the others.
    virtual void mostra() = 0;
    /// Takes the window out of sight, with every question it still asks.
    virtual void nascondi() = 0;
    /// The rows are others, or in another order: shows the whole list anew.
    virtual void aggiornaRighe() = 0;
    /// Check boxes, selected row or the count of checked rows changed.
    virtual void aggiorna() = 0;
    /// Scrolls as little as it takes to have the row in sight.
    virtual void portaInVista(int riga) = 0;

    /// The first row in sight, 0 for an empty list.
    virtual int primaRigaVisibile() const = 0;
    /// How many whole rows fit into the list, at least 1.
    virtual int righePerPagina() const = 0;
    /// Makes the row the first one in sight, or as near to that as the list's end allows.
    virtual void scorriA(int riga) = 0;

    /// Has a screen reader say the text, UTF-8.
    virtual void annuncia(const std::string& testo) = 0;

    /// Asks for a text, modal, with `iniziale` to start from; nothing when the user cancelled. All UTF-8.
    virtual std::optional<std::string> chiediTesto(std::string_view titolo, const std::string& iniziale) = 0;
};

} // namespace planner
