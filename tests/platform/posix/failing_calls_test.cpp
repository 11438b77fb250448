// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fault.h"
#include "platform/posix/end_signals.h"
#include "platform/posix/file_descriptor.h"
#include "platform/system/child_process.h"
#include "platform/system/system_file_system.h"
#include "platform/system/waiting.h"
#include "ports/runtime_errors.h"
#include "support/temp_folder.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <system_error>

namespace planner::test {
namespace {

/// Each call of the system fails once, in its turn.
class FailingCallsTest : public testing::Test {
protected:
    void SetUp() override { folder.write("file", "before"); }
    ~FailingCallsTest() override { failCall("", 0, 0); }

    /// What a command says of a failure; empty when it succeeds.
    template <typename Command>
    std::string trouble(Command command) {
        try {
            command();
        } catch (const FileError& error) {
            return error.what();
        }
        return {};
    }
    std::string write() {
        return trouble([&] { files.writeStart(path, std::string("AFTER!")); });
    }
    std::string read() {
        return trouble([&] {
            std::array<char, 6> bytes{};
            files.openForReading(path)->read(bytes);
        });
    }
    /// The numbers of this process's children.
    static std::string children() {
        std::ifstream file("/proc/thread-self/children");
        EXPECT_TRUE(file.is_open());
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static std::string wordsOf(int error) { return std::generic_category().message(error); }

    TempFolder folder;
    SystemFileSystem files;
    std::string path = folder.path("file");
};

TEST_F(FailingCallsTest, AWriteSaysWhichCallFailed) {
    for (const char* call : {"open", "fstat", "read", "pwrite", "fsync", "close"}) {
        SCOPED_TRACE(call);
        failCall(call, 1, EIO);
        EXPECT_EQ(write(), wordsOf(EIO));
        EXPECT_TRUE(hasFailed());
        EXPECT_EQ(write(), "") << "the next time it succeeds";
    }
}

TEST_F(FailingCallsTest, AReadSaysWhichCallFailed) {
    for (const char* call : {"open", "fstat", "read"}) {
        SCOPED_TRACE(call);
        failCall(call, 1, EIO);
        EXPECT_EQ(read(), wordsOf(EIO));
        EXPECT_TRUE(hasFailed());
        EXPECT_EQ(read(), "") << "the next time it succeeds";
    }
}

TEST_F(FailingCallsTest, ACallThatASignalInterruptsIsMadeAgain) {
    for (const char* call : {"open", "read", "pwrite", "fsync"}) {
        SCOPED_TRACE(call);
        failCall(call, 1, EINTR);
        EXPECT_EQ(write(), "");
        EXPECT_TRUE(hasFailed());
    }
    EXPECT_EQ(folder.read("file"), "AFTER!");
}

TEST_F(FailingCallsTest, WhereTheFileSystemKnowsNoLocksAFileCountsAsFree) {
    for (const char* call : {"fcntl", "flock"}) {
        SCOPED_TRACE(call);
        failCall(call, 1, ENOLCK);
        EXPECT_EQ(read(), "");
        EXPECT_TRUE(hasFailed());
    }
}

TEST_F(FailingCallsTest, ADescriptorThatTakesAnothersPlaceClosesItsOwn) {
    FileDescriptor kept(path, O_RDONLY);
    const int first = kept.get();
    kept = FileDescriptor(path, O_RDONLY);
    EXPECT_NE(kept.get(), first);
    EXPECT_EQ(::fcntl(first, F_GETFD, nullptr), -1);
    EXPECT_EQ(kept.regularFileLength(), 6u);
}

TEST_F(FailingCallsTest, WithoutADescriptorForThemNoSignalIsHeld) {
    failCall("signalfd", 1, EMFILE);
    EXPECT_LT(holdEndSignals().get(), 0);
    EXPECT_TRUE(hasFailed());
    sigset_t held;
    ASSERT_EQ(::pthread_sigmask(SIG_BLOCK, nullptr, &held), 0);
    EXPECT_EQ(sigismember(&held, SIGTERM), 0);
}

TEST_F(FailingCallsTest, WishesToEndThatCannotBeReceivedSaySo) {
    failCall("signalfd", 1, EMFILE);
    EXPECT_THROW(EndWishes(), std::system_error);
    EXPECT_TRUE(hasFailed());
}

TEST_F(FailingCallsTest, AChildThatCannotBeWatchedIsEndedAndSaysSo) {
    const std::string before = children();
    failCall("pidfd_open", 1, EMFILE);
    EXPECT_THROW(ChildProcess("/bin/sleep", {"60"}), std::system_error);
    EXPECT_TRUE(hasFailed());
    EXPECT_EQ(children(), before);
}

} // namespace
} // namespace planner::test
