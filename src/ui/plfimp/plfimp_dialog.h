// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner {

class plfimp;

/// Asks the appointment type in a modal dialog over the active window, with the answer in `form`. Enter
/// confirms, Escape cancels.
void chiediImpegno(plfimp& form);

} // namespace planner
