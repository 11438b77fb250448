// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"

#include <algorithm>

namespace planner {

namespace {

constexpr std::array<char16_t, 32> UpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 256> buildTable() {
    std::array<char16_t, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte] = static_cast<char16_t>(byte);
    }
    std::copy(UpperControls.begin(), UpperControls.end(), table.begin() + 0x80);
    return table;
}

void appendUtf8(std::string& out, char16_t character) {
    const unsigned code = character;
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

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

} // namespace

const std::array<char16_t, 256> Cp1252Characters = buildTable();

std::string utf8FromCp1252(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const char byte : bytes) {
        appendUtf8(out, Cp1252Characters[static_cast<unsigned char>(byte)]);
    }
    return out;
}

std::optional<std::string> cp1252FromUtf8(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        const auto found = character ? std::find(Cp1252Characters.begin(), Cp1252Characters.end(), *character)
                                     : Cp1252Characters.end();
        if (found == Cp1252Characters.end()) {
            return std::nullopt;
        }
        out += static_cast<char>(found - Cp1252Characters.begin());
    }
    return out;
}

} // namespace planner
