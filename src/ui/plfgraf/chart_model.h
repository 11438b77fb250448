// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/grafico.h"

#include <QAbstractListModel>

namespace planner {

/// A chart's values, one row each, for the toolkit's selection, tool tips and screen readers.
class ChartModel : public QAbstractListModel {
    Q_OBJECT
public:
    ChartModel(const Grafico& grafico, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    /// Nothing for what the chart does not hold, at any time and whatever the index and role; never throws.
    QVariant data(const QModelIndex& index, int role) const override;

private:
    /// What data() gives. Throws std::out_of_range for a chart that lacks the value or its name.
    QVariant valueData(std::size_t number, int role) const;

    const Grafico& m_grafico;
};

} // namespace planner
