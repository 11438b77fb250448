// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/planner_bench.h"
#include "ui/planner_windows.h"
#include "ui/plcal/grid_view.h"

#include <QString>

namespace planner::test {

/// The real planner window over archives in memory: what `main` wires, without host and transit file.
struct WindowBench {
    PlannerBench base;
    PlannerWindows finestre{base.sessione, base.controlli, base.motore, base.messaggi};
    PlcalWindow& vista = finestre.vista;
    plcal& finestra = finestre.finestra;

    std::unique_ptr<clsplg> newEngine();

    /// Prepares a request of the year 2006 and shows the window, as WPlanner does before it waits.
    void open(std::string_view tipo, std::string_view giorno = "20060315",
              std::string_view windowcaption = "                    ");
    /// The same for another period, first and last day as yyyymmdd.
    void openPeriod(std::string_view tipo, std::string_view giorno, std::string_view inizio,
                    std::string_view fine, std::string_view windowcaption = "                    ");

    /// The cell's index in the visible grid's model, and its centre in the view's viewport, scrolled into
    /// sight.
    QModelIndex index(int riga, int colonna);
    QPoint centreOf(int riga, int colonna);
    /// Presses the left button on a cell of the visible grid, in the grid's own rows and columns.
    void click(int riga, int colonna);
    void doubleClick(int riga, int colonna);
    /// The view of the visible grid.
    GridView& view();
    const Griglia& griglia() { return *base.controlli.grigliaVisibile(); }
    /// Sends a key to the visible grid.
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    const std::string& reply() const { return base.sessione.valret; }
    std::string shownDay() const { return formatDate(base.controlli.calendario.Value()); }

    /// The widget of the given object name; a failed expectation when there is none.
    template <typename Widget = QWidget>
    Widget& widget(const char* name) {
        auto* found = vista.findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) {
            throw std::runtime_error(std::string("no widget ") + name);
        }
        return *found;
    }
};

} // namespace planner::test
