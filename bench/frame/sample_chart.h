// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/plfgraf.h"
#include "ui/plfgraf/chart_dialog.h"
#include "ui/plfgraf/chart_view.h"
#include "ui/ports/qt_message_boxes.h"

namespace planner {

/// The real chart window with the daily chart of an office of 500 staff, each of the 32,766 records on its
/// day.
class SampleChart {
public:
    static constexpr int Staff = 500;
    static constexpr int Records = 32'766;

    SampleChart();

    void readAgain() { m_form.VisualizzaGraficoGiornaliero({1}); }
    /// Shows the chart in the form of that option: 0 bars, 2 a pie.
    void choose(int option);
    ChartView& view() { return *m_dialog.findChild<ChartView*>(); }

private:
    Archivi m_archivi;
    Calendario m_calendario;
    plfgraf m_form;
    QtMessageBoxes m_messaggi;
    ChartDialog m_dialog;
};

} // namespace planner
