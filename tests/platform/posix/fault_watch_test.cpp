// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/fault_watch.h"
#include "support/in_child.h"

#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace planner::test {
namespace {

constexpr int Said = 7;

void sayAndEnd(int /*signal*/) {
    endChild(Said);
}

void hang(int /*signal*/) {
    endSoon();
    while (true) {
        ::pause();
    }
}

class FaultWatchTest : public testing::TestWithParam<int> {};

TEST_P(FaultWatchTest, AFaultComesToTheLastWords) {
    EXPECT_EQ(inChild([] {
                  const FaultWatch watch(sayAndEnd);
                  return std::raise(GetParam());
              }),
              Said);
}

TEST_P(FaultWatchTest, WithoutTheWatchAFaultIsWhatItWasBefore) {
    EXPECT_EQ(inChild([] {
                  std::signal(GetParam(), SIG_DFL);
                  { const FaultWatch watch(sayAndEnd); }
                  return std::raise(GetParam());
              }),
              128 + GetParam());
}

TEST_P(FaultWatchTest, ItsEndGivesTheHandlerBack) {
    EXPECT_EQ(inChild([] {
                  std::signal(GetParam(), sayAndEnd);
                  { const FaultWatch watch(hang); }
                  return std::signal(GetParam(), SIG_DFL) == sayAndEnd ? 0 : 1;
              }),
              0);
}

TEST(EndSoonTest, TheProcessHasTwoSecondsLeft) {
    EXPECT_EQ(inChild([] {
                  endSoon();
                  return static_cast<int>(::alarm(0)); // rounded
              }),
              2);
}

TEST_P(FaultWatchTest, LastWordsThatHangEndTheProcess) {
    EXPECT_EQ(inChild([] {
                  const FaultWatch watch(hang);
                  return std::raise(GetParam());
              }),
              128 + SIGALRM);
}

INSTANTIATE_TEST_SUITE_P(Faults, FaultWatchTest, testing::Values(SIGSEGV, SIGBUS),
                         [](const auto& signal) { return std::string("SIG") + sigabbrev_np(signal.param); });

} // namespace
} // namespace planner::test
