// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "faults/support/cycle.h"
#include "faults/support/sweep.h"
#include "support/long_form.h"

#include <gmock/gmock.h>
#include <map>

namespace planner::faults {

namespace {

using testing::IsEmpty;

/// What each call may come to; the first one is the likeliest. One that a signal has interrupted is not
/// interrupted for ever.
const std::vector<std::string>& faultsOf(const std::string& call) {
    static const std::map<std::string, std::vector<std::string>> faults{
        {"openat", {"error=EMFILE", "error=EACCES", "error=EIO", "error=EINTR"}},
        {"newfstatat", {"error=EIO", "error=EACCES"}},
        {"read", {"error=EIO", "error=EINTR"}},
        {"pwrite64", {"error=ENOSPC", "error=EIO", "error=EINTR", "retval=60"}},
        {"write", {"error=ENOSPC", "error=EIO"}},
        {"fsync", {"error=EIO", "error=EINTR"}},
        {"close", {"error=EIO", "error=EINTR"}},
        {"mkdirat", {"error=ENOSPC", "error=EACCES"}},
        {"flock", {"error=ENOLCK", "error=EINTR"}},
        {"unlink", {"error=EACCES", "error=EIO"}},
        {"unlinkat", {"error=EACCES", "error=EIO"}},
        {"mmap", {"error=ENOMEM"}},
        {"fcntl", {"error=ENOLCK", "error=EAGAIN"}},
    };
    static const std::vector<std::string> others{"error=EIO"};
    const auto found = faults.find(call);
    return found == faults.end() ? others : found->second;
}

std::vector<Guasto> faultsAt(const Chiamata& call) {
    std::vector<std::string> faults = faultsOf(call.name);
    faults.resize(test::inForm<std::size_t>(1, faults.size()));
    std::vector<Guasto> all;
    for (const std::string& what : faults) {
        all.push_back({call, what, false});
        if (what != "error=EINTR") {
            all.push_back({call, what, true});
        }
    }
    return all;
}

class FaultSweep : public testing::TestWithParam<Modo> {};

} // namespace

TEST_P(FaultSweep, NoFailingSystemCallLeavesTheHostWithoutAnEndToItsWait) {
    std::vector<Caso> cases;
    for (const Chiamata& call : Ufficio(GetParam()).calls()) {
        for (const Guasto& guasto : faultsAt(call)) {
            cases.push_back({guasto.text(), [guasto] {
                                 const Ufficio ufficio(GetParam());
                                 return ufficio.brokenBy(ufficio.cycleWith(guasto), guasto.fromThenOn);
                             }});
        }
    }
    EXPECT_GE(cases.size(), 20U);
    EXPECT_THAT(sweep(cases), IsEmpty()) << "of " << cases.size() << " cases";
}

INSTANTIATE_TEST_SUITE_P(EveryCall, FaultSweep, testing::ValuesIn(Modi),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace planner::faults
