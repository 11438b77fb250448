// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/grid_model.h"

#include "ui/kit/model_answers.h"
#include "ui/kit/text.h"

#include <algorithm>

namespace planner {

GridModel::GridModel(Griglia& griglia, VociGriglia voci, QObject* parent)
    : QAbstractTableModel(parent), m_griglia(griglia), m_voci(std::move(voci)), m_rows(griglia.Rows()) {
    m_griglia.setOsservatore(this);
}

GridModel::~GridModel() {
    m_griglia.setOsservatore(nullptr);
}

QModelIndex GridModel::index(int row, int column, const QModelIndex& parent) const {
    // The toolkit keeps an index for each cell that an assistive program has read, in a table by row * 16 +
    // column + identifier. Where rows are wider than 16 cells, cells would share places, thousands of them
    // one; giving back an office of 500 would take minutes. The identifier makes the rows lie apart.
    constexpr quintptr hashedRow = 16;
    const auto apart = static_cast<quintptr>(m_griglia.Cols());
    return hasIndex(row, column, parent)
               ? createIndex(row, column,
                             static_cast<quintptr>(row) * (apart > hashedRow ? apart - hashedRow : 0))
               : QModelIndex();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(m_rows - m_griglia.FixedRows(), 0);
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_griglia.Cols() - Griglia::FixedCols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return orNothing([&] { return cellData(casella(index), role); });
}

QVariant GridModel::cellData(Casella casella, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return fromCp1252(m_griglia.TextMatrix(casella));
    case Qt::AccessibleTextRole:
        return cellName(casella);
    case Qt::AccessibleDescriptionRole:
    case Qt::StatusTipRole:
        return fromUtf8(m_voci.frase(casella));
    case Qt::ToolTipRole:
        return plainToolTip(fromUtf8(m_voci.frase(casella)));
    default:
        return {};
    }
}

QString GridModel::cellName(Casella casella) const {
    const QString name = fromUtf8(m_voci.nome(casella));
    const bool after = !m_beforeCurrent.isEmpty() && casella == m_griglia.corrente();
    return after ? m_beforeCurrent + QStringLiteral(", ") + name : name;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const int count = orientation == Qt::Vertical ? rowCount() : columnCount();
    if (section < 0 || section >= count) {
        return {};
    }
    return orNothing([&]() -> QVariant {
        if (role == Qt::AccessibleTextRole) {
            return fromUtf8(m_voci.nome(orientation == Qt::Vertical ? Casella{gridRow(section), 0}
                                                                    : Casella{0, gridCol(section)}));
        }
        return role == Qt::DisplayRole ? headerText(orientation, section) : QVariant();
    });
}

QString GridModel::cornerName() const {
    return orNothing([this]() -> QVariant { return fromUtf8(m_voci.nome({0, 0})); }).toString();
}

QVariant GridModel::headerText(Qt::Orientation orientation, int section) const {
    return orientation == Qt::Vertical ? fromCp1252(m_griglia.TextMatrix(gridRow(section), 0))
                                       : columnTitle(gridCol(section));
}

QString GridModel::columnTitle(int col) const {
    QString text;
    for (int row = 0; row < m_griglia.FixedRows(); ++row) {
        text += fromCp1252(m_griglia.TextMatrix(row, col)) + QLatin1Char(' ');
    }
    return text.trimmed();
}

void GridModel::strutturaCambiata() {
    beginResetModel();
    m_rows = m_griglia.Rows();
    endResetModel();
    Q_EMIT measuresChanged();
    Q_EMIT headersChanged();
}

void GridModel::celleCambiate(const AreaCelle& area, bool misure) {
    const int firstRow = std::max(area.rigaMin - m_griglia.FixedRows(), 0);
    const int firstColumn = std::max(area.colonnaMin - Griglia::FixedCols(), 0);
    const int lastRow = area.rigaMax - m_griglia.FixedRows();
    const int lastColumn = area.colonnaMax - Griglia::FixedCols();
    if (lastRow >= firstRow && lastColumn >= firstColumn) {
        Q_EMIT dataChanged(index(firstRow, firstColumn), index(lastRow, lastColumn));
    }
    if (misure) {
        Q_EMIT measuresChanged();
    }
    if (!area.empty() && area.rigaMin < m_griglia.FixedRows()) {
        Q_EMIT periodChanged();
    }
    const bool fixed = area.rigaMin < m_griglia.FixedRows() || area.colonnaMin < Griglia::FixedCols();
    if (!area.empty() && (fixed || area.intestazioni)) {
        Q_EMIT headersChanged();
    }
}

} // namespace planner
