// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>
#include <random>

namespace planner::test {

namespace {

constexpr int Events = 5000;

/// A user who presses keys and buttons at random, always in the same order.
class Monkey {
public:
    explicit Monkey(WindowBench& bench) : m_bench(bench) {
        QObject::connect(&m_closer, &QTimer::timeout, &m_closer, [this] { closePopups(); });
        m_closer.start(0);
    }

    void act() {
        const bool list = m_bench.finestre.vistaCollab().isVisible() && pick(8) != 0;
        m_target = list ? static_cast<QWidget*>(&m_bench.finestre.vistaCollab()) : &m_bench.vista;
        switch (pick(6)) {
        case 0:
            clickAnywhere();
            break;
        case 1:
            pressButton();
            break;
        case 2:
            m_target->resize(200 + pick(1600), 150 + pick(1000));
            break;
        default:
            pressKey();
        }
    }

private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    void clickAnywhere() {
        QWidget* target = m_target->childAt(pick(m_target->width()), pick(m_target->height()));
        if (target != nullptr && target->isEnabled()) {
            const auto button = pick(4) == 0 ? Qt::RightButton : Qt::LeftButton;
            QTest::mouseClick(target, button, Qt::NoModifier,
                              QPoint(pick(target->width()), pick(target->height())));
        }
    }
    void pressButton() {
        const auto buttons = m_target->findChildren<QToolButton*>();
        QToolButton* button = buttons[pick(static_cast<int>(buttons.size()))];
        if (button->isVisible() && button->isEnabled()) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    void pressKey() {
        constexpr std::array keys{
            Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Home,  Qt::Key_End,
            Qt::Key_Tab,  Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Space, Qt::Key_F1,
            Qt::Key_N,    Qt::Key_Q,      Qt::Key_Escape,   Qt::Key_A,      Qt::Key_Menu,  Qt::Key_F,
            Qt::Key_G,    Qt::Key_L,      Qt::Key_F3,       Qt::Key_D,      Qt::Key_T,     Qt::Key_S,
            Qt::Key_I,    Qt::Key_M};
        constexpr std::array<Qt::KeyboardModifiers, 4> modifiers{
            Qt::NoModifier, Qt::ControlModifier, Qt::AltModifier, Qt::ControlModifier | Qt::AltModifier};
        QWidget* focus = m_target->focusWidget();
        QTest::keyClick(focus != nullptr ? focus : m_target,
                        keys[static_cast<std::size_t>(pick(keys.size()))],
                        modifiers[static_cast<std::size_t>(pick(modifiers.size()))]);
    }
    /// Answers whatever modal thing the last event opened.
    void closePopups() {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            menu->close();
        }
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            playWith(*dialog);
            QTest::keyClick(dialog, pick(2) == 0 ? Qt::Key_Return : Qt::Key_Escape);
        }
    }
    /// Options, arrow keys, letters and sizes, as the dialog has use for them.
    void playWith(QDialog& dialog) {
        const auto options = dialog.findChildren<QRadioButton*>();
        if (!options.isEmpty()) {
            options[pick(static_cast<int>(options.size()))]->click();
        }
        constexpr std::array keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_B};
        QWidget* focus = dialog.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &dialog,
                        keys[static_cast<std::size_t>(pick(keys.size()))]);
        dialog.resize(200 + pick(1600), 150 + pick(1000));
    }

    WindowBench& m_bench;
    QWidget* m_target = &m_bench.vista;
    std::mt19937 m_random{5000};
    QTimer m_closer;
};

bool validAnswer(const std::string& answer) {
    return answer.size() == 11 && parseDate(answer.substr(0, 8)).has_value() &&
           std::string_view("EFADITPSC").find(answer.back()) != std::string_view::npos;
}

class MonkeyTest : public testing::TestWithParam<const char*> {};

} // namespace

TEST_P(MonkeyTest, FiveThousandRandomEventsEndWithAValidAnswer) {
    WindowBench bench;
    bench.base.putRighe({riga("RB", "20060315", {{1, "00002"}}), riga("BI", "20060310", {{6, "00007"}}),
                         conOrario(riga("7 ", "20060315", {{7, "00001"}}), "23", "45", "0003:00"),
                         RigaPlanner{}});
    bench.base.putGrafici(
        {rigaGrafico("RB", "20060315", "0007:30"), rigaGrafico("BI", "20060401", "0004:00")});
    bench.base.putAnnuale(annoPlanner("2006", {{3, 17}, {12, 35}}));
    Monkey monkey(bench);
    bench.open(GetParam());
    for (int event = 0; event < Events; ++event) {
        monkey.act();
        if (bench.base.sessione.FinePlanner) {
            ASSERT_TRUE(validAnswer(bench.reply())) << bench.reply();
            bench.base.sessione.valret.clear();
            bench.open(GetParam());
        }
    }
    bench.finestra.Form_KeyDown(TastoEscape);
    EXPECT_TRUE(validAnswer(bench.reply())) << bench.reply();
    EXPECT_EQ(bench.reply().back(), 'E');
}

INSTANTIATE_TEST_SUITE_P(Kinds, MonkeyTest, testing::Values("M", "G", "A"));

} // namespace planner::test
