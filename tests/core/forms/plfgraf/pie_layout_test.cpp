// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "core/forms/plfgraf/chart_samples.h"

#include <cmath>
#include <gmock/gmock.h>
#include <numeric>

namespace planner::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<double> counting(std::size_t count) {
    std::vector<double> values(count);
    std::iota(values.begin(), values.end(), 1);
    return values;
}

double distance(ChartPoint a, ChartPoint b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

TEST(PieLayout, HasASliceForEachValueAbove0) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({3, 0, 1, -2}, 8)));
    ASSERT_THAT(layout.slices, SizeIs(2));
    EXPECT_EQ(layout.slices[0].number, 0U);
    EXPECT_DOUBLE_EQ(layout.slices[0].span, 270);
    EXPECT_EQ(layout.slices[1].number, 2U);
    EXPECT_DOUBLE_EQ(layout.slices[1].start, 270);
    EXPECT_DOUBLE_EQ(layout.slices[1].span, 90);
}

TEST(PieLayout, SlicesCloseTheCircle) {
    const ChartLayout layout = layoutOf(asPie(oneSeries(counting(31), 31)));
    const ChartSlice& last = layout.slices.back();
    EXPECT_NEAR(last.start + last.span, 360, 1e-9);
}

TEST(PieLayout, LabelsNameTheRowAndItsHours) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({7.5, 0, 8.25}, 9)));
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), ElementsAre("1  7:30  48 %", "3  8:15  52 %"));
}

TEST(PieLayout, ASliceOfSeveralSeriesIsLabelledWithItsSeries) {
    const ChartLayout layout = layoutOf(asPie(twelveSeries(std::vector<double>(12, 50))));
    EXPECT_THAT(layout.slices, SizeIs(12));
    EXPECT_THAT(textsOf(layout, ChartTextRole::value), testing::Contains("M12  50:00  8 %"));
}

TEST(PieLayout, LabelsStandOutsideThePieInsideTheFrameAndClearOfEachOther) {
    for (const std::size_t count : {1U, 2U, 3U, 12U, 31U, 60U}) {
        const ChartLayout layout = layoutOf(asPie(oneSeries(counting(count), 60)));
        EXPECT_THAT(coveredTexts(layout), IsEmpty()) << count;
        for (const ChartSlice& slice : layout.slices) {
            if (!slice.label) {
                continue;
            }
            const ChartArea& label = layout.texts[*slice.label].area;
            const ChartPoint nearest{std::clamp(layout.pieCentre.x, label.x, label.right()),
                                     std::clamp(layout.pieCentre.y, label.y, label.bottom())};
            EXPECT_GT(distance(nearest, layout.pieCentre), layout.pieRadius) << count;
            EXPECT_GE(label.x, layout.frame.x) << count;
            EXPECT_LE(label.right(), layout.frame.right()) << count;
            EXPECT_GE(label.y, layout.frame.y) << count;
            EXPECT_LE(label.bottom(), layout.frame.bottom()) << count;
        }
    }
}

TEST(PieLayout, ABentLineLeadsFromTheSliceToItsLabel) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({1, 1, 1}, 1)));
    for (const ChartSlice& slice : layout.slices) {
        ASSERT_TRUE(slice.label);
        const ChartArea& label = layout.texts[*slice.label].area;
        EXPECT_NEAR(distance(slice.labelLine[0], layout.pieCentre), layout.pieRadius, 1e-6);
        EXPECT_GT(distance(slice.labelLine[1], layout.pieCentre), layout.pieRadius);
        EXPECT_DOUBLE_EQ(slice.labelLine[2].y, label.centre().y);
        EXPECT_TRUE(slice.labelLine[2].x == label.x || slice.labelLine[2].x == label.right());
    }
}

TEST(PieLayout, WhereLabelsLackRoomTheSmallestSlicesGoWithout) {
    const ChartLayout layout = layoutOf(asPie(oneSeries(counting(500), 500)));
    double largestWithout = 0;
    double smallestWithOnRight = 360;
    for (const ChartSlice& slice : layout.slices) {
        const bool right = slice.start + slice.span / 2 < 180;
        if (right && slice.label) {
            smallestWithOnRight = std::min(smallestWithOnRight, slice.span);
        } else if (right) {
            largestWithout = std::max(largestWithout, slice.span);
        }
    }
    EXPECT_LE(largestWithout, smallestWithOnRight);
    EXPECT_GE(textsOf(layout, ChartTextRole::value).size(), 40U);
    EXPECT_THAT(coveredTexts(layout), IsEmpty());
}

TEST(PieLayout, NoTwoNeighboursOfOneSeriesHaveTheSameShade) {
    for (std::size_t count = 2; count <= 40; ++count) {
        const ChartLayout layout = layoutOf(asPie(oneSeries(std::vector<double>(count, 1), 1)));
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_NE(layout.slices[i].colour, layout.slices[(i + 1) % count].colour) << i << " of " << count;
        }
    }
}

TEST(PieLayout, SlicesOfSeveralSeriesHaveTheColoursOfTheirSeries) {
    const ChartLayout layout = layoutOf(asPie(twelveSeries({0, 5, 5})));
    ASSERT_THAT(layout.slices, SizeIs(2));
    EXPECT_EQ(layout.slices[0].colour, ColoriMesi[1]);
    EXPECT_EQ(layout.slices[1].colour, ColoriMesi[2]);
}

TEST(PieLayout, OneValueAloneIsTheWholeCircle) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({0, 4}, 4)));
    ASSERT_THAT(layout.slices, SizeIs(1));
    EXPECT_DOUBLE_EQ(layout.slices[0].span, 360);
    EXPECT_EQ(layout.slices[0].colour, ColoreSerie);
}

TEST(PieLayout, WithoutAnyHoursItSaysSo) {
    const ChartLayout layout = layoutOf(asPie(oneSeries(std::vector<double>(31, 0), 0)));
    EXPECT_THAT(layout.slices, IsEmpty());
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisTitle), ElementsAre("Nessuna ora da mostrare"));
}

TEST(PieLayout, HasNeitherAxesNorBars) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({1, 2}, 2)));
    EXPECT_THAT(layout.bars, IsEmpty());
    EXPECT_THAT(layout.majorLines, IsEmpty());
    EXPECT_THAT(textsOf(layout, ChartTextRole::axisLabel), IsEmpty());
}

} // namespace
} // namespace planner::test
