// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/cp1252_from_utf8.h"

#include "archive/cp1252.h"

#include <algorithm>

namespace planner {

namespace {

/// Takes one character of at most three bytes from the front of `text`; nothing when it is malformed.
std::optional<char16_t> takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = first < 0x80 ? 1 : (first >> 5) == 0x6 ? 2 : (first >> 4) == 0xE ? 3 : 0;
    if (length == 0 || length > text.size()) {
        return std::nullopt;
    }
    unsigned code = length == 1 ? first : length == 2 ? first & 0x1Fu : first & 0x0Fu;
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) {
            return std::nullopt;
        }
        code = (code << 6) | (next & 0x3Fu);
    }
    if ((length == 2 && code < 0x80) || (length == 3 && code < 0x800)) {
        return std::nullopt; // longer than it need be
    }
    text.remove_prefix(length);
    return static_cast<char16_t>(code);
}

std::optional<char> byteFor(char16_t character) {
    if (character < 0x80) {
        return static_cast<char>(character);
    }
    const auto found = std::find(Cp1252Characters.begin(), Cp1252Characters.end(), character);
    return found == Cp1252Characters.end()
               ? std::nullopt
               : std::optional(static_cast<char>(found - Cp1252Characters.begin()));
}

} // namespace

std::optional<std::string> cp1252FromUtf8(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        const auto byte = character ? byteFor(*character) : std::nullopt;
        if (!byte) {
            return std::nullopt;
        }
        out += *byte;
    }
    return out;
}

} // namespace planner
