// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/battute.h"

#include "e2e/support/deadline.h"

#include <cctype>
#include <stdexcept>
#include <utility>

namespace planner::e2e {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> Names{{{"Ctrl", "ctrl"},
                                                                              {"Shift", "shift"},
                                                                              {"Esc", "Escape"},
                                                                              {"Space", "space"},
                                                                              {"PgDown", "Page_Down"},
                                                                              {"PgUp", "Page_Up"}}};

std::string xKey(std::string_view key) {
    for (const auto& [here, there] : Names) {
        if (key == here) {
            return std::string(there);
        }
    }
    // A capital letter would be pressed with Shift.
    return key.size() == 1 ? std::string(1, static_cast<char>(std::tolower(key.front()))) : std::string(key);
}

} // namespace

std::string xKeys(std::string_view shortcut) {
    const std::size_t plus = shortcut.find('+');
    return plus == std::string_view::npos
               ? xKey(shortcut)
               : xKey(shortcut.substr(0, plus)) + "+" + xKeys(shortcut.substr(plus + 1));
}

Finestra Battitore::inFront(const Processo& planner) const {
    return m_aperte.empty() ? Finestra(*m_schermo, planner, m_prima) : m_aperte.back();
}

void Battitore::press(const Processo& planner, const test::Battuta& battuta) {
    const Finestra window = inFront(planner);
    if (battuta.testo.empty()) {
        window.press(xKeys(battuta.tasto));
    } else {
        window.type(std::string(battuta.testo));
    }
    if (!battuta.apre.empty()) {
        m_aperte.emplace_back(*m_schermo, planner, std::string(battuta.apre));
        const Finestra& opened = m_aperte.back();
        if (!comesTrue([&] { return opened.isActive(); })) {
            throw std::runtime_error("not in front: " + std::string(battuta.apre));
        }
    }
    if (battuta.chiude) {
        if (!window.disappears()) {
            throw std::runtime_error("still there after " + std::string(battuta.tasto));
        }
        m_aperte.pop_back();
    }
}

} // namespace planner::e2e
