// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace planner {

/// Has the widget ignore Escape and Enter that come because the key is held down, its children's included: a
/// held key answers one window, not those that come into sight behind it.
void ignoreRepeatedAnswers(QWidget& widget);

} // namespace planner
