// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "fault.h"
#include "ipc_fixture.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace planner::ipctest {
namespace {

// Each call of the system that the library makes fails once, each time that it makes it.
class FaultTest : public IpcTest {};

constexpr int Fault = EIO;

struct FaultyCall {
    const char* name;
    int error; // that the calls of the library must then fail with; 0 when they need not fail
};

// Some need not fail: a question about a lock that is not answered counts as a yes, a folder that cannot be
// looked at as another owner's, and after a signal was taken nothing can spoil it any more.
constexpr std::array<FaultyCall, 12> FaultyCalls{{{"open", Fault},
                                                  {"openat", Fault},
                                                  {"mkdirat", Fault},
                                                  {"fcntl", 0},
                                                  {"flock", 0},
                                                  {"mmap", Fault},
                                                  {"write", Fault},
                                                  {"pread", Fault},
                                                  {"fchmod", Fault},
                                                  {"unlinkat", 0},
                                                  {"getrandom", 0},
                                                  {"fstat", 0}}};

using LibraryCall = int (*)(const char*);

enum Outcome { NeverFailed = 0, FailedWell = 1, Succeeded = 2, FailedBadly = 3 };

// Whether a call that met the fault ended as it may: done, or failed with an error number, and able to be
// done when it is tried again.
int callWithFault(LibraryCall call, const FaultyCall& faulty, int nth) {
    alarm(10);
    failCall(faulty.name, nth, Fault);
    errno = 0;
    const int result = call("EV");
    const int error = errno;
    if (!hasFailed()) {
        return NeverFailed;
    }
    if (result == 1) {
        return faulty.error == 0 ? Succeeded : FailedBadly;
    }
    const bool told = error != 0 && (faulty.error == 0 || error == faulty.error);
    return told && call("EV") == 1 ? FailedWell : FailedBadly;
}

// How often the fault came about.
int sweep(const std::function<int(int nth)>& attempt) {
    int outcome = NeverFailed;
    int nth = 0;
    do {
        outcome = attempt(++nth);
        EXPECT_NE(outcome, FailedBadly) << "time " << nth;
    } while (outcome != NeverFailed && outcome != FailedBadly);
    return nth - 1;
}

TEST_F(FaultTest, CreationFailsCleanly) {
    int faults = 0;
    for (const FaultyCall& faulty : FaultyCalls) {
        SCOPED_TRACE(faulty.name);
        faults += sweep([&](int nth) {
            std::filesystem::remove_all(eventFolder());
            return Child([&] { return callWithFault(TvIpcCreazioneEvento, faulty, nth); })
                .exitCode()
                .value_or(FailedBadly);
        });
    }
    EXPECT_GT(faults, 10);
}

// What a creator left that died is in the way.
TEST_F(FaultTest, TakingOverFailsCleanly) {
    int faults = 0;
    for (const FaultyCall& faulty : FaultyCalls) {
        SCOPED_TRACE(faulty.name);
        if (faulty.name == std::string_view("mkdirat")) {
            continue; // the folder is there
        }
        faults += sweep([&](int nth) {
            std::filesystem::remove_all(eventFolder());
            Child([] { return TvIpcCreazioneEvento("EV"); }).exitCode();
            return Child([&] { return callWithFault(TvIpcCreazioneEvento, faulty, nth); })
                .exitCode()
                .value_or(FailedBadly);
        });
    }
    EXPECT_GT(faults, 10);
}

TEST_F(FaultTest, WaitFailsCleanly) {
    int faults = 0;
    for (const FaultyCall& faulty : FaultyCalls) {
        SCOPED_TRACE(faulty.name);
        faults += sweep([&](int nth) {
            std::filesystem::remove_all(eventFolder());
            Actor planner;
            EXPECT_EQ(planner.create("EV"), 1);
            EXPECT_EQ(planner.set("EV"), 1);
            return Child([&] { return callWithFault(TvIpcWaitEvento, faulty, nth); })
                .exitCode()
                .value_or(FailedBadly);
        });
    }
    EXPECT_GT(faults, 5);
}

TEST_F(FaultTest, SignalFailsCleanly) {
    Actor planner;
    ASSERT_EQ(planner.create("EV"), 1);
    int faults = 0;
    for (const FaultyCall& faulty : FaultyCalls) {
        SCOPED_TRACE(faulty.name);
        faults += sweep([&](int nth) {
            return Child([&] { return callWithFault(TvIpcSetEvento, faulty, nth); })
                .exitCode()
                .value_or(FailedBadly);
        });
    }
    EXPECT_GT(faults, 5);
}

TEST_F(FaultTest, RemovalIsDoneWhateverFails) {
    for (const FaultyCall& faulty : FaultyCalls) {
        SCOPED_TRACE(faulty.name);
        sweep([&](int nth) {
            return Child([&] {
                       TvIpcCreazioneEvento("EV");
                       failCall(faulty.name, nth, Fault);
                       if (TvIpcRimozioneEvento("EV") != 1) {
                           return FailedBadly;
                       }
                       return hasFailed() ? Succeeded : NeverFailed;
                   })
                .exitCode()
                .value_or(FailedBadly);
        });
    }
    // Whatever was left under the name does not hinder the next ones.
    Actor planner;
    Actor host;
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
}

TEST_F(FaultTest, NoMemory) {
    if (PLANNER_SANITIZED != 0) {
        GTEST_SKIP() << "the sanitizers keep the heap to themselves";
    }
    constexpr FaultyCall noMemory{"calloc", 0};
    for (const LibraryCall call : {TvIpcCreazioneEvento, TvIpcSetEvento, TvIpcWaitEvento}) {
        std::filesystem::remove_all(eventFolder());
        Actor planner;
        if (call != TvIpcCreazioneEvento) {
            ASSERT_EQ(planner.create("EV"), 1);
            ASSERT_EQ(planner.set("EV"), 1);
        }
        EXPECT_EQ(Child([&] {
                      failCall(noMemory.name, 1, ENOMEM);
                      const bool failed = call("EV") == 0 && errno == ENOMEM;
                      return failed && call("EV") == 1 ? 0 : 1;
                  }).exitCode(),
                  0);
    }
}

// Where there is no memory to remember it, a refusal is still told.
TEST_F(FaultTest, NoMemoryForARefusal) {
    if (PLANNER_SANITIZED != 0) {
        GTEST_SKIP() << "the sanitizers keep the heap to themselves";
    }
    Actor planner;
    ASSERT_EQ(planner.create("EV"), 1);
    EXPECT_EQ(Child([] {
                  failCall("calloc", 1, ENOMEM);
                  return TvIpcCreazioneEvento("EV") == 0 && errno == EADDRINUSE ? 0 : 1;
              }).exitCode(),
              0);
}

// The disk has room for half of an event.
TEST_F(FaultTest, EventThatCannotBeWrittenWhole) {
    EXPECT_EQ(Child([] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  rlimit usual{};
                  getrlimit(RLIMIT_FSIZE, &usual);
                  const rlimit half{16, usual.rlim_max};
                  setrlimit(RLIMIT_FSIZE, &half);
                  const bool refused = TvIpcCreazioneEvento("EV") == 0 && errno == ENOSPC;
                  setrlimit(RLIMIT_FSIZE, &usual);
                  return refused ? 0 : 1;
              }).exitCode(),
              0);
    EXPECT_EQ(eventFiles(), 0);
}

// One descriptor after the other is missing.
TEST_F(FaultTest, EveryNumberOfFreeDescriptors) {
    Actor planner;
    ASSERT_EQ(planner.create("THEIRS"), 1);
    const int outcome = Child([] {
                            const int used = openDescriptors();
                            for (rlim_t free = 0;; ++free) {
                                const rlimit limit{static_cast<rlim_t>(used) + free, 4096};
                                setrlimit(RLIMIT_NOFILE, &limit);
                                const bool created = TvIpcCreazioneEvento("EV") == 1;
                                if (!created && errno != EMFILE) {
                                    return 1;
                                }
                                if (created && TvIpcSetEvento("THEIRS") == 1) {
                                    return 0;
                                }
                            }
                        })
                            .exitCode()
                            .value_or(2);
    EXPECT_EQ(outcome, 0);
}

} // namespace
} // namespace planner::ipctest
