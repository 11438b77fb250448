// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/waiting.h"
#include "support/temp_folder.h"

#include <array>
#include <future>
#include <gtest/gtest.h>
#include <system_error>

namespace planner::test {
namespace {

constexpr std::chrono::milliseconds NoTime{0};
constexpr std::chrono::seconds Deadline{20}; // that only a hang exceeds

TEST(WakeUpTest, IsReadyFromItsCallOn) {
    const WakeUp wakeUp;
    EXPECT_EQ(waitForFirst(std::array{wakeUp.waitable()}, NoTime), std::nullopt);
    wakeUp.wake();
    EXPECT_EQ(waitForFirst(std::array{wakeUp.waitable()}, std::nullopt), 0U);
    EXPECT_EQ(waitForFirst(std::array{wakeUp.waitable()}, NoTime), 0U);
}

TEST(WakeUpTest, AnotherThreadEndsTheWait) {
    const WakeUp wakeUp;
    const auto other = std::async(std::launch::async, [&] { wakeUp.wake(); });
    EXPECT_EQ(waitForFirst(std::array{wakeUp.waitable()}, Deadline), 0U);
}

TEST(WaitForFirstTest, OfSeveralTheFirstCountsAndNoneIsPassedOver) {
    const WakeUp first;
    const WakeUp second;
    const std::array waited{NoWaitable, first.waitable(), second.waitable()};
    second.wake();
    EXPECT_EQ(waitForFirst(waited, Deadline), 2U);
    first.wake();
    EXPECT_EQ(waitForFirst(waited, Deadline), 1U);
}

TEST(FolderWatchTest, IsReadyWhenAFileLeaves) {
    const TempFolder folder;
    folder.write("file", "");
    const FolderWatch watch(folder.path());
    EXPECT_EQ(waitForFirst(std::array{watch.waitable()}, NoTime), std::nullopt);
    std::filesystem::remove(folder.path("file"));
    EXPECT_EQ(waitForFirst(std::array{watch.waitable()}, Deadline), 0U);
    watch.forget();
    EXPECT_EQ(waitForFirst(std::array{watch.waitable()}, NoTime), std::nullopt);
}

TEST(FolderWatchTest, AFolderThatIsMissingCannotBeWatched) {
    const TempFolder folder;
    EXPECT_THROW(const FolderWatch watch(folder.path("none")), std::system_error);
}

} // namespace
} // namespace planner::test
