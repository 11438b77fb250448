// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/child_process.h"
#include "platform/system/paths.h"
#include "platform/system/this_process.h"
#include "support/temp_folder.h"

#include <array>
#include <gtest/gtest.h>

namespace planner::test {
namespace {

constexpr std::chrono::seconds EndDeadline{20}; // that only a hang exceeds

/// This program once more, which runs the tests of that name.
std::unique_ptr<ChildProcess> startTest(const std::string& name) {
    return std::make_unique<ChildProcess>(programFolder() / SYSTEM_TESTS_NAME,
                                          std::vector<std::string>{"--gtest_also_run_disabled_tests",
                                                                   "--gtest_brief=1",
                                                                   "--gtest_filter=" + name});
}

TEST(ChildProcessTest, DISABLED_EndsWell) {}

TEST(ChildProcessTest, DISABLED_SleepsUntilItIsEnded) {
    const WakeUp never;
    waitForFirst(std::array{never.waitable()}, std::nullopt);
}

TEST(ChildProcessTest, ItsEndIsAwaitedAndTold) {
    const auto child = startTest("ChildProcessTest.DISABLED_EndsWell");
    EXPECT_EQ(waitForFirst(std::array{child->waitable()}, EndDeadline), 0U);
    ASSERT_TRUE(child->end());
    EXPECT_EQ(child->end()->number, 0);
    EXPECT_FALSE(child->end()->signalled);
}

TEST(ChildProcessTest, HasNotEndedAsLongAsItRuns) {
    const auto child = startTest("ChildProcessTest.DISABLED_SleepsUntilItIsEnded");
    EXPECT_FALSE(child->end());
    child->kill();
    EXPECT_EQ(waitForFirst(std::array{child->waitable()}, EndDeadline), 0U);
    ASSERT_TRUE(child->end());
    EXPECT_NE(child->end()->number, 0);
}

TEST(ChildProcessTest, AProgramThatIsMissingSaysSo) {
    const TempFolder folder;
    try {
        const ChildProcess child(pathOf(folder.path("none")), {});
        FAIL() << "started";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
}

TEST(ThisProcessTest, KnowsWhereItStands) {
    EXPECT_TRUE(std::filesystem::exists(programFolder() / SYSTEM_TESTS_NAME));
    EXPECT_GT(processNumber(), 0);
}

TEST(ThisProcessTest, ANewFileIsMadeOnce) {
    const TempFolder folder;
    const auto path = pathOf(folder.path("nuovo, perché no"));
    EXPECT_FALSE(createNewFile(path));
    EXPECT_EQ(std::filesystem::file_size(path), 0U);
    EXPECT_EQ(createNewFile(path), std::errc::file_exists);
}

TEST(ThisProcessTest, TemporaryFoldersAreNewAndNamedAsAsked) {
    const auto first = makeTemporaryFolder("planner-test-");
    const auto second = makeTemporaryFolder("planner-test-");
    EXPECT_NE(first, second);
    EXPECT_TRUE(textOf(first.filename()).starts_with("planner-test-"));
    EXPECT_TRUE(std::filesystem::is_empty(first));
    std::filesystem::remove(first);
    std::filesystem::remove(second);
}

TEST(ThisProcessTest, ATemporaryFolderThatCannotBeMadeSaysSo) {
    EXPECT_THROW(makeTemporaryFolder("none/planner-test-"), std::filesystem::filesystem_error);
}

TEST(PathTest, TextAndPathAreTheSame) {
    EXPECT_EQ(textOf(pathOf("studio perché no")), "studio perché no");
}

} // namespace
} // namespace planner::test
