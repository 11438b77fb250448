// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/inamovibile.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace planner::e2e {

namespace {

bool mark(const std::string& path, bool immutable) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    bool done = file >= 0 && ::ioctl(file, FS_IOC_GETFLAGS, &flags) == 0;
    flags = immutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    done = done && ::ioctl(file, FS_IOC_SETFLAGS, &flags) == 0;
    if (file >= 0) {
        ::close(file);
    }
    return done;
}

} // namespace

Inamovibile::Inamovibile(std::string path) : m_path(std::move(path)), m_holds(mark(m_path, true)) {}

Inamovibile::~Inamovibile() {
    release();
}

void Inamovibile::release() {
    if (std::exchange(m_holds, false)) {
        mark(m_path, false);
    }
}

} // namespace planner::e2e
