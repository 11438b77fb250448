// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/windows/file_handle.h"

#include "platform/windows/texts.h"
#include "ports/runtime_errors.h"

#include <utility>
#include <windows.h>

namespace planner {

namespace {

[[noreturn]] void throwFileError() {
    const DWORD error = ::GetLastError();
    if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION) {
        throw FileError("il file è bloccato da un altro programma");
    }
    throw FileError(errorText(error));
}

/// Others may read, write and delete the file meanwhile.
void* open(const std::string& path, FileUse use) {
    const bool reads = use == FileUse::read;
    return ::CreateFileW(wideText(path).c_str(), reads ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE,
                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                         reads ? OPEN_EXISTING : OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool writeAtStart(void* handle, std::span<const char> bytes, DWORD& written) {
    OVERLAPPED start{};
    return ::WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, &start) != 0;
}

} // namespace

FileHandle::FileHandle(const std::string& path, FileUse use) : m_handle(open(path, use)) {
    if (m_handle == INVALID_HANDLE_VALUE) {
        throwFileError();
    }
    if (::GetFileType(m_handle) != FILE_TYPE_DISK) {
        ::CloseHandle(m_handle);
        throw FileError("non è un file");
    }
}

FileHandle::~FileHandle() {
    if (m_handle != INVALID_HANDLE_VALUE) {
        ::CloseHandle(m_handle);
    }
}

FileHandle::FileHandle(FileHandle&& other) noexcept
    : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE)) {}

std::uint64_t FileHandle::length() const {
    LARGE_INTEGER length{};
    if (::GetFileSizeEx(m_handle, &length) == 0) {
        throwFileError();
    }
    return static_cast<std::uint64_t>(length.QuadPart);
}

std::size_t FileHandle::readAll(std::span<char> out) const {
    std::size_t total = 0;
    while (total < out.size()) {
        const auto rest = out.subspan(total);
        DWORD count = 0;
        if (::ReadFile(m_handle, rest.data(), static_cast<DWORD>(rest.size()), &count, nullptr) == 0) {
            throwFileError();
        }
        if (count == 0) {
            break;
        }
        total += count;
    }
    return total;
}

void FileHandle::writeAllAtStart(std::span<const char> bytes) const {
    DWORD written = 0;
    if (!writeAtStart(m_handle, bytes, written)) {
        throwFileError();
    }
    if (written != bytes.size()) {
        throw FileError("scrittura incompleta");
    }
}

void FileHandle::putBack(std::span<const char> start, std::uint64_t length) const {
    DWORD written = 0;
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(length);
    if (writeAtStart(m_handle, start, written) && this->length() > length &&
        ::SetFilePointerEx(m_handle, end, nullptr, FILE_BEGIN) != 0) {
        ::SetEndOfFile(m_handle);
    }
}

void FileHandle::syncAndClose() {
    if (::FlushFileBuffers(m_handle) == 0 ||
        ::CloseHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE)) == 0) {
        throwFileError();
    }
}

} // namespace planner
