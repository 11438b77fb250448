// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
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
    /// Why there is no screen to use, in the toolkit's words; of several troubles the first counts. Not said
    /// unless the program fails.
    void noteScreenTrouble(const std::string& trouble);
    /// What becomes of a fault while the toolkit comes up: it falls over a display that is lost meanwhile.
    static void onFault(int signal);
    /// Ends the program with exit code 1, after one line on standard error: the trouble with the screen if
    /// there is none, else `reason`.
    [[noreturn]] void fail(const std::string& reason) const;

private:
    std::function<bool()> m_congedo;
    std::string m_guaioSchermo;
};

} // namespace planner
