// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/byte_dump.h"

#include "planner_host/readable_text.h"

#include <algorithm>
#include <string_view>

namespace planner {

namespace {

constexpr std::size_t BytesPerLine = 16;

std::string hexByte(char byte) {
    constexpr std::string_view digits = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(byte);
    return {digits[value / 16u], digits[value % 16u]};
}

/// The number, right-aligned by `fill` in `width` characters.
std::string aligned(std::size_t number, std::size_t width, char fill) {
    const std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), fill) + digits : digits;
}

std::string hexLine(std::string_view bytes, std::size_t offset) {
    std::string line = "  " + aligned(offset, 3, '0') + " ";
    std::string text;
    for (const char byte : slice(bytes, offset, BytesPerLine)) {
        line += " " + hexByte(byte);
        text += byte >= ' ' && byte <= '~' ? byte : '.';
    }
    line.resize(6 + BytesPerLine * 3, ' ');
    return line + "  |" + text + "|\n";
}

std::string fieldLine(std::string_view bytes, const Field& field) {
    constexpr std::size_t nameWidth = 14;
    std::string line = "  " + std::string(field.name);
    line.resize(std::max(line.size() + 1, 2 + nameWidth), ' ');
    line += aligned(field.offset, 3, ' ') + " " + aligned(field.length, 3, ' ');
    return line + "  \"" + testoLeggibile(slice(bytes, field.offset, field.length)) + "\"\n";
}

} // namespace

std::string mostraByte(const TransitRequest& record) {
    const std::string_view bytes(reinterpret_cast<const char*>(&record), sizeof record);
    std::string text;
    for (std::size_t offset = 0; offset < bytes.size(); offset += BytesPerLine) {
        text += hexLine(bytes, offset);
    }
    for (const Field& field : TransitRequestFields) {
        text += fieldLine(bytes, field);
    }
    return text;
}

} // namespace planner
