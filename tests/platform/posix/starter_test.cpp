// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/starter.h"
#include "support/end_child.h"

#include <array>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace planner::test {
namespace {

constexpr int ADayAtMost = 24 * 3600 * 1000; // milliseconds, for what must come

bool isReadable(const FileDescriptor& descriptor, int milliseconds) {
    pollfd waiting{descriptor.get(), POLLIN, 0};
    return ::poll(&waiting, 1, milliseconds) == 1;
}

void say(int pipe, char word) {
    if (::write(pipe, &word, 1) != 1) {
        endChild(3);
    }
}

/// Watches its starter and says what it sees: 'w' it lives, 'g' it is gone.
[[noreturn]] void watch(int told) {
    const FileDescriptor starter = watchStarter();
    say(told, isReadable(starter, 0) ? 'x' : 'w');
    say(told, isReadable(starter, ADayAtMost) ? 'g' : 'x');
    endChild(0);
}

char hear(int pipe) {
    char word = ' ';
    EXPECT_EQ(::read(pipe, &word, 1), 1);
    return word;
}

TEST(StarterTest, TheDescriptorBecomesReadableWhenTheStarterIsGone) {
    std::array<int, 2> told{};
    std::array<int, 2> allowed{}; // the starter ends when this is closed
    ASSERT_EQ(::pipe(told.data()), 0);
    ASSERT_EQ(::pipe(allowed.data()), 0);
    const pid_t starter = ::fork();
    if (starter == 0) {
        ::close(allowed[1]);
        if (::fork() == 0) {
            watch(told[1]);
        }
        char word = ' ';
        endChild(static_cast<int>(::read(allowed[0], &word, 1)));
    }
    EXPECT_EQ(hear(told[0]), 'w');
    ::close(allowed[1]);
    EXPECT_EQ(hear(told[0]), 'g');
    ::waitpid(starter, nullptr, 0);
    for (const int descriptor : {told[0], told[1], allowed[0]}) {
        ::close(descriptor);
    }
}

} // namespace
} // namespace planner::test
