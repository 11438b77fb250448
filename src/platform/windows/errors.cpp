// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/windows/errors.h"

#include <windows.h>

namespace planner {

std::error_code errorCode(unsigned long error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return std::make_error_code(std::errc::no_such_file_or_directory);
    case ERROR_ACCESS_DENIED:
    case ERROR_BAD_EXE_FORMAT:
        return std::make_error_code(std::errc::permission_denied);
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return std::make_error_code(std::errc::file_exists);
    default:
        return {static_cast<int>(error), std::system_category()};
    }
}

void throwLastError() {
    throw std::system_error(errorCode(::GetLastError()));
}

} // namespace planner
