// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "core/forms/plfgraf/chart_samples.h"
#include "forms/plfgraf/chart_layout_parts.h"

#include <cmath>
#include <gmock/gmock.h>
#include <numbers>
#include <random>

namespace planner::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

/// The frame that floats over the upper right corner of a chart of the given width.
ChartArea floating(double width) {
    return {width - 33 - 230, 7, 230, 60};
}

std::vector<std::string> textsUnder(const ChartLayout& layout, const ChartArea& reserved) {
    std::vector<std::string> texts;
    for (const PlacedText& text : layout.texts) {
        if (text.area.overlaps(reserved)) {
            texts.push_back(text.text);
        }
    }
    return texts;
}

TEST(ChartLayout, TheTitleStandsInTheMiddleAboveEverythingElse) {
    const ChartLayout layout = layoutOf(oneSeries({1}, 1));
    EXPECT_DOUBLE_EQ(layout.title.centre().x, ScreenChart.width / 2);
    EXPECT_LT(layout.title.bottom(), layout.frame.y);
    ASSERT_EQ(layout.texts.front().text, "Planner Mensile");
}

TEST(ChartLayout, WhatFloatsOverTheCornerCoversNeitherTitleNorValueAtAnyWidth) {
    for (const bool pie : {false, true}) {
        const Grafico bars = oneSeries(std::vector<double>(31, 8), 8);
        const Grafico grafico = pie ? asPie(bars) : bars;
        for (double width = 300; width < 2000; width += 13) {
            const ChartLayout layout = layoutOf(grafico, {width, 600}, floating(width));
            EXPECT_THAT(textsUnder(layout, floating(width)), IsEmpty()) << width;
        }
    }
}

TEST(ChartLayout, TheTitleMovesBesideWhatFloatsOverTheCornerBeforeItMovesBelow) {
    const ChartLayout wide = layoutOf(oneSeries({1}, 1), {1200, 600}, floating(1200));
    const ChartLayout narrow = layoutOf(oneSeries({1}, 1), {560, 600}, floating(560));
    const ChartLayout tiny = layoutOf(oneSeries({1}, 1), {300, 600}, floating(300));
    EXPECT_DOUBLE_EQ(wide.title.centre().x, 600);
    EXPECT_LT(narrow.title.right(), floating(560).x);
    EXPECT_EQ(narrow.title.y, wide.title.y);
    EXPECT_GE(tiny.title.y, floating(300).bottom());
}

TEST(ChartLayout, OnASheetTheHeadingStandsBetweenTitleAndPlot) {
    Grafico grafico = oneSeries({1}, 1);
    grafico.intestazione = "Ore di Nicol\xF2 <b> - marzo 2006";
    for (const Grafico& each : {grafico, asPie(grafico)}) {
        const ChartLayout sheet = layoutSheet(each, ScreenChart, fixedMeasure);
        ASSERT_THAT(textsOf(sheet, ChartTextRole::heading),
                    testing::ElementsAre("Ore di Nicolò <b> - marzo 2006"));
        const ChartArea& heading = sheet.texts.at(1).area;
        EXPECT_GT(heading.y, sheet.title.bottom());
        EXPECT_LT(heading.bottom(), sheet.frame.y);
        EXPECT_DOUBLE_EQ(heading.centre().x, ScreenChart.width / 2);
        EXPECT_THAT(coveredTexts(sheet), IsEmpty());
        EXPECT_THAT(textsOf(layoutOf(each), ChartTextRole::heading), IsEmpty()) << "the window has its own";
    }
}

TEST(ChartLayout, ASheetWithoutAHeadingIsTheChart) {
    EXPECT_EQ(layoutSheet(oneSeries({1}, 1), ScreenChart, fixedMeasure).frame.y,
              layoutOf(oneSeries({1}, 1)).frame.y);
}

