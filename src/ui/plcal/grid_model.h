// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"

#include <QAbstractTableModel>

#include <functional>
#include <string>

namespace planner {

/// A grid's data cells for the view: the fixed rows and the first column are its headers.
class GridModel : public QAbstractTableModel, public OsservatoreGriglia {
    Q_OBJECT
public:
    /// One sentence on a cell, in the grid's own rows and columns, column 0 included; UTF-8. What it throws
    /// goes no further than the model.
    using Frase = std::function<std::string(Casella)>;

    /// Watches the grid until it goes; the grid must live longer.
    GridModel(Griglia& griglia, Frase frase, QObject* parent = nullptr);
    ~GridModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void strutturaCambiata() override;
    void celleCambiate(const AreaCelle& area, bool misure) override;

    const Griglia& griglia() const { return m_griglia; }
    /// The grid's own coordinates of a data cell.
    Casella casella(const QModelIndex& index) const {
        return {gridRow(index.row()), gridCol(index.column())};
    }
    int gridRow(int modelRow) const { return modelRow + m_griglia.FixedRows(); }
    static int gridCol(int modelColumn) { return modelColumn + Griglia::FixedCols(); }

Q_SIGNALS:
    /// Row heights or column widths changed.
    void measuresChanged();
    /// Something in the fixed rows or the first column changed.
    void headersChanged();

private:
    QVariant cellData(Casella casella, int role) const;
    QVariant rowData(int row, int role) const;
    QString columnTitle(int col) const;

    Griglia& m_griglia;
    Frase m_frase;
    int m_rows; // what the views know
};

} // namespace planner
