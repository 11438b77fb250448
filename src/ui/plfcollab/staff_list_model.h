// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/staff_list.h"

#include <QAbstractTableModel>

namespace planner {

/// The rows of `List_Prenotazione` for the view. It changes nothing itself: a check box that the user presses
/// is reported, and shown when the list has changed.
class StaffListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Colonna { Codice, Nome, Mansione, Colonne };

    using QAbstractTableModel::QAbstractTableModel;

    /// The rows to show; they must live longer.
    void setLista(const ListaCollaboratori& lista) { m_lista = &lista; }
    /// The list's rows are others, or in another order.
    void rowsChanged();
    /// Check boxes changed.
    void checksChanged();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The first row, from `start` on and round the end, whose name or code begins with the text, in whatever
    /// letter case: where the user goes who types in the list. Of the last two arguments nothing matters.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

Q_SIGNALS:
    void checkRequested(int riga, bool spuntata);

private:
    const RigaCollaboratore* row(const QModelIndex& index) const;
    static QVariant cellData(const RigaCollaboratore& riga, int column, int role);
    QString spokenOrder() const;

    const ListaCollaboratori* m_lista = nullptr;
    int m_rows = 0; // what the view knows
};

} // namespace planner
