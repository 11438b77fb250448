// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <cstdlib>
#include <iterator>

namespace planner::ipctest {

IpcTest::IpcTest() {
    setenv("XDG_RUNTIME_DIR", runtimeFolder().c_str(), 1);
}

int IpcTest::eventFiles() const {
    if (!std::filesystem::exists(eventFolder())) {
        return 0;
    }
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(eventFolder()), {}));
}

} // namespace planner::ipctest
