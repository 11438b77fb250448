// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/finestra.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace planner::e2e {

namespace {

/// The first visible window of the process whose title matches; empty when there is none. A window that goes
/// while the tool looks at it makes the tool fail: then there is none either.
std::string idOf(const Schermo& schermo, const Processo& owner, const std::string& title) {
    const Esito search = schermo.tryTool({"xdotool", "search", "--all", "--onlyvisible", "--pid",
                                          std::to_string(owner.pid()), "--name", title});
    return search.exitCode == 0 ? search.output.substr(0, search.output.find('\n')) : std::string();
}

std::string wholly(const std::string& title) {
    return "^" + title + "$";
}

/// The number after `label` in a tool's output.
int numberAfter(const std::string& text, const std::string& label) {
    const std::size_t hit = text.find(label);
    if (hit == std::string::npos) {
        throw std::runtime_error("no \"" + label + "\" in: " + text);
    }
    return std::stoi(text.substr(hit + label.size()));
}

} // namespace

Finestra::Finestra(const Schermo& schermo, const Processo& owner, const std::string& title)
    : m_schermo(&schermo) {
    if (!comesTrue([&] { return !(m_id = idOf(schermo, owner, wholly(title))).empty(); })) {
        throw std::runtime_error("no window \"" + title + "\"");
    }
}

std::optional<Finestra> Finestra::find(const Schermo& schermo, const Processo& owner,
                                       const std::string& title) {
    std::string id = idOf(schermo, owner, wholly(title));
    return id.empty() ? std::nullopt : std::optional(Finestra(schermo, std::move(id)));
}

int Finestra::count(const Schermo& schermo, const Processo& owner) {
    const Esito search = schermo.tryTool(
        {"xdotool", "search", "--all", "--onlyvisible", "--pid", std::to_string(owner.pid()), "--name", ""});
    return static_cast<int>(std::count(search.output.begin(), search.output.end(), '\n'));
}

bool Finestra::any(const Schermo& schermo, const Processo& owner) {
    return !idOf(schermo, owner, ".").empty();
}

void Finestra::activate() const {
    m_schermo->tool({"xdotool", "windowactivate", "--sync", m_id});
}

void Finestra::press(const std::string& key) const {
    activate();
    m_schermo->tool({"xdotool", "key", key});
}

void Finestra::type(const std::string& text) const {
    activate();
    m_schermo->tool({"xdotool", "type", text});
}

void Finestra::click(int x, int y) const {
    activate();
    m_schermo->tool(
        {"xdotool", "mousemove", "--window", m_id, std::to_string(x), std::to_string(y), "click", "1"});
}

std::string Finestra::title() const {
    const std::string line = m_schermo->tool({"xdotool", "getwindowname", m_id});
    return line.substr(0, line.find('\n'));
}

bool Finestra::isVisible() const {
    const Esito info = m_schermo->tryTool({"xwininfo", "-id", m_id});
    return info.exitCode == 0 && info.output.find("IsViewable") != std::string::npos;
}

bool Finestra::isActive() const {
    return m_schermo->tryTool({"xdotool", "getactivewindow"}).output == m_id + "\n";
}

bool Finestra::disappears() const {
    return comesTrue([this] { return !isVisible(); });
}

Area Finestra::frame() const {
    const std::string inside = m_schermo->tool({"xwininfo", "-id", m_id});
    std::string extents = m_schermo->tool({"xprop", "-id", m_id, "_NET_FRAME_EXTENTS"});
    std::replace(extents.begin(), extents.end(), ',', ' ');
    std::istringstream numbers(extents.substr(extents.find('=') + 1));
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
    numbers >> left >> right >> top >> bottom;
    return {numberAfter(inside, "Absolute upper-left X:") - left,
            numberAfter(inside, "Absolute upper-left Y:") - top, numberAfter(inside, "Width:") + left + right,
            numberAfter(inside, "Height:") + top + bottom};
}

void Finestra::resize(int width, int height) const {
    m_schermo->tool({"xdotool", "windowsize", m_id, std::to_string(width), std::to_string(height)});
}

Immagine Finestra::picture() const {
    return Immagine(m_schermo->tool({"import", "-silent", "-window", m_id, "-depth", "8", "ppm:-"}));
}

} // namespace planner::e2e
