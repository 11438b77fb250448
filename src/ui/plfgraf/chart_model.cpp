// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/chart_model.h"

#include "forms/plfgraf/chart_texts.h"
#include "ui/kit/model_answers.h"
#include "ui/kit/text.h"

#include <algorithm>
#include <climits>

namespace planner {

ChartModel::ChartModel(const Grafico& grafico, QObject* parent)
    : QAbstractListModel(parent), m_grafico(grafico) {}

int ChartModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::min<std::size_t>(m_grafico.numValori(), INT_MAX));
}

QVariant ChartModel::data(const QModelIndex& index, int role) const {
    const bool own = index.isValid() && index.model() == this && index.row() < rowCount();
    if (!own) {
        return {};
    }
    return orNothing([&] { return valueData(static_cast<std::size_t>(index.row()), role); });
}

QVariant ChartModel::valueData(std::size_t number, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return fromUtf8(testoOre(m_grafico.valore(number)));
    case Qt::AccessibleTextRole:
        return fromUtf8(fraseParlata(m_grafico, number));
    case Qt::StatusTipRole:
        return fromUtf8(fraseValore(m_grafico, number));
    case Qt::ToolTipRole:
        return plainToolTip(fromUtf8(fraseValore(m_grafico, number)));
    default:
        return {};
    }
}

} // namespace planner
