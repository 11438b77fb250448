// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/immagine.h"
#include "e2e/support/schermo.h"

#include <memory>
#include <string>
#include <vector>

namespace planner::e2e {

/// The accessibility bus of a screen; it ends with the object. Controls are found on it as a screen reader
/// finds them: by their names, and only those that show. Names are UTF-8.
class Accessibilita {
public:
    explicit Accessibilita(const Schermo& schermo);
    ~Accessibilita();
    Accessibilita(const Accessibilita&) = delete;
    Accessibilita& operator=(const Accessibilita&) = delete;

    /// For a program that is to be found on the bus.
    const Environment& environment() const { return m_environment; }

    struct Cella {
        std::string tabella; // or list, whose items are cells of one column
        int riga = 0;        // counted from 0, without headers, as the column is
        int colonna = 0;
        std::string nome; // or description
    };

    // All wait for a control of that name, and throw at the deadline.
    /// Has the control do what a press on it does.
    void press(const Processo& owner, const std::string& name) const;
    /// Clicks with the real mouse on the control's centre.
    void click(const Processo& owner, const std::string& name, const Clic& clic = {}) const;
    /// The same for the cell that has that name in its place.
    void click(const Processo& owner, const Cella& cella, const Clic& clic = {}) const;
    /// Where the cell is on the screen, in sight or not.
    Area place(const Processo& owner, const Cella& cella) const;
    Area place(const Processo& owner, const std::string& name) const;
    void waitFor(const Processo& owner, const std::string& name) const;
    void waitFor(const Processo& owner, const Cella& cella) const;

    struct Controllo {
        std::string ruolo; // in English, as in "push button"
        std::string nome;
    };
    /// Every control of the program that shows, the cells of tables left out.
    std::vector<Controllo> controls(const Processo& owner) const;
    /// Reads everything that the bus tells of the program's objects, shown or not; returns them all.
    std::vector<Controllo> readEverything(const Processo& owner) const;
    /// The names of all cells of a table that shows, row by row.
    std::vector<std::string> cellNames(const Processo& owner, const std::string& table) const;
    /// The name of the control that has the focus; empty when none has, as in a window that is not active.
    std::string focused(const Processo& owner) const;

    /// A program that hears what a screen reader hears of the focus: its lines are the descriptions of what
    /// has got it, or the names where there are none. If wanted, further lines, "name: " and a name, are of
    /// what is said to be called otherwise.
    std::unique_ptr<Processo> listener(const Processo& owner, bool names = false) const;

private:
    std::vector<std::string> words(const Processo& owner, std::chrono::milliseconds deadline,
                                   const std::vector<std::string>& command) const;
    Environment toolEnvironment() const;
    Esito look(const Processo& owner, const std::vector<std::string>& command) const;
    std::string find(const Processo& owner, const std::vector<std::string>& words) const;
    std::string findCell(const Processo& owner, const Cella& cella) const;
    std::vector<Controllo> list(const Processo& owner, const std::string& command) const;
    void clickInside(const Area& area, const Clic& clic) const;

    const Schermo* m_schermo;
    Environment m_environment;
    std::unique_ptr<Processo> m_bus;
    std::unique_ptr<Processo> m_launcher;
};

} // namespace planner::e2e
