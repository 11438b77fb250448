// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/design.h"
#include "measures.h"
#include "ui/kit/fitted_label.h"
#include "ui/kit/screen_scale.h"
#include "ui/kit/text.h"
#include "ui/plcal/grid_corner.h"
#include "window_bench.h"

#include <QCalendarWidget>
#include <QHeaderView>
#include <QScreen>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include <gtest/gtest.h>
#include <ostream>
#include <set>

namespace planner::test {

namespace {

constexpr const char* VariantB = "                   B";

struct Shown {
    const char* kind;
    bool reduced;

    friend std::ostream& operator<<(std::ostream& out, const Shown& shown) {
        return out << shown.kind << (shown.reduced ? " B" : "");
    }
};

/// The planner window of each kind and variant on the screen of this run.
struct RoomTest : testing::TestWithParam<Shown> {
    WindowBench bench;

    RoomTest() {
        if (GetParam().reduced) {
            bench.open(GetParam().kind, "20060315", VariantB);
        } else {
            bench.open(GetParam().kind);
        }
        bench.finestra.griglia_Gesto({{3, 17}});
    }

    QToolBar& toolbar() { return bench.widget<QToolBar>("Toolbar1"); }
    QCalendarWidget& calendar() { return bench.widget<QCalendarWidget>("calendario"); }
    const Griglia& griglia() { return *bench.base.controlli.grigliaVisibile(); }
    CellPainter painter() { return CellPainter(fontFactorFor(*bench.vista.screen())); }

    GridCorner& corner() {
        for (auto* corner : bench.vista.findChildren<GridCorner*>()) {
            if (corner->isVisible()) {
                return *corner;
            }
        }
        throw std::runtime_error("no corner is shown");
    }

    /// The window's parts that are in sight, but for the corner, which stands on its grid.
    QWidgetList parts() {
        QWidgetList parts = visibleChildren(bench.vista);
        parts.removeOne(&corner());
        return parts;
    }
};

/// The days' table inside the calendar.
QTableView& daysOf(QCalendarWidget& calendar) {
    return *calendar.findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Kinds, RoomTest,
                         testing::Values(Shown{"M", false}, Shown{"G", false}, Shown{"A", false},
                                         Shown{"M", true}, Shown{"G", true}, Shown{"A", true}),
                         [](const testing::TestParamInfo<Shown>& shown) {
                             return std::string(shown.param.kind) + (shown.param.reduced ? "_B" : "");
                         });

TEST_P(RoomTest, TheWindowIsWholeOnTheScreen) {
    const QRect screen = bench.vista.screen()->availableGeometry();
    EXPECT_LE(bench.vista.minimumWidth(), screen.width());
    EXPECT_LE(bench.vista.minimumHeight(), screen.height());
    for (QWidget* part : parts()) {
        EXPECT_TRUE(bench.vista.rect().contains(part->geometry())) << describe(*part);
    }
}

TEST_P(RoomTest, ARestoredWindowKeepsItsTitleOnTheScreen) {
    bench.vista.showNormal();
    const QRect screen = bench.vista.screen()->availableGeometry();
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.contains(bench.vista.frameGeometry().topLeft()); }));
}

TEST_P(RoomTest, NothingStandsOverAnythingElse) {
    EXPECT_EQ(overlaps(parts()), "");
}

TEST_P(RoomTest, EveryLabelShowsItsWholeText) {
    const auto labels = bench.vista.findChildren<FittedLabel*>();
    EXPECT_GE(labels.size(), 15);
    for (const FittedLabel* label : labels) {
        if (label->isVisible()) {
            const FittedText fitted = label->fitted();
            EXPECT_FALSE(fitted.cut) << describe(*label);
            EXPECT_TRUE(legible(fitted.font())) << describe(*label);
            EXPECT_LE(lineHeight(fitted.font()), label->contentsRect().height()) << describe(*label);
        }
    }
}

TEST_P(RoomTest, TheCaptionsOfTheTotalsHaveLettersOfOneSize) {
    std::set<double> sizes;
    for (const FittedLabel* label : bench.vista.findChildren<FittedLabel*>()) {
        const bool caption = std::any_of(EtichetteTotali.begin(), EtichetteTotali.end(),
                                         [&](const EtichettaTotale& etichetta) {
                                             return label->text() == fromUtf8(etichetta.didascalia);
                                         });
        if (caption && label->isVisible()) {
            sizes.insert(label->fitted().font().pointSizeF());
        }
    }
    EXPECT_EQ(sizes.size(), 1U);
}

TEST_P(RoomTest, EveryTotalHasRoomForFiveDigits) {
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        const auto& number = bench.widget<FittedLabel>(std::string(etichetta.nome).c_str());
        const FittingFont font(number.font());
        EXPECT_FALSE(font.fit(QStringLiteral("32767"), number.contentsRect().width()).cut) << etichetta.nome;
    }
}

TEST_P(RoomTest, EveryCommandIsInSightWithItsWholeCaption) {
    EXPECT_EQ(cutCommands(toolbar()), "");
    EXPECT_TRUE(legible(toolbar().font()));
}

