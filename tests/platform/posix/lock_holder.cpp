// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/lock_holder.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace planner::test {

namespace {

struct Pipe {
    std::array<int, 2> ends{-1, -1};

    Pipe() {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe");
        }
    }
    int reader() const { return ends[0]; }
    int writer() const { return ends[1]; }
};

bool recordLock(int file, int command, short type) {
    struct flock range {};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    return ::fcntl(file, command, &range) == 0;
}

bool take(int file, Lock lock) {
    switch (lock) {
    case Lock::flockExclusive:
        return ::flock(file, LOCK_EX) == 0;
    case Lock::flockShared:
        return ::flock(file, LOCK_SH) == 0;
    case Lock::recordWrite:
        return recordLock(file, F_SETLK, F_WRLCK);
    case Lock::recordRead:
        return recordLock(file, F_SETLK, F_RDLCK);
    case Lock::ofdWrite:
        return recordLock(file, F_OFD_SETLK, F_WRLCK);
    }
    return false;
}

[[noreturn]] void holdUntilReleased(const char* path, Lock lock, const Pipe& ready, const Pipe& release) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that dies leaves no locker behind
    ::close(release.writer());
    const int file = ::open(path, O_RDWR | O_CLOEXEC);
    const char held = file >= 0 && take(file, lock) ? 'y' : 'n';
    char end = 0;
    const bool told = ::write(ready.writer(), &held, 1) == 1;
    const bool released = told && ::read(release.reader(), &end, 1) == 0;
    ::_exit(released ? 0 : 1);
}

} // namespace

LockHolder::LockHolder(const std::string& path, Lock lock) {
    const Pipe ready;
    const Pipe release;
    m_child = ::fork();
    if (m_child == 0) {
        holdUntilReleased(path.c_str(), lock, ready, release);
    }
    ::close(ready.writer());
    ::close(release.reader());
    m_release = release.writer();
    char held = 0;
    const bool told = m_child > 0 && ::read(ready.reader(), &held, 1) == 1;
    ::close(ready.reader());
    if (!told || held != 'y') {
        throw std::runtime_error("the lock cannot be held");
    }
}

LockHolder::~LockHolder() {
    ::close(m_release);
    ::waitpid(m_child, nullptr, 0);
}

} // namespace planner::test
