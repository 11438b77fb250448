// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/qt/repeated_keys.h"

#include <QKeyEvent>

namespace planner {

namespace {

bool isRepeatedAnswer(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& press = static_cast<const QKeyEvent&>(event);
    const int key = press.key();
    return press.isAutoRepeat() && (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter);
}

/// Keys that a child leaves alone come by here on their way up.
class RepeatedAnswers : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (isRepeatedAnswer(*event)) {
            event->accept();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void ignoreRepeatedAnswers(QWidget& widget) {
    widget.installEventFilter(new RepeatedAnswers(&widget));
}

} // namespace planner
