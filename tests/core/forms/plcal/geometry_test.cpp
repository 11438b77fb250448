// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/design.h"
#include "forms/plcal/geometry.h"
#include "support/planner_bench.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

namespace planner::test {
namespace {

TEST(ScalaTest, IsTheRatioOfTheNewToTheDesignedSize) {
    const Scala scala = scalaPer({3000, 1000}, {1500, 2000});
    EXPECT_FLOAT_EQ(scala.ScalaX, 2);
    EXPECT_FLOAT_EQ(scala.ScalaY, 0.5);
    EXPECT_FLOAT_EQ(scala.ScalaMin(), 0.5);
    EXPECT_FLOAT_EQ(scalaPer({1000, 3000}, {2000, 1500}).ScalaMin(), 0.5);
}

TEST(ScalaTest, SizesOfNothingCountAsOneTwip) {
    const Scala scala = scalaPer({0, -5}, {0, 10});
    EXPECT_FLOAT_EQ(scala.ScalaX, 1);
    EXPECT_FLOAT_EQ(scala.ScalaY, 0.1f);
}

TEST(CtrRefreshTest, ScalesEveryControlButTheCommandButtons) {
    const auto scaled = Ctr_Refresh(
        {{"lbldescr", {100, 200, 300, 400}}, {"bselm", {100, 200, 300, 400}, /*pulsanteComando=*/true}},
        {2, 0.5f});
    ASSERT_EQ(scaled.size(), 2u);
    EXPECT_EQ(scaled[0].posizione, (Rettangolo{200, 100, 600, 200}));
    EXPECT_EQ(scaled[1].posizione, (Rettangolo{100, 200, 300, 400}));
}

TEST(PixelsTest, FifteenTwipsAreAPixelAtScaleOne) {
    EXPECT_EQ(pixels(15, 1), 1);
    EXPECT_EQ(pixels(350, 1), 23);
    EXPECT_EQ(pixels(300, 2), 40);
    EXPECT_EQ(pixels(0, 1), 0);
}

TEST(PixelsTest, NeighboursStayNeighboursAtEveryScale) {
    for (float scale = 0.3f; scale < 4; scale += 0.0137f) {
        const Rettangolo left = pixels({5450, 100, 1250, 370}, {scale, scale});
        const Rettangolo right = pixels({6700, 100, 750, 370}, {scale, scale});
        ASSERT_EQ(left.Left + left.Width, right.Left) << scale;
        ASSERT_EQ(left.Top, right.Top) << scale;
        ASSERT_EQ(left.Height, right.Height) << scale;
    }
    EXPECT_EQ(pixels({15, 30, 45, 60}, {2, 1}), (Rettangolo{2, 2, 6, 4}));
}

TEST(PixelSizesTest, TheSumIsNeverOffByMoreThanHalfAPixel) {
    std::vector<int> month(38, 350);
    month[0] = 2000;
    for (float scale = 0.3f; scale < 4; scale += 0.0137f) {
        const std::vector<int> sizes = pixelSizes(month, scale);
        ASSERT_EQ(sizes.size(), month.size());
        int twips = 0;
        int sum = 0;
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            twips += month[i];
            sum += sizes[i];
            ASSERT_LE(std::abs(sum - twips * static_cast<double>(scale) / 15), 0.51) << scale << " " << i;
        }
    }
}

TEST(PixelSizesTest, EqualColumnsDifferByAtMostOnePixel) {
    const std::vector<int> sizes = pixelSizes(std::vector<int>(96, 350), 1.1f);
    const auto [smallest, largest] = std::minmax_element(sizes.begin(), sizes.end());
    EXPECT_LE(*largest - *smallest, 1);
    EXPECT_TRUE(pixelSizes({}, 1).empty());
}

TEST(PixelSizesTest, AMonthFillsTheDesignedGridOnEveryScreen) {
    PlannerBench bench;
    bench.init("M", "20060315");
    std::vector<int> widths;
    for (int column = 0; column < bench.controlli.Flxm.Cols(); ++column) {
        widths.push_back(bench.controlli.Flxm.ColWidth(column));
    }
    for (const auto& control : controlliPlcal()) {
        if (control.nome != "Flxm") {
            continue;
        }
        for (const Dimensioni screen : {Dimensioni{800 * 15, 600 * 15}, Dimensioni{1024 * 15, 768 * 15},
                                        Dimensioni{1920 * 15, 1080 * 15}, Dimensioni{3840 * 15, 2160 * 15}}) {
            const Scala scale = scalaPer(screen, ProgettoPlcal);
            const auto sizes = pixelSizes(widths, scale.ScalaX);
            const int sum = std::accumulate(sizes.begin(), sizes.end(), 0);
            const int room = pixels(control.posizione.Width, scale.ScalaX);
            EXPECT_LE(sum, room);
            EXPECT_GE(sum, room * 95 / 100);
        }
    }
}

bool inside(const Rettangolo& button, const Rettangolo& cell) {
    return button.Left >= cell.Left && button.Top >= cell.Top &&
           button.Left + button.Width <= cell.Left + cell.Width &&
           button.Top + button.Height <= cell.Top + cell.Height;
}

TEST(PulsantePeriodoTest, ThePreviousStands100TwipsRightOfTheCellsEdge) {
    const Rettangolo cell{4, 170, 133, 40};
    EXPECT_EQ(pulsantePeriodo(cell, false, 1).Left, 4 + pixels(100, 1));
    EXPECT_EQ(pulsantePeriodo(cell, false, 3).Left, 4 + pixels(100, 3));
}

TEST(PulsantePeriodoTest, TheNextIsRightAlignedInTheCell) {
    const Rettangolo cell{4, 170, 133, 40};
    const Rettangolo next = pulsantePeriodo(cell, true, 1);
    const int gap = cell.Left + cell.Width - next.Left - next.Width;
    EXPECT_GE(gap, 0);
    EXPECT_LT(gap, pixels(100, 1));
}

TEST(PulsantePeriodoTest, TheTopIsAQuarterOfTheRowWhereItIsHighEnough) {
    const Rettangolo cell{0, 100, 133, 40};
    for (const bool next : {false, true}) {
        const Rettangolo button = pulsantePeriodo(cell, next, 1);
        EXPECT_EQ(button.Top, 110);
        EXPECT_EQ(button.Height, 20);
    }
}

TEST(PulsantePeriodoTest, ButtonsStayInsideTheCellAndApart) {
    for (int width = 40; width <= 600; width += 7) {
        for (int height = 1; height <= 100; height += 3) {
            const Rettangolo cell{10, 20, width, height};
            const Rettangolo previous = pulsantePeriodo(cell, false, 1);
            const Rettangolo next = pulsantePeriodo(cell, true, 1);
            ASSERT_TRUE(inside(previous, cell)) << width << "x" << height;
            ASSERT_TRUE(inside(next, cell)) << width << "x" << height;
            if (width >= 60) {
                ASSERT_LE(previous.Left + previous.Width, next.Left) << width;
            }
        }
    }
}

TEST(PulsantePeriodoTest, ACellWithoutRoomIsNoTrouble) {
    for (const Rettangolo& cell :
         {Rettangolo{0, 0, 0, 0}, Rettangolo{0, 0, 1, 1}, Rettangolo{5, 5, -1, -1}}) {
        EXPECT_LE(pulsantePeriodo(cell, false, 1).Height, 1);
        EXPECT_LE(pulsantePeriodo(cell, true, 1).Width, 1);
    }
}

} // namespace
} // namespace planner::test
