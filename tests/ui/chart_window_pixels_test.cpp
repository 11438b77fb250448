// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "chart_bench.h"
#include "painted.h"

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// What the chart window shows of its chart, at whatever device pixel ratio the screen has.
struct WindowPixelsOfCharts : ChartBench {
    static Painted painted(QDialog& dialog) { return Painted(*chart(dialog).viewport()); }
    static QRgb rgb(Rgb colour) { return qRgb(colour.red, colour.green, colour.blue); }
    static QPointF middle(const ChartArea& area) { return {area.centre().x, area.centre().y}; }

    /// Expects a value's bar in the colour of its series, and each slice of the same values in its own.
    void expectBarAndPie(const char* tipo, std::size_t number, Rgb colour) {
        openChart(tipo, [number, colour](QDialog& dialog) {
            const ChartView& view = chart(dialog);
            const ChartArea bar = view.chartLayout().bars.at(number).area;
            EXPECT_GT(bar.height, 20);
            EXPECT_EQ(painted(dialog).at(middle(bar)), rgb(colour));
            choose(dialog, 2);
            EXPECT_FALSE(view.chartLayout().slices.empty());
            const QRectF whole(view.viewport()->rect());
            for (const ChartSlice& slice : view.chartLayout().slices) {
                EXPECT_GT(painted(dialog).amount(whole, is(rgb(slice.colour))), 100) << slice.number;
            }
        });
    }
};

} // namespace

TEST_F(WindowPixelsOfCharts, TheMonthsBarsAndPie) {
    expectBarAndPie("M", 13, ColoreSerie);
}

TEST_F(WindowPixelsOfCharts, TheDaysBarsAndPie) {
    expectBarAndPie("G", 1, ColoreSerie);
}

TEST_F(WindowPixelsOfCharts, TheYearsBarsAndPie) {
    expectBarAndPie("A", 3, ColoriMesi[3]);
}

TEST_F(WindowPixelsOfCharts, TheTextsAreAsFineAsTheScreenIs) {
    openChart("M", [](QDialog& dialog) {
        const Painted shown = painted(dialog);
        for (const PlacedText& text : chart(dialog).chartLayout().texts) {
            const ChartArea& area = text.area;
            EXPECT_TRUE(shown.isFine({area.x, area.y, area.width, area.height})) << text.text;
        }
    });
}

TEST_F(WindowPixelsOfCharts, TheValueUnderTheMouseIsOutlined) {
    openChart("M", [](QDialog& dialog) {
        const ChartArea bar = chart(dialog).chartLayout().bars.at(13).area;
        const QRectF edge(bar.x - 1, bar.centre().y, 2, 0.5);
        EXPECT_FALSE(painted(dialog).any(edge, isDark));
        hover(chart(dialog), 13);
        EXPECT_TRUE(painted(dialog).any(edge, isDark));
        hover(chart(dialog), 20);
        EXPECT_FALSE(painted(dialog).any(edge, isDark));
    });
}

} // namespace planner::test
