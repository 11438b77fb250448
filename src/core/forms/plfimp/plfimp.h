// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace planner {

/// A kind of entry that the dialog offers.
struct SceltaImpegno {
    std::string_view didascalia;
    std::string_view risposta; // the action letter when confirmed
};

inline constexpr std::array ScelteImpegno{SceltaImpegno{"Impegno", "I"}, SceltaImpegno{"Pratica", "T"}};

/// The question what kind of entry is to be inserted: the logic of the dialog.
class plfimp {
public:
    /// Selects option 0 or 1; any other index selects nothing new.
    void Option1_Click(int index) {
        if (index >= 0 && static_cast<std::size_t>(index) < ScelteImpegno.size()) {
            m_option = index;
        }
    }
    int Option1() const { return m_option; }

    void conferma_Click() { m_risposta = ScelteImpegno.at(static_cast<std::size_t>(m_option)).risposta; }
    void annulla_Click() { m_risposta.clear(); }

    /// "I", "T", or empty when nothing was confirmed.
    const std::string& risposta() const { return m_risposta; }

private:
    int m_option = 0;
    std::string m_risposta;
};

} // namespace planner
