// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/command_line.h"

#include "archive/fixed_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace planner {

namespace {

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string out;
    std::size_t begin = 0;
    for (std::size_t hit = text.find(from); hit != std::string_view::npos; hit = text.find(from, begin)) {
        out.append(text, begin, hit - begin).append(to);
        begin = hit + from.size();
    }
    return out.append(text, begin);
}

std::string normalizedPath(std::string_view path) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> replacements{
        {{"\\\\", "\\"}, {"//", "/"}, {"\\/", "\\"}, {"/\\", "\\"}}};
    const bool network = path.starts_with("\\\\") || path.starts_with("//");
    const std::string_view prefix = network ? path.substr(0, 2) : std::string_view{};
    std::string rest(path.substr(prefix.size()));
    for (const auto& [from, to] : replacements) {
        rest = replaceAll(rest, from, to);
    }
    return std::string(prefix) + rest;
}

} // namespace

bool RigaComando::polling() const {
    constexpr std::string_view keyword = "NOEVENT";
    return std::equal(NomeEvento.begin(), NomeEvento.end(), keyword.begin(), keyword.end(),
                      [](char given, char upper) { return given == upper || given == upper - 'A' + 'a'; });
}

RigaComando parseCommandLine(std::string_view line) {
    RigaComando parts;
    std::string_view rest = trim(line);
    if (const auto blank = rest.rfind(' '); blank != std::string_view::npos) {
        parts.NomeEvento = rest.substr(blank + 1);
        rest = rest.substr(0, blank);
    }
    parts.FlagAvvio = lastChars(rest, 1);
    rest.remove_suffix(std::min<std::size_t>(2, rest.size()));
    parts.PathTransito = normalizedPath(rest);
    return parts;
}

std::string folderOf(std::string_view path) {
    for (const char separator : {'/', '\\'}) {
        if (const auto last = path.rfind(separator); last != std::string_view::npos) {
            return std::string(path.substr(0, last + 1));
        }
    }
    return ".\\";
}

} // namespace planner