TEST_P(RoomTest, TheCalendarShowsSixWholeWeeks) {
    QTableView& days = daysOf(calendar());
    const int text = lineHeight(days.font());
    for (int row = 0; row < days.model()->rowCount(); ++row) {
        EXPECT_GE(days.rowViewportPosition(row), 0);
        EXPECT_LE(days.rowViewportPosition(row) + days.rowHeight(row), days.viewport()->height()) << row;
        EXPECT_GE(days.rowHeight(row), text) << row;
    }
    for (int column = 0; column < days.model()->columnCount(); ++column) {
        EXPECT_GE(days.columnWidth(column), QFontMetrics(days.font()).horizontalAdvance(QStringLiteral("30")))
            << column;
    }
    EXPECT_TRUE(legible(days.font()));
    EXPECT_TRUE(calendar().rect().contains(days.geometry()));
}

TEST_P(RoomTest, TheCalendarsHeadingIsWhole) {
    const QRect heading =
        calendar().findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar"))->geometry();
    EXPECT_FALSE(heading.intersects(daysOf(calendar()).geometry()));
    for (const char* name : {"qt_calendar_monthbutton", "qt_calendar_yearbutton"}) {
        const auto* button = calendar().findChild<QToolButton*>(QLatin1String(name));
        const QSize text = button->fontMetrics().size(Qt::TextSingleLine, button->text());
        EXPECT_GE(button->width(), text.width()) << name;
        EXPECT_GE(heading.height(), text.height()) << name;
        EXPECT_DOUBLE_EQ(button->font().pointSizeF(), calendar().font().pointSizeF()) << name;
    }
}

TEST_P(RoomTest, EveryHeaderTextIsWhole) {
    const QHeaderView& header = *bench.view().horizontalHeader();
    const int height = header.height() / griglia().FixedRows();
    const CellPainter painter = this->painter();
    EXPECT_GE(height, lineHeight(qtFont(Carattere::normale, fontFactorFor(*bench.vista.screen()))));
    for (int section = 0; section < header.count(); ++section) {
        const QRect place(0, 0, header.sectionSize(section), height);
        for (int row = 0; row < griglia().FixedRows(); ++row) {
            EXPECT_FALSE(painter.cut(place, griglia(), {row, section + 1})) << row << " " << section;
        }
    }
}

TEST_P(RoomTest, EveryNameOfThisOfficeIsWhole) {
    const QHeaderView& names = *bench.view().verticalHeader();
    const CellPainter painter = this->painter();
    for (int section = 0; section < names.count(); ++section) {
        const QRect place(0, 0, names.width(), names.sectionSize(section));
        EXPECT_FALSE(painter.cut(place, griglia(), {section + griglia().FixedRows(), 0})) << section;
    }
}

TEST_P(RoomTest, PeriodButtonsStandBesideTheirCaption) {
    const auto buttons = corner().findChildren<QToolButton*>();
    const CellPainter painter = this->painter();
    int room = 0;
    for (const QToolButton* button : buttons) {
        EXPECT_TRUE(corner().rect().contains(button->geometry())) << describe(*button);
        EXPECT_GE(button->width(), 16) << describe(*button);
        EXPECT_GE(button->height(), 12) << describe(*button);
        EXPECT_GE(button->iconSize().height(), 8) << describe(*button);
        const bool left = button->x() < corner().width() / 2;
        room = std::max(room, left ? button->geometry().right() + 1 : corner().width() - button->x());
    }
    EXPECT_EQ(overlaps(visibleChildren(corner())), "");
    for (int row = 0; row < griglia().FixedRows(); ++row) {
        EXPECT_FALSE(painter.cut(corner().rect(), griglia(), {row, 0}, room)) << row;
    }
}

TEST_P(RoomTest, TheLongestMonthFitsBetweenItsButtons) {
    for (const char* day : {"20060915", "20061115"}) { // Settembre, Novembre
        bench.open("M", day);
        EXPECT_EQ(toolTipAt(corner(), QPoint(corner().width() / 2, 3)),
                  plainToolTip(corner().accessibleName()))
            << day << ": the month in words, not a text that is cut";
    }
}

TEST_P(RoomTest, TheWindowGetsNoSmallerThanItCanShow) {
    bench.vista.showNormal();
    bench.vista.resize(10, 10);
    EXPECT_EQ(bench.vista.size(), bench.vista.minimumSize());
    EXPECT_EQ(overlaps(parts()), "");
    EXPECT_EQ(cutCommands(toolbar()), "");
    EXPECT_GE(bench.view().viewport()->height(), bench.view().rowHeight(0)) << "a whole row stays in sight";
}

TEST_P(RoomTest, AWindowMadeTooSmallCutsOffItsEdgesAndKeepsItsPartsApart) {
    bench.vista.showNormal();
    bench.vista.windowHandle()->resize(500, 300); // as a window manager may
    ASSERT_TRUE(QTest::qWaitFor([this] { return bench.vista.size() == QSize(500, 300); }));
    EXPECT_EQ(overlaps(parts()), "");
    EXPECT_EQ(cutCommands(toolbar()), "");
}

} // namespace planner::test
