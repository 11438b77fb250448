// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/design.h"

#include <QObject>

#include <vector>

class QLabel;
class QWidget;

namespace planner {

/// The labels of the totals: a static caption and a number for each.
class DetailPanel : public QObject {
    Q_OBJECT
public:
    /// Makes the labels as children of `parent`.
    explicit DetailPanel(QWidget* parent);

    /// Shows the panel of the kind and window variant, its labels in their places.
    void arrange(std::optional<TipoPlanner> tipo, bool varianteRidotta, const Scala& scala);

private:
    struct Coppia {
        const EtichettaTotale* etichetta;
        QLabel* didascalia;
        QLabel* numero;
    };
    std::vector<Coppia> m_coppie;
};

} // namespace planner
