// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "forms/plcal/gesti.h"
#include "forms/plcal/sentences.h"
#include "ui/kit/text.h"
#include "window_bench.h"

#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QHeaderView>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>
#include <random>

namespace planner::test {

namespace {

constexpr int Gestures = 200;

/// A user who does anything to the planner window, always in the same order for the same seed.
class AnyUser {
public:
    AnyUser(WindowBench& bench, unsigned seed) : m_bench(bench), m_random(seed) {}

    void act() {
        switch (pick(8)) {
        case 0:
        case 1:
            return press();
        case 2:
        case 3:
            return key();
        case 4:
            return pickInCalendar();
        case 5:
            return periodButton();
        case 6:
            return reader();
        default:
            return something();
        }
    }

private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    void press() {
        GridView& view = m_bench.view();
        constexpr std::array buttons{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
        const std::array<QWidget*, 4> targets{view.viewport(), view.viewport(),
                                              view.verticalHeader()->viewport(),
                                              view.horizontalHeader()->viewport()};
        QWidget* widget = targets.at(static_cast<std::size_t>(pick(4)));
        const QPoint point(pick(widget->width()), pick(widget->height()));
        const auto button = buttons.at(static_cast<std::size_t>(pick(4)));
        QTest::mouseClick(widget, button, Qt::NoModifier, point);
        if (pick(6) == 0) {
            QTest::mouseDClick(widget, button, Qt::NoModifier, point);
        }
    }
    void key() {
        constexpr std::array keys{Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,
                                  Qt::Key_Home, Qt::Key_End,    Qt::Key_PageDown, Qt::Key_Space,
                                  Qt::Key_B,    Qt::Key_Return, Qt::Key_PageUp,   Qt::Key_Tab};
        constexpr std::array<Qt::KeyboardModifiers, 4> modifiers{Qt::NoModifier, Qt::NoModifier,
                                                                 Qt::ControlModifier, Qt::AltModifier};
        QWidget* focus = m_bench.vista.focusWidget();
        QTest::keyClick(focus != nullptr && pick(4) == 0 ? focus : &m_bench.view(),
                        keys.at(static_cast<std::size_t>(pick(static_cast<int>(keys.size())))),
                        modifiers.at(static_cast<std::size_t>(pick(4))));
    }
    void pickInCalendar() {
        auto* days = m_bench.widget<QCalendarWidget>("calendario").findChild<QTableView*>();
        if (pick(2) == 0) {
            constexpr std::array keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
            QTest::keyClick(days, keys.at(static_cast<std::size_t>(pick(4))));
        } else {
            QTest::mouseClick(days->viewport(), Qt::LeftButton, Qt::NoModifier,
                              QPoint(pick(days->viewport()->width()), pick(days->viewport()->height())));
        }
    }
    void periodButton() {
        const auto buttons = m_bench.vista.findChildren<QToolButton*>();
        QToolButton* button = buttons[pick(static_cast<int>(buttons.size()))];
        if (button->isVisible() && button->isEnabled() &&
            button->objectName().startsWith(QLatin1String("bsel"))) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    void reader() {
        auto* table = QAccessible::queryAccessibleInterface(&m_bench.view())->tableInterface();
        auto* cell = table->cellAt(pick(m_bench.view().model()->rowCount()),
                                   pick(m_bench.view().model()->columnCount()));
        cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    void something() {
        switch (pick(5)) {
        case 0:
            return m_bench.finestra.Toolbar1_ButtonClick(pick(2) == 0 ? "dettno" : "dettsi");
        case 1:
            return m_bench.view().clearFocus();
        case 2:
            return m_bench.view().setFocus(Qt::TabFocusReason);
        case 3:
            return m_bench.finestra.Form_Activate();
        default:
            return m_bench.finestra.giornoCambiato();
        }
    }

    WindowBench& m_bench;
    std::mt19937 m_random;
};

struct Office {
    TipoPlanner tipo;
    const char* giorno;
    const char* inizio;
    const char* fine;
    unsigned seed;
};

void PrintTo(const Office& office, std::ostream* out) {
    *out << static_cast<char>(office.tipo) << " on " << office.giorno << ", seed " << office.seed;
}

class OneDayTest : public testing::TestWithParam<Office> {
protected:
    OneDayTest() {
        bench.base.putRighe({riga("RB", "20060315", {{1, "00002"}}), riga("BI", "20060410", {{6, "00007"}}),
                             conOrario(riga("7 ", "20060315", {{7, "00001"}}), "08", "00", "0000200")});
        bench.base.putAnnuale(annoPlanner("2018", {{3, 17}, {12, 35}}));
        open();
    }
    void open() {
        const Office& office = GetParam();
        bench.base.sessione.valret.clear();
        bench.openPeriod(std::string(1, static_cast<char>(office.tipo)), office.giorno, office.inizio,
                         office.fine);
    }

    /// The date that a sentence names, as the planner writes it in sentences; empty for none.
    static std::string dateIn(const std::string& sentence) {
        static const QRegularExpression date(QStringLiteral("[a-zì]+ [0-9]{1,2} [a-z]+ [0-9]{4}"));
        return date.match(fromUtf8(sentence)).captured().toStdString();
    }

    void expectOneDay(int gesture) {
        const Data day = bench.base.controlli.calendario.Value();
        const Griglia& griglia = bench.griglia();
        const QDate shown = bench.widget<QCalendarWidget>("calendario").selectedDate();
        EXPECT_EQ(shown.toString(Qt::ISODate).remove(QLatin1Char('-')).toStdString(), formatDate(day))
            << gesture;
        EXPECT_EQ(bench.view().currentIndex(), bench.index(griglia.Row(), griglia.Col())) << gesture;
        const auto cursor = giornoCella(bench.base.controlli, GetParam().tipo, griglia.corrente());
        if (cursor) {
            EXPECT_EQ(formatDate(*cursor), formatDate(day)) << gesture;
        }
        const std::string named = dateIn(bench.finestra.stato());
        EXPECT_EQ(named, named.empty() ? "" : dataEstesa(day)) << gesture;
        bench.finestra.Toolbar1_ButtonClick("agenda");
        EXPECT_EQ(bench.reply().substr(0, 8), formatDate(day)) << gesture;
        bench.base.sessione.valret.clear();
        bench.base.sessione.FinePlanner = false;
    }

    WindowBench bench;
};

} // namespace

TEST_P(OneDayTest, CalendarCursorSentenceAndAnswerAgreeAfterAnyGesture) {
    AnyUser user(bench, GetParam().seed);
    for (int gesture = 0; gesture < Gestures && !HasFailure(); ++gesture) {
        user.act();
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        if (bench.base.sessione.FinePlanner) {
            open(); // the gesture has answered
        }
        expectOneDay(gesture);
    }
    EXPECT_TRUE(bench.base.messaggi.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, OneDayTest,
    testing::Values(Office{TipoPlanner::Mensile, "20060315", "20060101", "20071231", 1},
                    Office{TipoPlanner::Mensile, "20060531", "20060501", "20060731", 2},
                    Office{TipoPlanner::Mensile, "20040229", "20040101", "20041231", 3},
                    Office{TipoPlanner::Giornaliero, "20060315", "20060301", "20060430", 4},
                    Office{TipoPlanner::Giornaliero, "20061231", "20061230", "20070102", 5},
                    Office{TipoPlanner::Annuale, "20180315", "20180101", "20181231", 6},
                    Office{TipoPlanner::Annuale, "20060315", "20060101", "20061231", 7}),
    [](const auto& tested) {
        return std::string(1, static_cast<char>(tested.param.tipo)) + std::to_string(tested.param.seed);
    });

} // namespace planner::test
