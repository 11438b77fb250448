// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <cstdlib>
#include <iterator>
#include <stdexcept>

namespace planner::ipctest {

IpcTest::IpcTest() {
    std::string path = std::filesystem::temp_directory_path() / "ipc-test-XXXXXX";
    if (mkdtemp(path.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    m_folder = path;
    setenv("XDG_RUNTIME_DIR", path.c_str(), 1);
}

IpcTest::~IpcTest() {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

int IpcTest::eventFiles() const {
    if (!std::filesystem::exists(eventFolder())) {
        return 0;
    }
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(eventFolder()), {}));
}

} // namespace planner::ipctest
