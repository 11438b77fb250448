// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/calendario.h"
#include "ui/kit/fitting_font.h"

#include <QCalendarWidget>

namespace planner {

/// The month calendar that shows the date of `calendario`.
class ShownCalendar : public QCalendarWidget {
    Q_OBJECT
public:
    explicit ShownCalendar(QWidget* parent);

    /// Shows the date; days outside the bounds cannot be picked.
    void update(const Calendario& calendario, Data primo, Data ultimo);
    /// The colour of Saturdays and Sundays: readable on light and on dark.
    QColor weekendLetters() const;

Q_SIGNALS:
    void dayPicked(planner::Data giorno);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// The day of an item below the letters of the weekdays; the month before and the one after fill the
    /// weeks.
    QDate dateOf(const QModelIndex& index) const;
    QColor lettersOf(QDate date, const QColor& ofWeekday) const;
    void paintItem(QPainter& painter, const QRect& rect, const QModelIndex& index);
    void hideNavigation();
    void fitLetters();
    void fitHeading();
    void pick(QDate day);

    Letters m_letters;
    bool m_byCode = false;
    QDate m_selected; // the day that the user has selected since the mouse was pressed last
};

} // namespace planner
