// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/file_descriptor.h"

#include "ports/runtime_errors.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace planner {

namespace {

constexpr mode_t NewFileMode = 0666; // the user's umask has the last word

[[noreturn]] void throwLastError() {
    throw FileError(std::generic_category().message(errno));
}

/// Runs a system call again as long as signals interrupt it.
template <typename Call>
auto retry(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

} // namespace

FileDescriptor::FileDescriptor(const std::string& path, int flags)
    : m_descriptor(retry(
          [&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, NewFileMode); })) {
    if (m_descriptor < 0) {
        throwLastError();
    }
}

FileDescriptor::~FileDescriptor() {
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

std::uint64_t FileDescriptor::regularFileLength() const {
    struct stat status {};
    if (::fstat(m_descriptor, &status) != 0) {
        throwLastError();
    }
    if (!S_ISREG(status.st_mode)) {
        throw FileError("non è un file");
    }
    return static_cast<std::uint64_t>(status.st_size);
}

void FileDescriptor::refuseIfLocked() const {
    struct flock lock {};
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    const bool recordLocked = ::fcntl(m_descriptor, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    const bool fileLocked = ::flock(m_descriptor, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    // Where the file system knows no locks both calls fail otherwise, and the file counts as free.
    if (recordLocked || fileLocked) {
        throw FileError("il file è bloccato da un altro programma");
    }
}

std::size_t FileDescriptor::readAll(std::span<char> out) const {
    std::size_t total = 0;
    while (total < out.size()) {
        const auto rest = out.subspan(total);
        const ssize_t count = retry([&] { return ::read(m_descriptor, rest.data(), rest.size()); });
        if (count < 0) {
            throwLastError();
        }
        if (count == 0) {
            break;
        }
        total += static_cast<std::size_t>(count);
    }
    return total;
}

void FileDescriptor::writeAllAtStart(std::span<const char> bytes) const {
    const ssize_t count = retry([&] { return ::pwrite(m_descriptor, bytes.data(), bytes.size(), 0); });
    if (count < 0) {
        throwLastError();
    }
    if (static_cast<std::size_t>(count) != bytes.size()) {
        throw FileError("scrittura incompleta");
    }
}

void FileDescriptor::putBack(std::span<const char> start, std::uint64_t length) const {
    const bool whole = ::pwrite(m_descriptor, start.data(), start.size(), 0) >= 0;
    if (whole && regularFileLength() > length) {
        retry([&] { return ::ftruncate(m_descriptor, static_cast<off_t>(length)); });
    }
}

void FileDescriptor::syncAndClose() {
    if (retry([&] { return ::fsync(m_descriptor); }) != 0) {
        throwLastError();
    }
    if (::close(std::exchange(m_descriptor, -1)) != 0) {
        throwLastError();
    }
}

} // namespace planner
