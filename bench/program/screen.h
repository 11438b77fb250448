// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace planner::bench {

using Clock = std::chrono::steady_clock;

/// The screen and the keyboard as their user has them: told by the display server, whatever program paints.
class Screen {
public:
    /// Throws std::runtime_error where there is no display that can tell.
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// Waits until something has been painted on much of the screen and nothing more for a while. When the
    /// last painting was done; throws std::runtime_error after ten seconds.
    Clock::time_point painted();
    /// Forgets what has been painted so far.
    void forget();
    /// Waits until a window has the keyboard that takes much of the screen; throws like `painted`.
    void awaitFocus();
    /// Presses and releases a key, by its X key symbol.
    void press(unsigned symbol);

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    long much() const;
    bool awaitEvent(std::chrono::milliseconds longest);
    bool hasFocus();
    unsigned char codeOf(unsigned symbol);

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_screen_t* m_screen;
    unsigned char m_damageEvent;
};

} // namespace planner::bench
