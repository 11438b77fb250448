// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner {

class plfgraf;

/// The chart window on the screen.
class FinestraGrafici {
public:
    virtual ~FinestraGrafici() = default;
    /// Shows the visible chart of `form`, modal; returns when the window is closed.
    virtual void mostra(plfgraf& form) = 0;
};

} // namespace planner
