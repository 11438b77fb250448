// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/windows/texts.h"

#include <array>
#include <windows.h>

namespace planner {

std::wstring wideText(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // never longer than UTF-8
    wide.resize(static_cast<std::size_t>(
        ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length)));
    return wide;
}

std::string utf8Text(std::wstring_view text) {
    constexpr std::size_t longest = 3; // bytes for one of its units
    const int length = static_cast<int>(text.size());
    std::string bytes(longest * text.size(), '\0');
    bytes.resize(static_cast<std::size_t>(::WideCharToMultiByte(
        CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

std::string errorText(unsigned long error) {
    std::array<wchar_t, 512> text{};
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                          error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    std::wstring_view line(text.data(), length);
    while (!line.empty() && (line.back() == L'\n' || line.back() == L'\r' || line.back() == L' ')) {
        line.remove_suffix(1);
    }
    return line.empty() ? "errore di sistema " + std::to_string(error) : utf8Text(line);
}

} // namespace planner
