// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/text.h"
#include "ui/plcal/grid_corner.h"
#include "window_bench.h"

#include <QAction>
#include <QCalendarWidget>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <gtest/gtest.h>

namespace planner::test {

namespace {

struct WindowTest : testing::Test {
    WindowBench bench;

    bool shows(const char* name) {
        const auto* widget = bench.vista.findChild<QWidget*>(QLatin1String(name));
        return widget != nullptr && widget->isVisibleTo(&bench.vista);
    }
    QTableView& grid(const char* name) { return bench.widget<QTableView>(name); }
};

/// What of a widget is painted while the object lives.
class PaintedPart : public QObject {
public:
    explicit PaintedPart(QWidget& widget) { widget.installEventFilter(this); }

    QRect rect() const { return m_rect; }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            m_rect |= static_cast<QPaintEvent*>(event)->rect();
        }
        return false;
    }

    QRect m_rect;
};

/// True when some pixel of the widget has nearly the colour: the edges of letters are blended with what lies
/// below.
bool hasInk(QWidget& widget, const QColor& colour) {
    constexpr int near = 60;
    const auto differs = [](int one, int other) { return std::abs(one - other) > near; };
    const QImage image = widget.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (!differs(pixel.red(), colour.red()) && !differs(pixel.green(), colour.green()) &&
                !differs(pixel.blue(), colour.blue())) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

TEST_F(WindowTest, EachKindShowsItsOwnGridAndCaption) {
    const std::vector<std::tuple<const char*, const char*, const char*>> kinds{
        {"M", "Flxm", "Planner Mensile"},
        {"G", "flxg", "Planner Giornaliero"},
        {"A", "flxa", "Planner Annuale"}};
    for (const auto& [kind, name, caption] : kinds) {
        bench.open(kind);
        for (const char* other : {"Flxm", "flxg", "flxa"}) {
            EXPECT_EQ(shows(other), std::string_view(other) == name) << kind << " " << other;
        }
        EXPECT_EQ(bench.vista.windowTitle(), QLatin1String(caption));
    }
}

TEST_F(WindowTest, AnUnknownKindOpensTheWindowWithoutAGrid) {
    bench.open("X");
    EXPECT_TRUE(bench.vista.isVisible());
    for (const char* name : {"Flxm", "flxg", "flxa"}) {
        EXPECT_FALSE(shows(name)) << name;
    }
}

TEST_F(WindowTest, AGridIsMadeWhenItIsFirstShownAndLooksAsItWouldHave) {
    bench.open("M");
    EXPECT_EQ(bench.vista.findChildren<GridView*>().size(), 1);
    bench.finestra.griglia_Comando(ComandoGriglia::ingrandisci);
    const QRect place = bench.view().geometry();
    bench.open("G");
    EXPECT_EQ(bench.view().geometry(), place);
    const int larger = bench.view().rowHeight(0);
    bench.finestra.griglia_Comando(ComandoGriglia::riduci);
    EXPECT_LT(bench.view().rowHeight(0), larger);
    bench.open("M");
    EXPECT_EQ(bench.vista.findChildren<GridView*>().size(), 2);
}

TEST_F(WindowTest, TheFocusComingAndGoingPaintsTheCurrentCellAlone) {
    bench.open("M");
    QApplication::setActiveWindow(&bench.vista);
    bench.view().setFocus();
    QApplication::processEvents();
    const QRect cell = bench.view().visualRect(bench.view().currentIndex());
    for (QWidget* next : {&bench.widget("calendario"), static_cast<QWidget*>(&bench.view())}) {
        PaintedPart painted(*bench.view().viewport());
        next->setFocus();
        QApplication::processEvents();
        EXPECT_EQ(painted.rect(), cell);
    }
}

TEST_F(WindowTest, EscapeClosesTheWindowAndAnswersTheShownDay) {
    bench.open("M");
    QTest::keyClick(&bench.vista, Qt::Key_Escape);
    EXPECT_TRUE(bench.base.sessione.FinePlanner);
    EXPECT_EQ(bench.base.sessione.valret, "20060315  E");
    EXPECT_FALSE(bench.vista.isVisible());
}

TEST_F(WindowTest, EscapeClosesTheWindowFromInsideTheGrid) {
    bench.open("G");
    QTest::keyClick(grid("flxg").viewport(), Qt::Key_Escape);
    EXPECT_EQ(bench.base.sessione.valret, "20060315  E");
}

TEST_F(WindowTest, OtherKeysDoNotCloseTheWindow) {
    bench.open("M");
    for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_A, Qt::Key_Tab, Qt::Key_Delete}) {
        QTest::keyClick(&bench.vista, key);
    }
    EXPECT_FALSE(bench.base.sessione.FinePlanner);
    EXPECT_TRUE(bench.vista.isVisible());
}

