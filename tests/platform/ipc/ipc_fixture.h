// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "actor.h"
#include "support/temp_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace planner::ipctest {

// Gives each test a run-time folder of its own, so that neither the user's events nor another
// test's are touched.
class IpcTest : public testing::Test {
protected:
    IpcTest();

    const std::filesystem::path& runtimeFolder() const { return m_folder.folder(); }
    std::filesystem::path eventFolder() const { return m_folder.path("tavterm-ipc"); }
    std::filesystem::path eventFile(const std::string& name) const { return eventFolder() / ("ev-" + name); }

    // How many events have left a file.
    int eventFiles() const;

private:
    test::TempFolder m_folder;
};

} // namespace planner::ipctest
