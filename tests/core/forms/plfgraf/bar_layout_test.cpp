// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "core/forms/plfgraf/chart_samples.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<double> workedDays(std::size_t count) {
    std::vector<double> values;
    for (std::size_t day = 0; day < count; ++day) {
        values.push_back(day % 7 < 5 ? 6 + static_cast<double>(day % 5) * 0.75 : 0);
    }
    return values;
}

/// The chart of a window that fills nine tenths of a screen of 1366 by 768 pixels.
constexpr ChartSize OfficeChart{1195, 644};

MATCHER(LevelUnlessAxisTitle, "") {
    return arg.upwards == (arg.text == "Ore");
}

TEST(BarLayout, GivesEveryValueAnEqualSlotOfThePlot) {
    const ChartLayout layout = layoutOf(oneSeries({1, 2, 3, 4}, 4));
    ASSERT_THAT(layout.bars, SizeIs(4));
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_DOUBLE_EQ(layout.bars[i].slot.width, layout.plot.width / 4);
        EXPECT_DOUBLE_EQ(layout.bars[i].slot.centre().x, layout.bars[i].area.centre().x);
    }
    EXPECT_NEAR(layout.bars.back().slot.right(), layout.plot.right(), 1e-6);
}

TEST(BarLayout, BarsStandOnTheAxisAndAreAsHighAsTheirValues) {
    const ChartLayout layout = layoutOf(oneSeries({0, 2, 8}, 8));
    EXPECT_DOUBLE_EQ(layout.bars[0].area.height, 0);
    EXPECT_DOUBLE_EQ(layout.bars[1].area.height, layout.plot.height / 4);
    EXPECT_DOUBLE_EQ(layout.bars[2].area.y, layout.plot.y);
    for (const ChartBar& bar : layout.bars) {
        EXPECT_NEAR(bar.area.bottom(), layout.plot.bottom(), 1e-6);
    }
}

TEST(BarLayout, AValueBeyondTheAxisEndsAtItsTop) {
    const ChartLayout layout = layoutOf(oneSeries({9.5}, 8));
    EXPECT_DOUBLE_EQ(layout.bars[0].area.y, layout.plot.y);
}

TEST(BarLayout, ANegativeValueHasNoHeightAndItsValueWritten) {
    const ChartLayout layout = layoutOf(oneSeries({-2}, 8));
    EXPECT_DOUBLE_EQ(layout.bars[0].area.height, 0);
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), ElementsAre("-2:00"));
}

TEST(BarLayout, AValueThatWouldLeaveTheChartIsNotWritten) {
    const ChartLayout layout = layoutOf(oneSeries({8, -9e99, 8}, 8), {300, 500});
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), ElementsAre("8:00", "8:00"));
    EXPECT_THAT(textsOf(layoutOf(oneSeries({-9e300}, 8)), ChartTextRole::value), IsEmpty());
}

TEST(BarLayout, ValuesOfNarrowSlotsStayWithinTheChart) {
    std::vector<double> values(60, 1);
    values.back() = 10000.5;
    const ChartLayout layout = layoutOf(oneSeries(values, 32767), {300, 500});
    for (const PlacedText& text : layout.texts) {
        EXPECT_GE(text.area.x, 0) << text.text;
        EXPECT_LE(text.area.right(), 300) << text.text;
    }
}

TEST(BarLayout, AnAxisWhoseMaximumIs0IsStillDrawn) {
    const ChartLayout layout = layoutOf(oneSeries(std::vector<double>(31, 0), 0));
    EXPECT_THAT(layout.majorLines, ElementsAre(layout.plot.bottom()));
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisLabel), SizeIs(1 + 31));
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), IsEmpty()) << "a zero writes no value";
}

TEST(BarLayout, AValueOnAnAxisThatEndsAt0FillsThePlot) {
    const ChartLayout layout = layoutOf(oneSeries({0.5}, 0));
    EXPECT_DOUBLE_EQ(layout.bars[0].area.height, layout.plot.height);
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), ElementsAre("0:30"));
}

TEST(BarLayout, TheValueOfABarThatReachesTheTopStandsAboveItInsideTheFrame) {
    const ChartLayout layout = layoutOf(oneSeries({8}, 8));
    ASSERT_EQ(layout.texts.back().text, "8:00");
    EXPECT_LE(layout.texts.back().area.bottom(), layout.bars[0].area.y);
    EXPECT_GE(layout.texts.back().area.y, layout.frame.y);
}

TEST(BarLayout, HasALineAndALabelForEachMajorDivision) {
    const ChartLayout layout = layoutOf(oneSeries({7.5}, 8));
    ASSERT_THAT(layout.majorLines, SizeIs(9));
    EXPECT_DOUBLE_EQ(layout.majorLines.front(), layout.plot.bottom());
    EXPECT_NEAR(layout.majorLines.back(), layout.plot.y, 1e-6);
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisLabel),
                ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8", "1"));
}

TEST(BarLayout, LabelsOfTheYearlyAxisAreATenthOfItsMaximumApart) {
    const std::vector<std::string> labels =
        textsOf(layoutOf(twelveSeries(std::vector<double>(12, 50))), ChartTextRole::axisLabel);
    EXPECT_THAT(std::vector(labels.begin(), labels.begin() + 11),
                ElementsAre("0", "10", "20", "30", "40", "50", "60", "70", "80", "90", "100"));
}

