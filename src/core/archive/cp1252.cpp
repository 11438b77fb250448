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

bool isControlByte(char c) {
    constexpr std::string_view controls = "\x7F\x81\x8D\x8F\x90\x9D";
    return static_cast<unsigned char>(c) < ' ' || controls.find(c) != std::string_view::npos;
}

std::string visibleFromCp1252(std::string_view bytes) {
    std::string text(bytes);
    std::replace_if(text.begin(), text.end(), isControlByte, ' ');
    return utf8FromCp1252(text);
}

} // namespace planner
