// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace planner {

/// Archive text, Windows-1252, as Unicode. It is never markup: show it as plain text only.
QString fromCp1252(std::string_view bytes);

/// The program's own texts and messages, UTF-8.
QString fromUtf8(std::string_view text);

/// The text for a tool tip, which the toolkit would otherwise examine for markup.
QString plainToolTip(const QString& text);

} // namespace planner
