// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/end_signals.h"
#include "platform/system/system_file_system.h"
#include "ports/runtime_errors.h"
#include "support/in_child.h"
#include "support/temp_folder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/resource.h>

namespace planner::test {
namespace {

bool isReadable(const FileDescriptor& descriptor) {
    pollfd waiting{descriptor.get(), POLLIN, 0};
    return ::poll(&waiting, 1, 0) == 1;
}

class EndSignalsTest : public testing::TestWithParam<int> {};

TEST_P(EndSignalsTest, ASignalIsHeldAndMakesTheDescriptorReadable) {
    const int code = inChild([] {
        const FileDescriptor signals = holdEndSignals();
        if (isReadable(signals)) {
            return 1;
        }
        std::raise(GetParam());
        return isReadable(signals) ? 0 : 2;
    });
    EXPECT_EQ(code, 0);
}

TEST_P(EndSignalsTest, ASignalThatTheStarterHadIgnoredStaysIgnored) {
    const int code = inChild([] {
        std::signal(GetParam(), SIG_IGN);
        const FileDescriptor signals = holdEndSignals();
        std::raise(GetParam());
        return isReadable(signals) ? 1 : 0;
    });
    EXPECT_EQ(code, 0);
}

TEST_P(EndSignalsTest, WithoutADescriptorASignalEndsTheProcessAsEver) {
    const int code = inChild([] {
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_NOFILE, &none);
        const FileDescriptor signals = holdEndSignals();
        std::raise(GetParam());
        return signals.get() < 0 ? 1 : 2;
    });
    EXPECT_EQ(code, 128 + GetParam());
}

INSTANTIATE_TEST_SUITE_P(Ends, EndSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& signal) { return std::string("SIG") + sigabbrev_np(signal.param); });

/// Writes a record where the user's limit lets only ten bytes through; 0 when that fails.
int writeBeyondLimit(const std::string& path) {
    return inChild([&path] {
        failBeyondFileLimit();
        rlimit usual{};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tenBytes{10, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tenBytes);
        int code = 1;
        try {
            SystemFileSystem().writeStart(path, std::string(121, 'x'));
        } catch (const FileError&) {
            code = 0;
        }
        ::setrlimit(RLIMIT_FSIZE, &usual);
        return code;
    });
}

TEST(FileLimitTest, AWriteBeyondTheUsersLimitFailsInsteadOfEndingTheProcess) {
    const TempFolder folder;
    EXPECT_EQ(writeBeyondLimit(folder.path("trans.dat")), 0);
}

TEST(FileLimitTest, ARecordIsNeverLeftHalfWritten) {
    const TempFolder folder;
    for (const std::size_t length : {std::size_t{0}, std::size_t{5}, std::size_t{121}, std::size_t{200}}) {
        const std::string before(length, 'o');
        folder.write("trans.dat", before);
        EXPECT_EQ(writeBeyondLimit(folder.path("trans.dat")), 0);
        EXPECT_EQ(folder.read("trans.dat"), before) << length;
    }
}

} // namespace
} // namespace planner::test
