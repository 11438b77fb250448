// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QStyle>

namespace planner {

/// An icon of the program's drawing of that name. The drawing is read when it is first shown, not before: the
/// toolkit's own engine reads each twice when the icon is made.
QIcon qtIcon(std::string_view name);

/// An icon of one of the style's arrows, in the desktop's colour of a button's text.
QIcon arrowIcon(QStyle::PrimitiveElement arrow);

} // namespace planner
