// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/plfgraf.h"
#include "platform/ports/message_boxes.h"

#include <QDialog>

class QGroupBox;
class QLabel;

namespace planner {

class ChartView;
struct Drawing;

/// The chart window's widgets: the chart, the frame with its kinds that floats over it, and a line that reads
/// the value pointed at. Copying, saving and printing are in the context menu.
class ChartDialog : public QDialog {
    Q_OBJECT
public:
    /// `form` must have a visible chart.
    ChartDialog(plfgraf& form, MessageBoxes& messaggi, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QGroupBox* makeFrame();
    void addActions();
    QAction* addCommand(const QString& name, const QString& text, QKeySequence::StandardKey keys,
                        void (ChartDialog::*command)());
    void placeControls();
    Drawing drawing() const;
    void copyValues();
    void saveChart();
    void printChart();

    plfgraf& m_form;
    MessageBoxes& m_messaggi;
    double m_fontFactor;
    ChartView* m_chart;
    QGroupBox* m_frame;
    QLabel* m_stato;
};

} // namespace planner