TEST(BarLayout, DivisionsOfALongAxisThinOut) {
    const ChartLayout layout = layoutOf(oneSeries({29'000}, 31'900));
    EXPECT_LE(layout.majorLines.size(), 50U);
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisLabel), Contains("2000"));
    EXPECT_THAT(coveredTexts(layout), IsEmpty());
}

TEST(BarLayout, OnePartInEachMajorDivisionNeedsNoMinorLine) {
    EXPECT_THAT(layoutOf(oneSeries({7}, 8)).minorLines, IsEmpty());
}

TEST(BarLayout, MinorLinesPartTheMajorDivisions) {
    Grafico grafico = oneSeries({2}, 2);
    grafico.asseY.MinorDivision = 2;
    const ChartLayout layout = layoutOf(grafico);
    const double quarter = layout.plot.height / 4;
    EXPECT_THAT(layout.minorLines, ElementsAre(testing::DoubleEq(layout.plot.bottom() - quarter),
                                               testing::DoubleEq(layout.plot.bottom() - 3 * quarter)));
}

TEST(BarLayout, AMonthShowsEveryDayAndEveryValueOnAnOfficeScreen) {
    const ChartLayout layout = layoutOf(oneSeries(workedDays(31), 10));
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), SizeIs(23)) << "one for each worked day";
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisLabel), SizeIs(11 + 31));
    EXPECT_THAT(layout.texts, Each(LevelUnlessAxisTitle()));
    EXPECT_THAT(coveredTexts(layout), IsEmpty());
}

TEST(BarLayout, SixtyBarsShowEveryLabelAndValueUprightOnAnOfficeScreen) {
    const ChartLayout layout = layoutOf(oneSeries(std::vector<double>(60, 7.25), 8), OfficeChart);
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), SizeIs(60));
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisLabel), SizeIs(9 + 60));
    for (const PlacedText& text : layout.texts) {
        const bool ofABar = text.role == ChartTextRole::value ||
                            (text.role == ChartTextRole::axisLabel && text.area.y > layout.plot.bottom());
        EXPECT_EQ(text.upwards, ofABar || text.text == "Ore") << text.text;
    }
    EXPECT_THAT(coveredTexts(layout), IsEmpty());
}

TEST(BarLayout, SixtyBarsShowEveryLabelAndValueOnTheSmallestScreenToo) {
    const ChartLayout layout = layoutOf(oneSeries(std::vector<double>(60, 7.25), 8), {830, 440});
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), SizeIs(60));
    EXPECT_THAT(coveredTexts(layout), IsEmpty());
}

TEST(BarLayout, AnUprightValueStandsAboveItsBarAlsoWhereTheBarReachesTheTop) {
    const ChartLayout layout = layoutOf(oneSeries(std::vector<double>(60, 10.75), 10), OfficeChart);
    std::size_t number = 0;
    for (const PlacedText& text : layout.texts) {
        if (text.role == ChartTextRole::value) {
            const ChartArea& bar = layout.bars.at(number++).area;
            EXPECT_DOUBLE_EQ(bar.y, layout.plot.y);
            EXPECT_LT(text.area.bottom(), bar.y);
            EXPECT_GE(text.area.y, layout.frame.y);
            EXPECT_DOUBLE_EQ(text.area.centre().x, bar.centre().x);
            EXPECT_DOUBLE_EQ(text.area.height, fixedMeasure(ChartTextRole::value, text.text).width);
        }
    }
    EXPECT_EQ(number, 60U);
}

TEST(BarLayout, AnImpossibleValueTurnsNoOther) {
    std::vector<double> values(12, 7.5);
    values[3] = -9e99;
    const ChartLayout layout = layoutOf(oneSeries(values, 8));
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), SizeIs(11));
    EXPECT_THAT(layout.texts, Each(LevelUnlessAxisTitle()));
}

TEST(BarLayout, SeveralSeriesHaveTheirNamesUnderTheirBars) {
    const ChartLayout layout = layoutOf(twelveSeries(std::vector<double>(12, 50)));
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisLabel), Contains("M12"));
    EXPECT_THAT(textsOf(layout, ChartTextRole::legend), SizeIs(12));
}

TEST(BarLayout, LabelsAndValuesOf500BarsThinOutInsteadOfOverlapping) {
    const ChartLayout layout = layoutOf(oneSeries(workedDays(500), 10));
    EXPECT_THAT(layout.bars, SizeIs(500));
    EXPECT_THAT(coveredTexts(layout), IsEmpty());
    EXPECT_GE(textsOf(layout, ChartTextRole::value).size(), 20U);
    EXPECT_GE(textsOf(layout, ChartTextRole::axisLabel).size(), 11U + 20U);
}

TEST(BarLayout, NoTextCoversAnotherAtAnySizeOfTheWindow) {
    const Grafico grafico = oneSeries(workedDays(31), 10);
    for (double width = 460; width < 2000; width += 37) {
        EXPECT_THAT(coveredTexts(layoutOf(grafico, {width, width * 0.6})), IsEmpty()) << width;
    }
}

TEST(BarLayout, ADayWithoutStaffIsAnEmptyPlot) {
    const ChartLayout layout = layoutOf(oneSeries({}, 0));
    EXPECT_THAT(layout.bars, IsEmpty());
    EXPECT_THAT(layout.majorLines, SizeIs(1));
}

} // namespace
} // namespace planner::test
