// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/check/findings.h"

namespace planner {

void Rilievi::add(const std::string& file, const std::string& testo) {
    keep(file, file + ": " + testo);
}

void Rilievi::add(const std::string& file, std::size_t record, std::size_t byte, const std::string& testo) {
    keep(file,
         file + ", record " + std::to_string(record + 1) + ", byte " + std::to_string(byte) + ": " + testo);
}

void Rilievi::note(const std::string& file, const std::string& testo) {
    m_note.push_back(file + ": " + testo);
}

void Rilievi::keep(const std::string& file, const std::string& riga) {
    if (++m_perFile[file] <= MassimiPerFile) {
        m_righe.push_back(riga);
    }
}

std::string Rilievi::testo() const {
    std::string text;
    for (const std::string& riga : m_righe) {
        text += riga + "\n";
    }
    for (const auto& [file, count] : m_perFile) {
        if (count > MassimiPerFile) {
            text += file + ": e altri " + std::to_string(count - MassimiPerFile) + "\n";
        }
    }
    for (const std::string& nota : m_note) {
        text += nota + "\n";
    }
    return text;
}

} // namespace planner
