// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/giornaliera.h"

#include <gmock/gmock.h>
#include <random>

namespace planner::test {
namespace {

using Fasce = std::vector<FasciaImpegno>;

Fasce assegnate(Fasce fasce) {
    assegnaCorsie(fasce);
    return fasce;
}

bool siToccano(const FasciaImpegno& a, const FasciaImpegno& b) {
    return a.prima <= b.ultima && b.prima <= a.ultima;
}

/// A full day of bars, short and long, as they may stand in an archive.
Fasce aCaso(unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> column(1, ColonneQuarti);
    std::uniform_int_distribution<int> length(1, 1 + static_cast<int>(seed % 30));
    std::uniform_int_distribution<std::size_t> count(0, 40);
    Fasce fasce(count(random));
    for (FasciaImpegno& fascia : fasce) {
        fascia.prima = column(random);
        fascia.ultima = std::min(fascia.prima + length(random) - 1, ColonneQuarti);
    }
    return fasce;
}

void expectNoTwoInOneLane(const Fasce& fasce, unsigned seed) {
    for (std::size_t i = 0; i < fasce.size(); ++i) {
        EXPECT_GE(fasce[i].corsia, 0) << seed;
        EXPECT_LT(fasce[i].corsia, fasce[i].corsie) << seed;
        for (std::size_t k = i + 1; k < fasce.size(); ++k) {
            if (siToccano(fasce[i], fasce[k])) {
                EXPECT_NE(fasce[i].corsia, fasce[k].corsia) << "seed " << seed << ": " << i << " and " << k;
                EXPECT_EQ(fasce[i].corsie, fasce[k].corsie) << "seed " << seed << ": " << i << " and " << k;
            }
        }
    }
}

/// The most bars that stand on one column among those that share the bar's lanes.
int piuAffollata(const Fasce& fasce) {
    int most = 0;
    for (int column = 1; column <= ColonneQuarti; ++column) {
        const auto here = std::count_if(fasce.begin(), fasce.end(),
                                        [&](const FasciaImpegno& fascia) { return fascia.copre(column); });
        most = std::max(most, static_cast<int>(here));
    }
    return most;
}

TEST(CorsieTest, NoTwoBarsOfALaneTouchAndThoseThatOverlapShareTheRowAlike) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        expectNoTwoInOneLane(assegnate(aCaso(seed)), seed);
    }
}

TEST(CorsieTest, ARowIsDividedNoFurtherThanItsBusiestQuarterNeeds) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        const Fasce fasce = assegnate(aCaso(seed));
        int most = 0;
        for (const FasciaImpegno& fascia : fasce) {
            most = std::max(most, fascia.corsie);
        }
        EXPECT_EQ(most, piuAffollata(fasce)) << seed;
    }
}

TEST(CorsieTest, ABarAloneHasTheWholeRow) {
    EXPECT_EQ(assegnate({{33, 36, 8}}), (Fasce{{33, 36, 8, 0, 1}}));
    EXPECT_EQ(assegnate({{41, 44, 8}, {37, 40, 9}, {33, 36, 10}}),
              (Fasce{{33, 36, 10, 0, 1}, {37, 40, 9, 0, 1}, {41, 44, 8, 0, 1}}))
        << "neighbours do not touch";
    EXPECT_EQ(assegnate({}), Fasce{});
}

TEST(CorsieTest, TwoThatOverlapStandOneAboveTheOther) {
    EXPECT_EQ(assegnate({{35, 40, 9}, {33, 36, 8}}), (Fasce{{33, 36, 8, 0, 2}, {35, 40, 9, 1, 2}}));
    EXPECT_EQ(assegnate({{33, 36, 8}, {36, 36, 9}}), (Fasce{{33, 36, 8, 0, 2}, {36, 36, 9, 1, 2}}))
        << "one common quarter is enough";
}

TEST(CorsieTest, AChainTakesLanesInTurnAndKeepsOneHeight) {
    EXPECT_EQ(assegnate({{1, 4}, {3, 8}, {7, 12}, {11, 16}}),
              (Fasce{{1, 4, 0, 0, 2}, {3, 8, 0, 1, 2}, {7, 12, 0, 0, 2}, {11, 16, 0, 1, 2}}));
}

TEST(CorsieTest, BarsOutsideAGroupKeepTheWholeRow) {
    EXPECT_EQ(assegnate({{1, 2}, {10, 20}, {12, 14}, {13, 13}, {15, 18}, {21, 22}}),
              (Fasce{{1, 2, 0, 0, 1},
                     {10, 20, 0, 0, 3},
                     {12, 14, 0, 1, 3},
                     {13, 13, 0, 2, 3},
                     {15, 18, 0, 1, 3},
                     {21, 22, 0, 0, 1}}));
}

TEST(CorsieTest, IdenticalBarsStandInTheOrderOfTheirRecords) {
    EXPECT_EQ(assegnate({{33, 36, 3}, {33, 36, 1}, {33, 36, 2}}),
              (Fasce{{33, 36, 3, 0, 3}, {33, 36, 1, 1, 3}, {33, 36, 2, 2, 3}}));
}

TEST(CorsieTest, AssigningAgainChangesNothing) {
    for (unsigned seed = 0; seed < 50; ++seed) {
        const Fasce once = assegnate(aCaso(seed));
        EXPECT_EQ(assegnate(once), once) << seed;
    }
}

} // namespace
} // namespace planner::test
