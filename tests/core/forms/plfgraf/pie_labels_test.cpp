// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "chart_samples.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace planner::test {
namespace {

/// The values whose labels stand at one side of the pie, from the topmost label down.
std::vector<std::size_t> valuesFromTop(const ChartLayout& layout, bool right) {
    std::vector<std::pair<double, std::size_t>> side;
    for (const ChartSlice& slice : layout.slices) {
        if (slice.label) {
            const ChartArea& label = layout.texts[*slice.label].area;
            if ((label.centre().x > layout.pieCentre.x) == right) {
                side.emplace_back(label.y, slice.number);
            }
        }
    }
    std::sort(side.begin(), side.end());
    std::vector<std::size_t> numbers;
    for (const auto& [y, number] : side) {
        numbers.push_back(number);
    }
    return numbers;
}

constexpr bool Left = false;
constexpr bool Right = true;

TEST(PieLabels, FollowTheSlicesDownTheRightAndUpTheLeft) {
    const ChartLayout layout = layoutOf(asPie(oneSeries(std::vector<double>(8, 1), 1)));
    EXPECT_THAT(valuesFromTop(layout, Right), testing::ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(valuesFromTop(layout, Left), testing::ElementsAre(7, 6, 5, 4));
}

TEST(PieLabels, KeepTheirOrderWhereTheyCrowd) {
    for (const std::size_t count : {3U, 12U, 31U, 60U, 300U}) {
        const ChartLayout layout = layoutOf(asPie(oneSeries(std::vector<double>(count, 1), 1)));
        const auto right = valuesFromTop(layout, Right);
        const auto left = valuesFromTop(layout, Left);
        EXPECT_GE(right.size() + left.size(), std::min<std::size_t>(count, 60)) << count;
        EXPECT_TRUE(std::is_sorted(right.begin(), right.end())) << count;
        EXPECT_TRUE(std::is_sorted(left.rbegin(), left.rend())) << count;
    }
}

TEST(PieLabels, ThoseLeftOutTakeNoRoomFromTheCircle) {
    Grafico pie = asPie(oneSeries(std::vector<double>(300, 5), 5));
    const double radius = layoutOf(pie).pieRadius;
    pie.etichette[7] = std::string(100, 'W');
    pie.serie[0].valori[7] = 6;
    EXPECT_LT(layoutOf(pie).pieRadius, radius) << "a label that is shown";
    pie.serie[0].valori[7] = 1;
    EXPECT_DOUBLE_EQ(layoutOf(pie).pieRadius, radius) << "the smallest slice's";
}

TEST(PieLabels, StandAsHighAsTheirSlicesWhereThereIsRoom) {
    const ChartLayout layout = layoutOf(asPie(oneSeries({3, 2, 2, 3}, 3)));
    for (const ChartSlice& slice : layout.slices) {
        ASSERT_TRUE(slice.label) << slice.number;
        EXPECT_NEAR(layout.texts[*slice.label].area.centre().y, slice.labelLine[1].y, 1) << slice.number;
    }
}

} // namespace
} // namespace planner::test
