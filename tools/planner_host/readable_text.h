// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/cp1252.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace planner {

/// Field bytes as UTF-8 for the terminal; control characters, which would move its cursor, become dots.
inline std::string testoLeggibile(std::string_view bytes) {
    std::string visible(bytes);
    std::replace_if(
        visible.begin(), visible.end(),
        [](char byte) {
            const char16_t character = Cp1252Characters[static_cast<unsigned char>(byte)];
            return character < 0x20 || (character >= 0x7F && character < 0xA0);
        },
        '.');
    return utf8FromCp1252(visible);
}

} // namespace planner
