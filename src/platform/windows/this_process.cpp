// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/this_process.h"

#include "platform/windows/errors.h"
#include "platform/windows/texts.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <random>
#include <shellapi.h>
#include <windows.h>

namespace planner {

std::vector<std::string> programArguments(int, char**) {
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; words != nullptr && i < count; ++i) {
        arguments.push_back(utf8Text(words[i]));
    }
    ::LocalFree(words);
    return arguments;
}

void keepStreamsPlain() {
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
    ::SetConsoleOutputCP(CP_UTF8);
}

long long processNumber() {
    return ::GetCurrentProcessId();
}

std::filesystem::path programFolder() {
    std::array<wchar_t, 32768> path{};
    const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return std::filesystem::path(std::wstring_view(path.data(), length)).parent_path();
}

bool screenIsNamed() {
    return true; // there always is one
}

std::error_code createNewFile(const std::filesystem::path& path) {
    const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                      nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return errorCode(::GetLastError());
    }
    ::CloseHandle(file);
    return {};
}

std::filesystem::path makeTemporaryFolder(const std::string& beginning) {
    std::random_device random;
    const std::filesystem::path all = std::filesystem::temp_directory_path(); // of the user alone
    std::filesystem::path folder;
    do { // until a name is free
        folder = all / (beginning + std::to_string(random()));
    } while (!std::filesystem::create_directory(folder));
    return folder;
}

} // namespace planner
