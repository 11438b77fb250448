// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfimp/plfimp.h"

#include <gtest/gtest.h>

namespace planner {
namespace {

TEST(PlfimpTest, ConfirmingWithoutTouchingTheOptionsAnswersI) {
    plfimp form;
    form.conferma_Click();
    EXPECT_EQ(form.risposta(), "I");
}

TEST(PlfimpTest, TheSecondOptionAnswersT) {
    plfimp form;
    form.Option1_Click(1);
    form.conferma_Click();
    EXPECT_EQ(form.risposta(), "T");
}

TEST(PlfimpTest, CancellingEmptiesTheAnswer) {
    plfimp form;
    form.conferma_Click();
    form.annulla_Click();
    EXPECT_EQ(form.risposta(), "");
}

TEST(PlfimpTest, AFreshDialogHasNoAnswer) {
    EXPECT_EQ(plfimp().risposta(), "");
}

TEST(PlfimpTest, AnotherIndexSelectsNothingNew) {
    plfimp form;
    form.Option1_Click(2);
    form.Option1_Click(-1);
    EXPECT_EQ(form.Option1(), 0);
}

TEST(PlfimpTest, TheOptionsAreThoseOfTheDialog) {
    EXPECT_EQ(ScelteImpegno[0].didascalia, "Impegno");
    EXPECT_EQ(ScelteImpegno[1].didascalia, "Pratica");
}

} // namespace
} // namespace planner
