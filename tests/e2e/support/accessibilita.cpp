// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/accessibilita.h"

#include "e2e/support/immagine.h"

#include <sstream>
#include <stdexcept>

namespace planner::e2e {

Accessibilita::Accessibilita(const Schermo& schermo)
    : m_schermo(&schermo), m_environment(schermo.environment()) {
    m_environment.erase("DBUS_SESSION_BUS_ADDRESS");
    m_bus = std::make_unique<Processo>(
        std::vector<std::string>{"dbus-daemon", "--session", "--print-address", "--nofork"}, m_environment,
        Errors::Dropped);
    m_environment["DBUS_SESSION_BUS_ADDRESS"] = m_bus->readLine();
    m_environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
    m_launcher =
        std::make_unique<Processo>(std::vector<std::string>{AT_SPI_BUS_LAUNCHER, "--launch-immediately"},
                                   m_environment, Errors::Dropped);
    // The launcher notes the bus on the screen once it is there.
    const bool ready = comesTrue([&] {
        return schermo.tryTool({"xprop", "-root", "AT_SPI_BUS"}).output.find('=') != std::string::npos;
    });
    if (!ready) {
        throw std::runtime_error("the accessibility bus does not start");
    }
}

Accessibilita::~Accessibilita() {
    m_launcher->terminate(); // a killed one would leave the bus behind
    m_bus->terminate();
}

Esito Accessibilita::look(const Processo& owner, const std::vector<std::string>& words) const {
    // The tool gives up well before the wait for its own end does.
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(Deadline / 2);
    std::vector<std::string> all{"/usr/bin/python3",
                                 "-W",
                                 "ignore",
                                 AT_SPI_FILE,
                                 "--deadline",
                                 std::to_string(seconds.count()),
                                 std::to_string(owner.pid())};
    all.insert(all.end(), words.begin(), words.end());
    Environment environment = m_environment;
    environment["LANG"] = "C.UTF-8"; // names go in and out as UTF-8
    return runTool(all, environment);
}

std::string Accessibilita::find(const Processo& owner, const std::vector<std::string>& words) const {
    Esito esito = look(owner, words);
    if (esito.exitCode != 0) {
        throw std::runtime_error("no \"" + words.back() + "\" on the accessibility bus. There is:\n" +
                                 look(owner, {"list"}).output);
    }
    return std::move(esito.output);
}

std::string Accessibilita::findCell(const Processo& owner, const Cella& cella) const {
    return find(owner, {"cell", cella.tabella, std::to_string(cella.riga), std::to_string(cella.colonna),
                        cella.nome});
}

void Accessibilita::press(const Processo& owner, const std::string& name) const {
    find(owner, {"press", name});
}

void Accessibilita::click(const Processo& owner, const std::string& name) const {
    clickAt(find(owner, {"where", name}));
}

void Accessibilita::click(const Processo& owner, const Cella& cella) const {
    clickAt(findCell(owner, cella));
}

void Accessibilita::waitFor(const Processo& owner, const std::string& name) const {
    find(owner, {"where", name});
}

void Accessibilita::waitFor(const Processo& owner, const Cella& cella) const {
    findCell(owner, cella);
}

void Accessibilita::clickAt(const std::string& place) const {
    std::istringstream numbers(place);
    Area area;
    numbers >> area.x >> area.y >> area.width >> area.height;
    m_schermo->tool({"xdotool", "mousemove", std::to_string(area.x + area.width / 2),
                     std::to_string(area.y + area.height / 2), "click", "1"});
}

std::vector<Accessibilita::Controllo> Accessibilita::controls(const Processo& owner) const {
    std::istringstream lines(find(owner, {"list"}));
    std::vector<Controllo> controls;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = line.find('\t');
        if (tab != std::string::npos) {
            controls.push_back({line.substr(0, tab), line.substr(tab + 1)});
        }
    }
    return controls;
}

} // namespace planner::e2e
