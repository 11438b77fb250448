// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/paths.h"

#include "platform/windows/texts.h"

namespace planner {

std::filesystem::path pathOf(std::string_view text) {
    return wideText(text);
}

std::string textOf(const std::filesystem::path& path) {
    return utf8Text(path.wstring());
}

} // namespace planner
