// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/this_process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace planner {

std::vector<std::string> programArguments(int argc, char** argv) {
    return {argv + std::min(argc, 1), argv + argc};
}

void keepStreamsPlain() {} // they are

long long processNumber() {
    return ::getpid();
}

std::filesystem::path programFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

bool screenIsNamed() {
    constexpr std::array names{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(names.begin(), names.end(), [](const char* name) {
        const char* value = std::getenv(name);
        return value != nullptr && *value != '\0';
    });
}

std::error_code createNewFile(const std::filesystem::path& path) {
    constexpr mode_t mode = 0666; // the user's umask has the last word
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0) {
        return {errno, std::generic_category()};
    }
    ::close(file);
    return {};
}

std::filesystem::path makeTemporaryFolder(const std::string& beginning) {
    std::string name = (std::filesystem::temp_directory_path() / (beginning + "XXXXXX")).string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::filesystem::filesystem_error("mkdtemp", name, {errno, std::generic_category()});
    }
    return name;
}

} // namespace planner
