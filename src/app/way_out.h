// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace planner {

/// The way out of the program from whatever state, for the ends that come from outside: `congedo` answers
/// what is under way and tells the host, then the process ends at once. What the toolkit does by itself comes
/// here too: it ends the program when the display is lost, and calls it off when there is none.
class WayOut {
public:
    /// `congedo` returns false when the host could not be told. There is one way out of a process.
    explicit WayOut(std::function<bool()> congedo);
    ~WayOut();
    WayOut(const WayOut&) = delete;
    WayOut& operator=(const WayOut&) = delete;

    /// What is done from here on.
    void setCongedo(std::function<bool()> congedo) { m_congedo = std::move(congedo); }

    /// Ends the program with exit code 0, or 1 when the host could not be told.
    [[noreturn]] void leave() const;
    /// Ends it with exit code 1, after the reason on standard error.
    [[noreturn]] void fail(const char* reason) const;

private:
    std::function<bool()> m_congedo;
};

} // namespace planner