TEST_F(WindowTest, TheSystemsCloseBoxAnswersE) {
    bench.open("A");
    bench.vista.close();
    EXPECT_EQ(bench.base.sessione.valret, "20060315  E");
}

TEST_F(WindowTest, TheExitButtonAnswersE) {
    bench.open("M");
    auto* exit = bench.widget<QToolBar>("Toolbar1").findChild<QAction*>(QStringLiteral("exit"));
    ASSERT_NE(exit, nullptr);
    QTest::mouseClick(bench.widget<QToolBar>("Toolbar1").widgetForAction(exit), Qt::LeftButton);
    EXPECT_EQ(bench.base.sessione.valret, "20060315  E");
}

TEST_F(WindowTest, TitleAndCaptionShowMarkupAsItIs) {
    bench.base.putCollaboratori({collaboratore("RB", "<b>Rossi</b> &A %1")});
    bench.open("A");
    auto& title = bench.widget<QLabel>("lbldescr");
    EXPECT_EQ(title.text(), QStringLiteral("Anno 2006 Impegni di: <b>Rossi</b> &A %1"));
    EXPECT_EQ(title.textFormat(), Qt::PlainText);
}

TEST_F(WindowTest, EveryLabelIsPlainText) {
    bench.open("M");
    const auto labels = bench.vista.findChildren<QLabel*>();
    EXPECT_GE(labels.size(), 15);
    for (const QLabel* label : labels) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
}

TEST_F(WindowTest, TheCalendarShowsTheDayAndTheWheelDoesNotMoveIt) {
    bench.open("M");
    auto& calendar = bench.widget<QCalendarWidget>("calendario");
    EXPECT_EQ(calendar.selectedDate(), QDate(2006, 3, 15));
    QWidget* days = calendar.findChild<QTableView*>()->viewport();
    QWheelEvent wheel(QPointF(5, 5), days->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -240),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(days, &wheel);
    EXPECT_EQ(calendar.monthShown(), 3);
    EXPECT_EQ(calendar.firstDayOfWeek(), Qt::Monday);
}

TEST_F(WindowTest, VariantBHidesTheDeadlinesAndMovesTheCaseFilesUp) {
    const auto top = [&](const char* name) { return bench.widget(name).mapTo(&bench.vista, QPoint()).y(); };
    bench.open("M");
    bench.finestra.griglia_Gesto({{3, 17}});
    const int deadlinesTop = top("Lblscad");
    EXPECT_TRUE(shows("Lblscad"));
    EXPECT_GT(top("lblpra"), deadlinesTop);
    bench.open("M", "20060315", "                   B");
    bench.finestra.griglia_Gesto({{3, 17}});
    EXPECT_FALSE(shows("Lblscad"));
    EXPECT_FALSE(shows("Lblscadeva"));
    EXPECT_TRUE(shows("lblpra"));
    EXPECT_EQ(top("lblpra"), deadlinesTop);
    EXPECT_EQ(top("Lblpraeva"), deadlinesTop);
}

TEST_F(WindowTest, TheYearlyPanelHasItsOwnTotals) {
    bench.open("A");
    for (const char* name : {"scad", "scaev", "prat", "praev", "nriv", "bnot", "blkev"}) {
        EXPECT_TRUE(shows(name)) << name;
    }
    EXPECT_FALSE(shows("Lblscad"));
}

