// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace planner {

/// How the program ends.
enum class CodiceUscita : int { Riuscito = 0, UsoErrato = 1, PlannerFallito = 2, ErroreFile = 3 };

/// What ends the program early. `what()` is an Italian sentence for the user, in UTF-8.
class HostError : public std::runtime_error {
public:
    HostError(CodiceUscita codice, const std::string& text) : HostError(static_cast<int>(codice), text) {}
    HostError(int exitCode, const std::string& text) : std::runtime_error(text), m_exitCode(exitCode) {}

    int exitCode() const { return m_exitCode; }

private:
    int m_exitCode;
};

} // namespace planner
