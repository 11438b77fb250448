// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfcollab/commands.h"
#include "ui/kit/text.h"
#include "ui/plfcollab/staff_list_view.h"
#include "window_bench.h"

#include <QTest>

class QDialog;
class QToolButton;

namespace planner::test {

/// The real staff window, opened from the real planner window.
struct StaffBench {
    WindowBench planner;

    /// Shows the monthly planner of 15 March 2006 and opens the staff window with its command.
    void open();

    PlfcollabWindow& window() { return planner.finestre.vistaCollab(); }
    StaffListView& list();
    const ListaCollaboratori& lista() const { return planner.finestre.collaboratori.List_Prenotazione(); }
    const modpl& session() const { return planner.base.sessione; }
    const std::string& reply() const { return planner.reply(); }
    std::string lastMessage() const;
    QString count();
    /// The names as the list shows them.
    QStringList names();

    QToolButton& button(ComandoCollab comando);
    QToolButton& arrow(Freccia freccia);
    void press(ComandoCollab comando);
    void press(Freccia freccia);

    void click(int row, int column);
    void doubleClick(int row, int column);
    void clickCheckBox(int row);
    /// Where a row's check box stands in the list's viewport.
    QRect checkBox(int row);
    /// Sends a key to the list.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Sends a press of a key that has been held down for a while.
    static void holdDown(QWidget& target, Qt::Key key);
    /// Opens the search with its shortcut and has `user` act on the question.
    void search(const std::function<void(QDialog&)>& user);
    /// Searches for the text.
    void searchFor(const QString& text);

private:
    void waitUntilActive();
    QPoint centreOf(int row, int column);
};

} // namespace planner::test
