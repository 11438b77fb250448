// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"

#include <QAbstractTableModel>

#include <functional>
#include <string>

namespace planner {

/// What is said of a place of a grid, in the grid's own rows and columns, headers included; UTF-8. What they
/// throw goes no further than the model.
struct VociGriglia {
    std::function<std::string(Casella)> nome;  // what a cell holds, whose row it is, which day's column
    std::function<std::string(Casella)> frase; // the whole of it; of cells only
};

/// A grid's data cells for the view: the fixed rows and the first column are its headers.
class GridModel : public QAbstractTableModel, public OsservatoreGriglia {
    Q_OBJECT
public:
    /// Watches the grid until it goes; the grid must live longer.
    GridModel(Griglia& griglia, VociGriglia voci, QObject* parent = nullptr);
    ~GridModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void strutturaCambiata() override;
    void celleCambiate(const AreaCelle& area, bool misure) override;

    const Griglia& griglia() const { return m_griglia; }
    /// What the corner between the headers is called: the period.
    QString cornerName() const;
    /// From now on the current cell's name begins with the text; as it is, for an empty one.
    void nameCurrentAfter(const QString& text) { m_beforeCurrent = text; }
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
    /// The fixed rows are of another period.
    void periodChanged();

private:
    QVariant cellData(Casella casella, int role) const;
    QString cellName(Casella casella) const;
    QVariant headerText(Qt::Orientation orientation, int section) const;
    QString columnTitle(int col) const;

    Griglia& m_griglia;
    VociGriglia m_voci;
    int m_rows; // what the views know
    QString m_beforeCurrent;
};

} // namespace planner
