// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal.h"
#include "ui/kit/controls.h"
#include "ui/plcal/plcal_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

// What the window system tells the window.

namespace planner {

void PlcalWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the form takes the window off the screen
    m_form->unload();
}

void PlcalWindow::keyPressEvent(QKeyEvent* event) {
    // No shortcuts: those are deaf until the window system has made the window the active one.
    if (!clickFocusedButton(*this, *event) && !m_form->Form_KeyDown(virtualKey(*event))) {
        QWidget::keyPressEvent(event);
    }
}

bool PlcalWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate) {
        // A message box is no other window to come back from.
        m_leftForMessage = qobject_cast<QMessageBox*>(QApplication::activeWindow()) != nullptr;
    } else if (event->type() == QEvent::WindowActivate && isVisible() && !m_leftForMessage) {
        // After the press that may have brought the window to the front: it means what it was aimed at.
        rinvia([this] {
            if (isVisible()) {
                m_form->Form_Activate();
            }
        });
    }
    return QWidget::event(event);
}

bool PlcalWindow::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!press && type != QEvent::Wheel && type != QEvent::KeyPress) {
        return false;
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != this) {
        return false;
    }
    // The second press of a double click whose first one has answered the request before.
    const bool strayed = type == QEvent::MouseButtonDblClick && !m_pressedHere;
    m_pressedHere = m_pressedHere || press;
    m_untouched = false;
    return strayed;
}

} // namespace planner
