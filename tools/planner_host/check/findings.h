// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace planner {

/// What is said of a host's files, in Italian, UTF-8: what the planner cannot use or what the host can hardly
/// mean, of each file only the first ones, the others counted; and notes on what may be meant.
class Rilievi {
public:
    static constexpr std::size_t MassimiPerFile = 20;

    /// Of a whole file.
    void add(const std::string& file, const std::string& testo);
    /// Of a place: `record` counted from 0, `byte` from the start of the file.
    void add(const std::string& file, std::size_t record, std::size_t byte, const std::string& testo);

    /// Of a whole file; nothing is wrong.
    void note(const std::string& file, const std::string& testo);

    /// True when nothing is wrong.
    bool empty() const { return m_righe.empty(); }
    /// One line each, and one for those of each file that were left out; then the notes.
    std::string testo() const;

private:
    void keep(const std::string& file, const std::string& riga);

    std::vector<std::string> m_righe;
    std::vector<std::string> m_note;
    std::map<std::string, std::size_t> m_perFile;
};

} // namespace planner
