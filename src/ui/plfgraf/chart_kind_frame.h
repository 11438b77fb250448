// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

namespace planner {

/// A frame that floats over a chart: paper, a thin line around it and dark letters whatever the desktop's
/// theme, like the chart itself.
class ChartKindFrame : public QGroupBox {
    Q_OBJECT
public:
    ChartKindFrame(const QString& caption, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace planner
