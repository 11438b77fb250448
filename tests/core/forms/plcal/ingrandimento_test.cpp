// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/ingrandimento.h"
#include "plcal_fixture.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

TEST(IngrandimentoTest, StartsAsDesigned) {
    const Ingrandimento ingrandimento;
    EXPECT_EQ(ingrandimento.righe(), 1.0F);
    EXPECT_EQ(ingrandimento.cornice(), 1.0F);
    EXPECT_EQ(ingrandimento.percento(), 100);
}

TEST(IngrandimentoTest, GrowsStepByStepUpToTwice) {
    Ingrandimento ingrandimento;
    for (const int percento : {110, 125, 150, 175, 200, 200}) {
        EXPECT_TRUE(ingrandimento.esegui(ComandoGriglia::ingrandisci));
        EXPECT_EQ(ingrandimento.percento(), percento);
        EXPECT_EQ(ingrandimento.cornice(), ingrandimento.righe());
    }
}

TEST(IngrandimentoTest, ShrinksStepByStepDownToTwoFifthsAndLeavesHeaderAndColumnsAsTheyAre) {
    Ingrandimento ingrandimento;
    for (const int percento : {90, 80, 70, 60, 50, 45, 40, 40}) {
        EXPECT_TRUE(ingrandimento.esegui(ComandoGriglia::riduci));
        EXPECT_EQ(ingrandimento.percento(), percento);
        EXPECT_EQ(ingrandimento.cornice(), 1.0F);
    }
}

TEST(IngrandimentoTest, ComesBackToTheDesignedSizeAtOnce) {
    Ingrandimento ingrandimento;
    ingrandimento.esegui(ComandoGriglia::riduci);
    ingrandimento.esegui(ComandoGriglia::riduci);
    EXPECT_TRUE(ingrandimento.esegui(ComandoGriglia::grandezzaNormale));
    EXPECT_EQ(ingrandimento.percento(), 100);
}

TEST(IngrandimentoTest, OtherCommandsHaveNothingToDoWithIt) {
    Ingrandimento ingrandimento;
    EXPECT_FALSE(ingrandimento.esegui(ComandoGriglia::copia));
    EXPECT_FALSE(ingrandimento.esegui(ComandoGriglia::stampa));
    EXPECT_EQ(ingrandimento.percento(), 100);
}

} // namespace
} // namespace planner::test
