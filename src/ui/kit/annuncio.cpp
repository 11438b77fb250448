// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/annuncio.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>

#include <utility>

namespace planner {

namespace {

/// One message. It is a new object each time: an assistive program may keep the name of one that it knows.
class MessageAccessible : public QAccessibleInterface {
public:
    explicit MessageAccessible(const Annuncio& bar) : m_bar(bar) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(const_cast<Annuncio*>(&m_bar)); // NOLINT
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? m_bar.testo() : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return {m_bar.mapToGlobal(QPoint()), QSize(1, 1)}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

private:
    const Annuncio& m_bar;
};

class BarAccessible : public QAccessibleWidget {
public:
    explicit BarAccessible(Annuncio* bar) : QAccessibleWidget(bar, QAccessible::StatusBar) {}
    ~BarAccessible() override { forget(); }

    /// No window's: a screen reader would read a dialog's title and labels before the message.
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    int childCount() const override { return m_message == 0 ? 0 : 1; }
    QAccessibleInterface* child(int number) const override {
        return number == 0 && m_message != 0 ? QAccessible::accessibleInterface(m_message) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child == this->child(0) ? 0 : -1;
    }

    QAccessibleInterface* renew() {
        forget();
        auto* message = new MessageAccessible(*static_cast<Annuncio*>(widget()));
        m_message = QAccessible::registerAccessibleInterface(message);
        return message;
    }

private:
    void forget() {
        if (m_message != 0) {
            QAccessible::deleteAccessibleInterface(std::exchange(m_message, 0));
        }
    }

    QAccessible::Id m_message = 0;
};

QAccessibleInterface* describe(const QString& name, QObject* object) {
    return name == QLatin1String(Annuncio::staticMetaObject.className())
               ? new BarAccessible(static_cast<Annuncio*>(object))
               : nullptr;
}

} // namespace

Annuncio::Annuncio(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("annuncio"));
    hide();
    parent->window()->installEventFilter(this);
    QAccessible::installFactory(describe);
}

void Annuncio::di(const QString& testo) {
    if (testo.isEmpty() || !window()->isVisible()) {
        return;
    }
    m_testo = testo;
    m_waiting = QApplication::activeWindow() != window();
    if (!m_waiting) {
        tell();
    }
}

bool Annuncio::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && std::exchange(m_waiting, false)) {
        QMetaObject::invokeMethod(this, &Annuncio::tell, Qt::QueuedConnection); // the focus comes first
    }
    return false;
}

void Annuncio::tell() {
    if (auto* bar = dynamic_cast<BarAccessible*>(QAccessible::queryAccessibleInterface(this))) {
        QAccessibleEvent shown(bar->renew(), QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    }
}

} // namespace planner
