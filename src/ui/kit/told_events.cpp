// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/told_events.h"

#include <QAbstractItemView>

namespace planner {

namespace {

/// Passes the event on as if there were no handler.
void tell(QAccessibleEvent& event) {
    const QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(&event);
    QAccessible::installUpdateHandler(handler);
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

ToldEvents::ToldEvents() : m_before(QAccessible::installUpdateHandler(handle)) {}

ToldEvents::~ToldEvents() {
    QAccessible::installUpdateHandler(m_before);
}

} // namespace planner