TEST(ChartLayout, AHeadingIsNeverWiderThanItsSheet) {
    Grafico grafico = oneSeries({1}, 1);
    grafico.intestazione = std::string(80, 'W');
    for (const double width : {0.0, 10.0, 300.0}) {
        const ChartArea heading = layoutSheet(grafico, {width, 500}, fixedMeasure).texts.at(1).area;
        EXPECT_GE(heading.width, 0);
        EXPECT_LE(heading.right(), std::max(width, heading.x));
    }
}

TEST(ChartLayout, AnEmptyTitleTakesNoRoom) {
    Grafico grafico = oneSeries({1}, 1);
    grafico.TitleText.clear();
    const ChartLayout layout = layoutOf(grafico);
    EXPECT_TRUE(layout.title.empty());
    EXPECT_THAT(textsOf(layout, ChartTextRole::title), IsEmpty());
    EXPECT_LT(layout.frame.y, layoutOf(oneSeries({1}, 1)).frame.y);
}

TEST(ChartLayout, TheLegendStandsBelowThePlotWithASwatchBesideEachName) {
    const ChartLayout layout = layoutOf(twelveSeries(std::vector<double>(12, 1)));
    ASSERT_THAT(layout.legend, SizeIs(12));
    for (const ChartLegendEntry& entry : layout.legend) {
        EXPECT_GT(entry.swatch.y, layout.frame.bottom());
        EXPECT_LT(entry.swatch.bottom(), ScreenChart.height);
    }
}

TEST(ChartLayout, ALegendThatIsTooLongForOneRowTakesMore) {
    const ChartLayout layout = layoutOf(twelveSeries(std::vector<double>(12, 1)), {300, 500});
    EXPECT_GT(layout.legend.back().swatch.y, layout.legend.front().swatch.y);
    EXPECT_LT(layout.legend.back().swatch.bottom(), 500);
    EXPECT_THAT(coveredTexts(layout), IsEmpty());
}

TEST(ChartLayout, ANameOf50CharactersInTheLegendIsNeverWiderThanTheChart) {
    Grafico grafico = oneSeries({1}, 1);
    grafico.serie.front().etichetta = std::string(50, 'W');
    for (const double width : {1200.0, 300.0}) {
        for (const PlacedText& text : layoutOf(grafico, {width, 500}).texts) {
            EXPECT_GE(text.area.x, 0) << text.text;
            EXPECT_LE(text.area.right(), width) << text.text;
        }
    }
}

TEST(ChartLayout, NamesComeOutOfTheirCodePageAndAreNotTakenForAnythingElse) {
    Grafico grafico = oneSeries({1}, 1);
    grafico.serie.front().etichetta = "Nicol\xF2 <b>&amp; %1";
    EXPECT_THAT(textsOf(layoutOf(grafico), ChartTextRole::legend),
                testing::ElementsAre("Nicolò <b>&amp; %1"));
}

TEST(ChartLayout, AnySizeHasALayoutOfFinitePlaces) {
    for (const ChartSize size : {ChartSize{0, 0}, ChartSize{1, 1}, ChartSize{-5, 3}, ChartSize{20, 2000}}) {
        for (const Grafico& grafico :
             {oneSeries({1, 2}, 2), asPie(oneSeries({1, 2}, 2)), twelveSeries(std::vector<double>(12, 1))}) {
            for (const PlacedText& text : layoutOf(grafico, size, floating(size.width)).texts) {
                EXPECT_TRUE(std::isfinite(text.area.x) && std::isfinite(text.area.y)) << text.text;
                EXPECT_GE(text.area.width, 0) << text.text;
            }
        }
    }
}

TEST(ChartLayout, ExtremeValuesHaveALayoutToo) {
    const std::vector<double> values{1e300, -1e300, 5e-324, 0};
    EXPECT_THAT(layoutOf(oneSeries(values, 10)).bars, SizeIs(4));
    EXPECT_THAT(layoutOf(asPie(oneSeries(values, 10))).slices, SizeIs(2));
}

