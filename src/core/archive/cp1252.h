// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace planner {

/// The Unicode character of each Windows-1252 byte. The five bytes that the code page leaves undefined
/// stand for the control characters of the same number, so that all 256 bytes map both ways.
extern const std::array<char16_t, 256> Cp1252Characters;

/// Windows-1252 bytes as UTF-8.
std::string utf8FromCp1252(std::string_view bytes);

/// Bytes that stand for no visible character, those included that the code page leaves undefined.
bool isControlByte(char c);

/// The same as `utf8FromCp1252`, with a blank for each control byte.
std::string visibleFromCp1252(std::string_view bytes);

} // namespace planner
