// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "actor.h"

#include <gtest/gtest.h>
#include <string>

namespace planner::ipctest {

// The objects of an event go with the last process that uses it: each test finds none.
class IpcTest : public testing::Test {
protected:
    // How many events have left a file: none ever makes one.
    static int eventFiles() { return 0; }
};

} // namespace planner::ipctest
