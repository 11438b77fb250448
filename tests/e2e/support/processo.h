// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/deadline.h"

#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace planner::e2e {

using Environment = std::map<std::string, std::string>;

/// The time zone of the scenarios: far from the tests' own, so that a mix-up shows.
inline constexpr std::chrono::hours HoursEast{14};

/// What every program of a scenario gets of the surroundings, whatever desktop the tests run on.
Environment plainEnvironment();

/// Where a program's standard error goes.
enum class Errors { Shown, Dropped, InOutput };

/// A program that the test has started. It is killed with the object and never outlives the test.
class Processo {
public:
    /// The first word is the program, looked for along the path. Exactly this environment is passed on.
    Processo(std::vector<std::string> words, const Environment& environment, Errors errors = Errors::Shown);
    /// Takes over a program that another program of the test has started. Its exit code is known if that one
    /// is gone by the end, and after `adoptOrphans` only; its output is not.
    explicit Processo(pid_t pid);
    virtual ~Processo();
    Processo(const Processo&) = delete;
    Processo& operator=(const Processo&) = delete;

    pid_t pid() const { return m_pid; }

    /// The exit code, or 128 + n when signal n ended it; nothing while it still runs after that time.
    std::optional<int> exitCode(std::chrono::milliseconds within = Deadline);
    bool endsWithin(std::chrono::milliseconds time) { return exitCode(time).has_value(); }

    /// The next line of its standard output, or the whole output up to its end. Throw at the deadline.
    std::string readLine();
    std::string readToEnd();

    void kill();
    /// Lets the program end in an orderly way, and kills it when it does not.
    void terminate();

private:
    bool readMore(std::chrono::steady_clock::time_point end);

    std::string m_program;
    pid_t m_pid = -1;
    int m_pidDescriptor = -1;
    int m_output = -1;
    std::string m_read; // from the output, not handed out yet
    std::optional<int> m_exitCode;
};

/// What the programs of the test leave running when they end becomes the test's own from here on.
void adoptOrphans();

/// What a program that runs to its end has left.
struct Esito {
    int exitCode;
    std::string output;
};

/// Runs a program to its end, without its standard error; throws when the end does not come by the deadline.
Esito runTool(const std::vector<std::string>& words, const Environment& environment);

} // namespace planner::e2e
