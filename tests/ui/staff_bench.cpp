// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "staff_bench.h"

#include "modal_dialog.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionViewItem>
#include <QToolBar>
#include <QToolButton>

namespace planner::test {

void StaffBench::open() {
    planner.open("M");
    planner.widget<QAction>("coll").trigger();
    waitUntilActive();
}

void StaffBench::waitUntilActive() {
    window().activateWindow();
    if (!QTest::qWaitForWindowActive(&window())) {
        throw std::runtime_error("the staff window is not active");
    }
}

StaffListView& StaffBench::list() {
    return *window().findChild<StaffListView*>(QStringLiteral("List_Prenotazione"));
}

std::string StaffBench::lastMessage() const {
    const auto& shown = planner.base.messaggi.shown;
    return shown.empty() ? "" : shown.back().text;
}

QString StaffBench::count() {
    return window().findChild<QLabel*>(QStringLiteral("conteggio"))->text();
}

QStringList StaffBench::names() {
    QStringList names;
    for (int row = 0; row < list().model()->rowCount(); ++row) {
        names << list().model()->index(row, 1).data().toString();
    }
    return names;
}

QToolButton& StaffBench::button(ComandoCollab comando) {
    auto* toolbar = window().findChild<QToolBar*>(QStringLiteral("Toolbar_pren"));
    auto* action = toolbar->findChild<QAction*>(QStringLiteral("Toolbar_pren_") +
                                                QString::number(static_cast<int>(comando)));
    return *qobject_cast<QToolButton*>(toolbar->widgetForAction(action));
}

QToolButton& StaffBench::arrow(Freccia freccia) {
    return *window().findChild<QToolButton*>(QStringLiteral("ButtonFrecce_") +
                                             QString::number(static_cast<int>(freccia)));
}

void StaffBench::press(ComandoCollab comando) {
    QTest::mouseClick(&button(comando), Qt::LeftButton);
}

void StaffBench::press(Freccia freccia) {
    QTest::mouseClick(&arrow(freccia), Qt::LeftButton);
}

QPoint StaffBench::centreOf(int row, int column) {
    const QModelIndex index = list().model()->index(row, column);
    list().scrollTo(index);
    return list().visualRect(index).center();
}

void StaffBench::click(int row, int column) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(row, column));
}

void StaffBench::doubleClick(int row, int column) {
    click(row, column);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(row, column));
}

QRect StaffBench::checkBox(int row) {
    QStyleOptionViewItem option;
    option.initFrom(&list());
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.rect = list().visualRect(list().model()->index(row, 0));
    return list().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list());
}

void StaffBench::clickCheckBox(int row) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, checkBox(row).center());
}

void StaffBench::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&list(), key, modifiers);
}

void StaffBench::holdDown(QWidget& target, Qt::Key key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&target, &press);
}

void StaffBench::search(const std::function<void(QDialog&)>& user) {
    waitUntilActive(); // shortcuts are deaf before, and a former question had the focus
    bool asked = false;
    whileModal([this] { key(Qt::Key_F, Qt::ControlModifier); },
               [&](QDialog& dialog) {
                   asked = true;
                   user(dialog);
               });
    if (!asked) {
        throw std::runtime_error("the search did not ask for a text");
    }
}

void StaffBench::searchFor(const QString& text) {
    search([&](QDialog& dialog) {
        auto* field = dialog.findChild<QLineEdit*>();
        field->clear();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    });
}

} // namespace planner::test
