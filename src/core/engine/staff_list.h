// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// One staff member in the selection list. Texts are Windows-1252.
struct RigaCollaboratore {
    std::string codice; // both bytes, blanks included
    std::string nome;
    std::string mansione;
    bool spuntata = false; // its check box is ticked

    friend bool operator==(const RigaCollaboratore&, const RigaCollaboratore&) = default;
};

enum class Ordinamento { nessuno, crescente, decrescente };

/// The contents of the list `List_Prenotazione` as plain data: rows with their check boxes, at most one
/// selected row, and how the rows are sorted. Rows count from 0; a row outside the list is a SubscriptError.
class ListaCollaboratori {
public:
    int righe() const { return static_cast<int>(m_righe.size()); }
    const RigaCollaboratore& riga(int indice) const;

    /// Removes every row and switches sorting off; no row is selected.
    void svuota();
    /// Appends an unchecked row, without the blanks at the right end of name and job title.
    void aggiungi(std::string_view codice, std::string_view nome, std::string_view mansione);

    void spunta(int indice, bool spuntata);
    void spuntaTutte(bool spuntata);
    int spuntate() const;
    /// Deletes the unchecked rows; a selected row that goes leaves none selected.
    void tieniSpuntate();
    /// How many rows `tieniSpuntate` has deleted since the list was emptied.
    int tolte() const { return m_tolte; }

    std::optional<int> selezionata() const { return m_selezionata; }
    /// Selects the row, or none.
    void seleziona(std::optional<int> indice);

    Ordinamento ordinamento() const { return m_ordinamento; }
    /// Puts the rows into a new order: `indici` names the present row of each new one, each exactly once.
    /// Check boxes and selection stay with their rows. Any other order is a SubscriptError.
    void riordina(const std::vector<int>& indici, Ordinamento ordinamento);

private:
    std::size_t checked(int indice) const;
    void checkOrder(const std::vector<int>& indici) const;

    std::vector<RigaCollaboratore> m_righe;
    std::optional<int> m_selezionata;
    Ordinamento m_ordinamento = Ordinamento::nessuno;
    int m_tolte = 0;
};

} // namespace planner
