// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QToolButton;

namespace planner {

class CellPainter;
class Griglia;
enum class TipoPlanner : char;
struct PulsantePeriodo;

/// A grid's top left fixed cells, with the period buttons on them. Their keys work in the whole window while
/// the corner is in sight.
class GridCorner : public QWidget {
    Q_OBJECT
public:
    GridCorner(const Griglia& griglia, TipoPlanner tipo, CellPainter& painter, QWidget* parent);

    /// Heights of the header rows, in pixels.
    void setRowHeights(const std::vector<int>& heights);
    /// Paints the cells again, the buttons being as they were.
    void updateCells();
    /// What its tool tip says where no text is cut, and assistive programs call it.
    void setPeriod(const QString& period);
    /// Puts the period buttons into their cells.
    void placeButtons(float scalaX);
    /// Disables the buttons that would do nothing; one that has the focus passes it to `successor`.
    void updateButtons(const std::function<bool(const PulsantePeriodo&)>& active, QWidget& successor);

Q_SIGNALS:
    void periodButtonClicked(const planner::PulsantePeriodo& pulsante);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addButton(const PulsantePeriodo& described);
    void addKeys(const PulsantePeriodo& described, QToolButton& button);
    QRect cellOf(int row) const;
    int roomForButtons(int row) const;
    QString toolTipAt(const QPoint& position) const;

    const Griglia& m_griglia;
    CellPainter& m_painter;
    std::vector<int> m_heights;
    std::vector<std::pair<const PulsantePeriodo*, QToolButton*>> m_buttons;
};

} // namespace planner
