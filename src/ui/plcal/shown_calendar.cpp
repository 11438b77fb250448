// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/shown_calendar.h"

#include "grids/layout.h"
#include "ui/kit/controls.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTableView>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <utility>

namespace planner {

namespace {

constexpr int SmallestRow = 1; // pixels: the rows share the height that there is
constexpr int Rows = 8;        // heading, letters of the weekdays, six weeks

QDate qtDate(Data data) {
    return {yearOf(data), monthOf(data), dayOf(data)};
}

/// Paints the items of a list as a function does. The toolkit lays out each one, with which the calendar
/// would take longer to paint than the grid.
class PlainItems : public QAbstractItemDelegate {
public:
    using Paint = std::function<void(QPainter&, const QRect&, const QModelIndex&)>;

    PlainItems(Paint paint, QObject* parent) : QAbstractItemDelegate(parent), m_paint(std::move(paint)) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        m_paint(*painter, option.rect, index);
    }
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return {}; }

private:
    Paint m_paint;
};

} // namespace

ShownCalendar::ShownCalendar(QWidget* parent) : QCalendarWidget(parent), m_letters(font()) {
    setObjectName(QStringLiteral("calendario"));
    setLocale(QLocale());
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    setDateEditEnabled(false); // typed digits would open a field of their own
    hideNavigation();
    for (QTableView* days : findChildren<QTableView*>()) {
        days->viewport()->installEventFilter(this);
        days->setFocusPolicy(Qt::TabFocus); // a click leaves the focus where it was
        days->setAccessibleName(QStringLiteral("Giorni del calendario"));
        days->verticalHeader()->setMinimumSectionSize(SmallestRow); // six weeks fit the space there is
        days->setItemDelegate(
            new PlainItems([this](QPainter& painter, const QRect& rect,
                                  const QModelIndex& item) { paintItem(painter, rect, item); },
                           days));
    }
    connect(this, &QCalendarWidget::clicked, this, [this](QDate day) {
        if (day != m_selected) { // else it is announced already
            pick(day);
        }
    });
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        if (!m_byCode) {
            m_selected = selectedDate();
            pick(m_selected);
        }
    });
}

void ShownCalendar::pick(QDate day) {
    if (const auto picked = makeDate(day.year(), day.month(), day.day())) {
        Q_EMIT dayPicked(*picked);
    }
}

void ShownCalendar::hideNavigation() {
    // It shows a date; the period buttons move it. Month and year stay as its heading.
    for (const char* arrow : {"qt_calendar_prevmonth", "qt_calendar_nextmonth"}) {
        if (auto* button = findChild<QToolButton*>(QLatin1String(arrow))) {
            button->hide();
        }
    }
    for (const char* heading : {"qt_calendar_monthbutton", "qt_calendar_yearbutton"}) {
        if (auto* button = findChild<QToolButton*>(QLatin1String(heading))) {
            button->setAttribute(Qt::WA_TransparentForMouseEvents);
            button->setFocusPolicy(Qt::NoFocus);
            button->setMenu(nullptr); // nor does it look as if it had one
        }
    }
}

QColor ShownCalendar::weekendLetters() const {
    const bool dark = palette().color(QPalette::Base).lightness() < 128;
    return dark ? QColor(255, 128, 128) : QColor(176, 0, 0); // pure red is not readable
}

void ShownCalendar::update(const Calendario& calendario, Data primo, Data ultimo) {
    const QScopedValueRollback byCode(m_byCode, true);
    const Data shown = calendario.Value();
    setDateRange(qtDate(std::min(primo, shown)), qtDate(std::max(ultimo, shown)));
    setSelectedDate(qtDate(shown));
    setCurrentPage(calendario.Year(), calendario.Month());
}

/// Letters larger than a week's height would be cut.
void ShownCalendar::fitLetters() {
    const QFont letters = fontWithin(window()->font(), height() / Rows - 1);
    if (letters.pointSizeF() != font().pointSizeF()) {
        setFont(letters);
    }
}

void ShownCalendar::fitHeading() {
    const int height = std::max(this->height() / Rows, fontMetrics().height() + 2);
    QFont letters = font();
    letters.setBold(true);
    for (const char* part :
         {"qt_calendar_navigationbar", "qt_calendar_monthbutton", "qt_calendar_yearbutton"}) {
        if (auto* widget = findChild<QWidget*>(QLatin1String(part))) {
            widget->setFixedHeight(height);
            widget->setFont(letters); // the toolkit's own keep the size they were made with
        }
    }
}

QDate ShownCalendar::dateOf(const QModelIndex& index) const {
    constexpr int lastRowOfBefore = 2; // at the latest
    constexpr int firstRowOfAfter = 5;
    constexpr int middle = 15;
    const int day = index.data().toInt();
    const QDate first(yearShown(), monthShown(), 1);
    const bool before = index.row() <= lastRowOfBefore && day > middle;
    const bool after = index.row() >= firstRowOfAfter && day < middle;
    return first.addMonths(after - before).addDays(day - 1);
}

QColor ShownCalendar::lettersOf(QDate date, const QColor& ofWeekday) const {
    const bool ofMonth = date.month() == monthShown() && date.year() == yearShown();
    if (!ofMonth || date < minimumDate() || date > maximumDate()) {
        return palette().color(QPalette::Disabled, QPalette::Text);
    }
    return date == selectedDate() ? palette().color(QPalette::HighlightedText) : ofWeekday;
}

void ShownCalendar::paintItem(QPainter& painter, const QRect& rect, const QModelIndex& index) {
    const bool weekend = isWeekendColumn(index.column() + 1);
    const QColor ofWeekday = weekend ? weekendLetters() : palette().color(QPalette::Text);
    if (index.row() == 0) {
        painter.fillRect(rect, palette().color(QPalette::AlternateBase));
        painter.setPen(ofWeekday);
    } else {
        const QDate date = dateOf(index);
        if (date == selectedDate()) {
            painter.fillRect(rect, palette().color(QPalette::Highlight));
        }
        painter.setPen(lettersOf(date, ofWeekday));
    }
    m_letters.write(painter, rect, index.data().toString(), /*centred=*/true);
}

void ShownCalendar::resizeEvent(QResizeEvent* event) {
    fitLetters();
    fitHeading();
    QCalendarWidget::resizeEvent(event);
}

void ShownCalendar::changeEvent(QEvent* event) {
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_letters = Letters(font());
    }
}

bool ShownCalendar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        m_selected = QDate();
    }
    // Where an inactive window's colours are an active one's, the toolkit need not paint the days again.
    const bool looksTheSame =
        changesActivation(*event) && palette().isEqual(QPalette::Active, QPalette::Inactive);
    return looksTheSame || event->type() == QEvent::Wheel || QCalendarWidget::eventFilter(watched, event);
}

} // namespace planner
