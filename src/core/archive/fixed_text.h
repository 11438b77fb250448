// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace planner {

/// The text without the blanks at its right end.
constexpr std::string_view trimRight(std::string_view text) {
    const auto end = text.find_last_not_of(' ');
    return end == std::string_view::npos ? std::string_view{} : text.substr(0, end + 1);
}

/// The text without the blanks at either end.
constexpr std::string_view trim(std::string_view text) {
    const auto begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string_view{} : trimRight(text.substr(begin));
}

/// Up to `count` characters from `begin` (counted from 0); shorter or empty when the text ends before.
constexpr std::string_view slice(std::string_view text, std::size_t begin, std::size_t count) {
    return begin < text.size() ? text.substr(begin, count) : std::string_view{};
}

/// The last `count` characters, or the whole text when it is shorter.
constexpr std::string_view lastChars(std::string_view text, std::size_t count) {
    return text.size() <= count ? text : text.substr(text.size() - count);
}

/// A field of exactly N single-byte characters, blank at first; the unit of every record on disk.
template <std::size_t N>
class FixedText {
public:
    constexpr FixedText() { m_bytes.fill(' '); }
    constexpr explicit FixedText(std::string_view text) { assign(text); }

    /// Stores the text left-aligned: a shorter one is padded with blanks, a longer one is cut.
    constexpr void assign(std::string_view text) {
        m_bytes.fill(' ');
        std::copy_n(text.begin(), std::min(text.size(), N), m_bytes.begin());
    }

    constexpr std::string_view view() const { return {m_bytes.data(), N}; }
    constexpr std::string_view trimmed() const { return trim(view()); }
    constexpr std::string_view trimmedRight() const { return trimRight(view()); }
    std::string text() const { return std::string(view()); }

    friend constexpr bool operator==(const FixedText&, const FixedText&) = default;

private:
    std::array<char, N> m_bytes;
};

} // namespace planner
