// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/temp_folder.h"
#include "tools/support/run_program.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace planner::toolstest {

/// Runs planner-host against the scripted planner, in folders of the test's own.
class HostTest : public testing::Test {
protected:
    HostTest();

    /// planner-host with these options; the planner answers the script. See fake_planner.cpp.
    RunResult host(const std::string& script, std::vector<std::string> options,
                   const std::string& interruptAfter = {});

    /// Sets a variable of the fake planner's for the runs to come.
    void setVariable(const std::string& name, const std::string& value) { m_variables[name] = value; }

    /// What the planner was asked, one line per request.
    std::vector<std::string> diary() const;

    /// Where planner-host makes its temporary folders.
    std::filesystem::path temporaryParent() const { return m_folder.folder() / "tmp"; }
    /// Where the events live.
    std::filesystem::path runtimeFolder() const { return m_folder.folder() / "run"; }
    /// A folder for whatever the test needs.
    const std::filesystem::path& folder() const { return m_folder.folder(); }

private:
    test::TempFolder m_folder;
    std::map<std::string, std::string> m_variables;
};

/// The same in both ways of talking to the planner; the parameter is the value of --modo.
class HostModeTest : public HostTest, public testing::WithParamInterface<const char*> {
protected:
    /// For the year 2006 and a small office.
    RunResult hostInMode(const std::string& script, std::vector<std::string> options = {},
                         const std::string& interruptAfter = {});
};

} // namespace planner::toolstest
