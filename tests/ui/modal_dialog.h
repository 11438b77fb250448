// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QDialog;

namespace planner::test {

/// Opens a modal dialog with `open` and has `user` act on it as soon as it stands; `user` must close it.
void whileModal(const std::function<void()>& open, const std::function<void(QDialog&)>& user);

} // namespace planner::test
