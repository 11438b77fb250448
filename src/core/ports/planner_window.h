// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner {

/// The planner window as the engine sees it: its controls' contents are plain data (`ControlliPlcal`), this
/// is the window around them.
class PlannerWindow {
public:
    virtual ~PlannerWindow() = default;
    virtual bool isLoaded() const = 0;
    /// Makes the window ready, out of sight; nothing when it is loaded already.
    virtual void load() = 0;
    /// Shows the window modeless, with the controls' present contents.
    virtual void show() = 0;
    /// Puts the window in front of every other window of the desktop.
    virtual void bringToFront() = 0;
    /// Closes the window; its unload step runs if it is loaded.
    virtual void unload() = 0;
    /// Takes the window and all that hangs on it out of sight; a loaded window stays loaded.
    virtual void hide() = 0;
};

} // namespace planner
