// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_file_system.h"

#include "platform/posix/file_descriptor.h"
#include "platform/posix/native_path.h"
#include "platform/system/replace_start.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace planner {

namespace {

class PosixInputFile : public InputFile {
public:
    explicit PosixInputFile(FileDescriptor file)
        : m_file(std::move(file)), m_length(m_file.regularFileLength()) {
        m_file.refuseIfLocked();
    }
    std::uint64_t length() const override { return m_length; }
    std::size_t read(std::span<char> out) override { return m_file.readAll(out); }

private:
    FileDescriptor m_file;
    std::uint64_t m_length;
};

/// What stands at a path; a folder is no file.
enum class Sight { file, none, unknown };

Sight lookAt(const std::string& path) {
    struct stat status {};
    if (::stat(nativePath(path).c_str(), &status) == 0) {
        return S_ISDIR(status.st_mode) ? Sight::none : Sight::file;
    }
    return errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG ? Sight::none : Sight::unknown;
}

} // namespace

std::string nativePath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

bool SystemFileSystem::fileExists(const std::string& path) const {
    return lookAt(path) == Sight::file;
}

bool SystemFileSystem::isMissing(const std::string& path) const {
    return lookAt(path) == Sight::none;
}

bool SystemFileSystem::deleteFile(const std::string& path) {
    return ::unlink(nativePath(path).c_str()) == 0;
}

std::unique_ptr<InputFile> SystemFileSystem::openForReading(const std::string& path) const {
    return std::make_unique<PosixInputFile>(FileDescriptor(nativePath(path), O_RDONLY));
}

std::size_t SystemFileSystem::readStart(const std::string& path, std::span<char> out) {
    FileDescriptor file(nativePath(path), O_RDWR | O_CREAT);
    file.regularFileLength();
    return file.readAll(out);
}

std::size_t SystemFileSystem::peekStart(const std::string& path, std::span<char> out) {
    const FileDescriptor file(nativePath(path), O_RDONLY);
    file.regularFileLength();
    return file.readAll(out);
}

void SystemFileSystem::writeStart(const std::string& path, std::span<const char> bytes) {
    FileDescriptor file(nativePath(path), O_RDWR | O_CREAT);
    replaceStart(file, file.regularFileLength(), bytes);
}

} // namespace planner