TEST(ValueAt, FindsEachBarOverTheWholeHeightOfItsSlot) {
    const ChartLayout layout = layoutOf(oneSeries(std::vector<double>(500, 1), 8));
    for (std::size_t i = 0; i < layout.bars.size(); ++i) {
        EXPECT_EQ(valueAt(layout, {layout.bars[i].slot.centre().x, layout.plot.y + 1}), i);
    }
}

TEST(ValueAt, FindsNothingBesideThePlot) {
    const ChartLayout layout = layoutOf(oneSeries({1, 2}, 2));
    EXPECT_EQ(valueAt(layout, {layout.plot.x - 1, layout.plot.centre().y}), std::nullopt);
    EXPECT_EQ(valueAt(layout, {layout.plot.right(), layout.plot.centre().y}), std::nullopt);
    EXPECT_EQ(valueAt(layout, {layout.plot.centre().x, layout.plot.bottom()}), std::nullopt);
    EXPECT_EQ(valueAt(layout, {-1e9, 1e9}), std::nullopt);
}

TEST(ValueAt, FindsEachSliceFromItsMiddleLine) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({1, 0, 2, 3, 4, 0, 5}, 5)));
    for (const ChartSlice& slice : layout.slices) {
        const double angle = (slice.start + slice.span / 2) * std::numbers::pi / 180;
        const ChartPoint point{layout.pieCentre.x + layout.pieRadius / 2 * std::sin(angle),
                               layout.pieCentre.y - layout.pieRadius / 2 * std::cos(angle)};
        EXPECT_EQ(valueAt(layout, point), slice.number);
    }
}

TEST(ValueAt, FindsNothingOutsideThePie) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({1, 2}, 2)));
    EXPECT_EQ(valueAt(layout, {layout.pieCentre.x + layout.pieRadius + 1, layout.pieCentre.y}), std::nullopt);
    const ChartLayout empty = layoutOf(asPie(oneSeries({0}, 0)));
    EXPECT_EQ(valueAt(empty, empty.frame.centre()), std::nullopt);
}

TEST(AreaOf, IsTheSlotOfABar) {
    const ChartLayout layout = layoutOf(oneSeries({1, 2}, 2));
    EXPECT_DOUBLE_EQ(areaOf(layout, 1).x, layout.bars[1].slot.x);
    EXPECT_TRUE(areaOf(layout, 2).empty());
}

TEST(AreaOf, IsTheBoxAroundASlice) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({1, 1, 2}, 2)));
    const ChartArea right = areaOf(layout, 0); // from twelve to three o'clock
    EXPECT_NEAR(right.x, layout.pieCentre.x, 1e-6);
    EXPECT_NEAR(right.bottom(), layout.pieCentre.y, 1e-6);
    EXPECT_NEAR(right.width, layout.pieRadius, 1e-6);
    const ChartArea half = areaOf(layout, 2); // from six to twelve o'clock
    EXPECT_NEAR(half.right(), layout.pieCentre.x, 1e-6);
    EXPECT_NEAR(half.x, layout.pieCentre.x - layout.pieRadius, 1e-6);
}

TEST(AreaOf, IsEmptyForAValueWithoutASlice) {
    EXPECT_TRUE(areaOf(layoutOf(asPie(oneSeries({1, 0}, 1))), 1).empty());
}

TEST(LabelStep, IsTheSmallestRoundNumberThatLeavesRoom) {
    EXPECT_EQ(labelStep(10, 10), 1U);
    EXPECT_EQ(labelStep(10, 9), 2U);
    EXPECT_EQ(labelStep(10, 4), 5U);
    EXPECT_EQ(labelStep(10, 1.5), 10U);
    EXPECT_EQ(labelStep(10, 0.6), 20U);
    EXPECT_GE(labelStep(10, 0), 1'000'000U);
}

} // namespace
} // namespace planner::test
