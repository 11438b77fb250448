// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/told_events.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QFrame>

#include <algorithm>
#include <array>

namespace planner {

namespace {

/// Passes the event on as if there were no handler.
void tell(QAccessibleEvent& event) {
    const QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(&event);
    QAccessible::installUpdateHandler(handler);
}

/// A frame drawn around some controls. The toolkit gives it the role that assistive programs take for a
/// window's, which is not the active one: they would keep silent about whatever has the focus in it.
QAccessibleInterface* describeFrame(const QString& name, QObject* object) {
    return name == QLatin1String(QFrame::staticMetaObject.className())
               ? new QAccessibleWidget(static_cast<QFrame*>(object), QAccessible::Grouping)
               : nullptr;
}

bool isOfText(const QAccessibleEvent& event) {
    constexpr std::array types{QAccessible::TextInserted, QAccessible::TextRemoved, QAccessible::TextUpdated,
                               QAccessible::TextCaretMoved, QAccessible::TextSelectionChanged};
    return std::find(types.begin(), types.end(), event.type()) != types.end();
}

void handle(QAccessibleEvent* event) {
    if (event->type() == QAccessible::TableModelChanged || !isPerceived(*event)) {
        return; // the toolkit has let the table know, and tells nobody else
    }
    if (QAccessibleInterface* item = focusedItem(*event)) {
        QAccessibleEvent onItem(item, QAccessible::Focus);
        tell(onItem);
    } else {
        tell(*event);
    }
}

} // namespace

bool isPerceived(const QAccessibleEvent& event) {
    if (event.type() == QAccessible::NameChanged || event.type() == QAccessible::DescriptionChanged) {
        const auto* widget = qobject_cast<const QWidget*>(event.object());
        return widget == nullptr || widget->isVisible();
    }
    if (isOfText(event)) {
        const auto* widget = qobject_cast<const QWidget*>(event.object());
        return widget == nullptr || widget->hasFocus();
    }
    if (event.type() == QAccessible::Focus) {
        const auto* view = qobject_cast<const QAbstractItemView*>(event.object());
        return view == nullptr || view->hasFocus();
    }
    return true;
}

QAccessibleInterface* focusedItem(const QAccessibleEvent& event) {
    const auto* view = qobject_cast<const QAbstractItemView*>(event.object());
    QAccessibleInterface* told = event.accessibleInterface();
    const bool wholeView = view != nullptr && told != nullptr && told->object() == view;
    if (event.type() != QAccessible::Focus || !wholeView || !view->currentIndex().isValid()) {
        return nullptr;
    }
    QAccessibleInterface* item = told->focusChild();
    return item == told ? nullptr : item;
}

ToldEvents::ToldEvents() : m_before(QAccessible::installUpdateHandler(handle)) {
    QAccessible::installFactory(describeFrame);
}

ToldEvents::~ToldEvents() {
    QAccessible::removeFactory(describeFrame);
    QAccessible::installUpdateHandler(m_before);
}

} // namespace planner
