// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/calendario.h"

#include <QCalendarWidget>

namespace planner {

/// The month calendar that shows the date of `calendario`.
class ShownCalendar : public QCalendarWidget {
    Q_OBJECT
public:
    explicit ShownCalendar(QWidget* parent);

    /// Shows the date; days outside the bounds cannot be picked.
    void update(const Calendario& calendario, Data primo, Data ultimo);

Q_SIGNALS:
    void dayPicked(planner::Data giorno);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QColor lettersOf(QDate date) const;
    void hideNavigation();
    void fitLetters();
    void fitHeading();
    void colourDays();
    void pick(QDate day);

    bool m_byCode = false;
    QDate m_selected; // the day that the user has selected since the mouse was pressed last
};

} // namespace planner
