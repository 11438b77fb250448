// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace planner {

/// Something of the system's that can be waited for; it lives as long as the object that gives it.
using Waitable = std::intptr_t;

inline constexpr Waitable NoWaitable = -1;

/// Sleeps until one of them is ready, or the time is over (no limit when there is none), and returns its
/// place: the first where several are. Passes over NoWaitable. Throws std::system_error.
std::optional<std::size_t> waitForFirst(std::span<const Waitable> waited,
                                        std::optional<std::chrono::milliseconds> limit);

/// Becomes ready, once and for all, when `wake` is called, from whatever thread.
class WakeUp {
public:
    WakeUp();
    ~WakeUp();
    WakeUp(const WakeUp&) = delete;
    WakeUp& operator=(const WakeUp&) = delete;

    void wake() const;
    Waitable waitable() const { return m_handle; }

private:
    Waitable m_handle;
};

/// Becomes ready when the user or the system wants this program to end, which is held back from here on;
/// there is one for a program. To be made before any other thread.
class EndWishes {
public:
    EndWishes();
    ~EndWishes();
    EndWishes(const EndWishes&) = delete;
    EndWishes& operator=(const EndWishes&) = delete;

    Waitable waitable() const { return m_handle; }
    /// The number of the signal that has come, which is then forgotten; 0 when none has.
    int take() const;

private:
    Waitable m_handle;
};

/// Becomes ready when a file leaves the folder, and may when something else changes there. Of a folder on
/// another machine the system need not tell.
class FolderWatch {
public:
    /// Throws std::system_error when the folder cannot be watched.
    explicit FolderWatch(const std::string& folder);
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    Waitable waitable() const { return m_handle; }
    /// Makes it ready for the next change only.
    void forget() const;

private:
    Waitable m_handle;
};

} // namespace planner
