// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/staff_list.h"

#include <QTreeView>

#include <optional>

namespace planner {

class StaffListModel;

/// The list `List_Prenotazione` on the screen.
class StaffListView : public QTreeView {
    Q_OBJECT
public:
    explicit StaffListView(QWidget* parent);

    void setLista(const ListaCollaboratori& lista);
    /// Shows other rows, from the first one on.
    void showRows();
    /// Shows check boxes and selection as they are now, without an event and without scrolling.
    void showMarks();

    void bringIntoView(int riga);
    void scrollToRow(int riga);
    int firstVisibleRow() const;
    /// Whole rows that fit, at least 1.
    int rowsPerPage() const;

Q_SIGNALS:
    /// The user selected the row, or none.
    void rowSelected(std::optional<int> riga);
    /// The user pressed the row's check box, or the space bar on the row.
    void checkRequested(int riga, bool spuntata);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void setUpBehaviour();
    void showOrder();
    void fitColumns();
    void toggleCheck();
    std::optional<int> selectedRow() const;

    StaffListModel* m_model;
    const ListaCollaboratori* m_lista = nullptr;
    bool m_byCode = false;
};

} // namespace planner
