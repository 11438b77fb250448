// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_file_system.h"

#include "platform/system/replace_start.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/texts.h"

#include <windows.h>

namespace planner {

namespace {

class WindowsInputFile : public InputFile {
public:
    explicit WindowsInputFile(const std::string& path)
        : m_file(path, FileUse::read), m_length(m_file.length()) {}
    std::uint64_t length() const override { return m_length; }
    std::size_t read(std::span<char> out) override { return m_file.readAll(out); }

private:
    FileHandle m_file;
    std::uint64_t m_length;
};

/// What stands at a path; a folder is no file.
enum class Sight { file, none, unknown };

Sight lookAt(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(wideText(path).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES) {
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Sight::none : Sight::file;
    }
    const DWORD error = ::GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME ||
                   error == ERROR_FILENAME_EXCED_RANGE
               ? Sight::none
               : Sight::unknown;
}

} // namespace

bool SystemFileSystem::fileExists(const std::string& path) const {
    return lookAt(path) == Sight::file;
}

bool SystemFileSystem::isMissing(const std::string& path) const {
    return lookAt(path) == Sight::none;
}

bool SystemFileSystem::deleteFile(const std::string& path) {
    return ::DeleteFileW(wideText(path).c_str()) != 0;
}

std::unique_ptr<InputFile> SystemFileSystem::openForReading(const std::string& path) const {
    return std::make_unique<WindowsInputFile>(path);
}

std::size_t SystemFileSystem::readStart(const std::string& path, std::span<char> out) {
    return FileHandle(path, FileUse::readAndWrite).readAll(out);
}

std::size_t SystemFileSystem::peekStart(const std::string& path, std::span<char> out) {
    return FileHandle(path, FileUse::read).readAll(out);
}

void SystemFileSystem::writeStart(const std::string& path, std::span<const char> bytes) {
    FileHandle file(path, FileUse::readAndWrite);
    replaceStart(file, file.length(), bytes);
}

} // namespace planner