TEST_F(WindowTest, NamesAndHeaderStayInSightWhileTheDaysScroll) {
    bench.open("G");
    auto& view = grid("flxg");
    const QRect names = view.verticalHeader()->geometry();
    const QRect header = view.horizontalHeader()->geometry();
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    EXPECT_EQ(view.verticalHeader()->geometry(), names);
    EXPECT_EQ(view.horizontalHeader()->geometry(), header);
    EXPECT_GT(names.width(), 0);
    EXPECT_GT(header.height(), 0);
}

TEST_F(WindowTest, TheDailyGridOpensAtColumn33) {
    bench.open("G");
    EXPECT_EQ(grid("flxg").columnAt(1), PrimaColonnaGiornaliera - 1);
}

TEST_F(WindowTest, ThePeriodButtonsStandInsideTheCornerCell) {
    const std::vector<std::pair<const char*, int>> kinds{{"M", 4}, {"G", 2}, {"A", 2}};
    for (const auto& [kind, count] : kinds) {
        bench.open(kind);
        const auto corners = bench.vista.findChildren<GridCorner*>();
        const auto shown =
            std::find_if(corners.begin(), corners.end(), [](auto* c) { return c->isVisible(); });
        ASSERT_NE(shown, corners.end()) << kind;
        auto* corner = *shown;
        const auto buttons = corner->findChildren<QToolButton*>();
        ASSERT_EQ(buttons.size(), count) << kind;
        for (const QToolButton* button : buttons) {
            EXPECT_TRUE(corner->rect().contains(button->geometry())) << button->objectName().toStdString();
            EXPECT_FALSE(button->toolTip().isEmpty());
        }
        EXPECT_LT(buttons[0]->x(), buttons[1]->x()) << "previous stands left of next";
    }
}

TEST_F(WindowTest, WeekendsAreRedInTheHeader) {
    bench.open("M", "20060301");
    EXPECT_TRUE(hasInk(*grid("Flxm").horizontalHeader(), QColor(255, 0, 0)));
}

TEST_F(WindowTest, TheMonthIsAsWideAsTheWindow) {
    bench.open("M");
    auto& view = grid("Flxm");
    const int columns = view.horizontalHeader()->length();
    EXPECT_LE(columns, view.viewport()->width());
    EXPECT_GE(columns, view.viewport()->width() - 2);
}

TEST_F(WindowTest, TheDetailButtonsSwitchTheRowsHeightAndSwapThemselves) {
    bench.open("M");
    auto& view = grid("Flxm");
    const int detailed = view.rowHeight(0);
    auto& toolbar = bench.widget<QToolBar>("Toolbar1");
    auto* dettno = toolbar.findChild<QAction*>(QStringLiteral("dettno"));
    auto* dettsi = toolbar.findChild<QAction*>(QStringLiteral("dettsi"));
    EXPECT_TRUE(dettno->isVisible());
    EXPECT_FALSE(dettsi->isVisible());
    dettno->trigger();
    EXPECT_NEAR(detailed, view.rowHeight(0) * 4, 3);
    EXPECT_FALSE(dettno->isVisible());
    EXPECT_TRUE(dettsi->isVisible());
    EXPECT_EQ(bench.base.sessione.LivelloDettaglio, 1);
}

TEST_F(WindowTest, AKeptWindowIsShownAgainForTheNextRequest) {
    bench.open("M");
    bench.base.sessione.valret = "20060315  F";
    bench.finestra.unload();
    EXPECT_FALSE(bench.vista.isVisible());
    EXPECT_TRUE(bench.finestra.isLoaded());
    bench.base.sessione.valret.clear();
    bench.open("A");
    EXPECT_TRUE(bench.vista.isVisible());
    EXPECT_EQ(bench.vista.windowTitle(), QStringLiteral("Planner Annuale"));
}

TEST_F(WindowTest, ALargeStaffHasARowForEachMemberAndTheSpareRows) {
    std::vector<Collaboratore> staff(2000, collaboratore("ZZ", "Nome"));
    bench.base.putCollaboratori(staff);
    bench.open("M");
    EXPECT_EQ(grid("Flxm").model()->rowCount(), 2000 + RigheInPiu);
}

} // namespace planner::test
