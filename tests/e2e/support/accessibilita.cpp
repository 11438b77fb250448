// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/accessibilita.h"

#include <sstream>
#include <stdexcept>

namespace planner::e2e {

namespace {

Area areaFrom(const std::string& place) {
    std::istringstream numbers(place);
    Area area;
    numbers >> area.x >> area.y >> area.width >> area.height;
    return area;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

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

std::vector<std::string> Accessibilita::words(const Processo& owner, std::chrono::milliseconds deadline,
                                              const std::vector<std::string>& command) const {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(deadline);
    std::vector<std::string> all{"/usr/bin/python3",
                                 "-W",
                                 "ignore",
                                 AT_SPI_FILE,
                                 "--deadline",
                                 std::to_string(seconds.count()),
                                 std::to_string(owner.pid())};
    all.insert(all.end(), command.begin(), command.end());
    return all;
}

Environment Accessibilita::toolEnvironment() const {
    Environment environment = m_environment;
    environment["LANG"] = "C.UTF-8"; // names go in and out as UTF-8
    return environment;
}

Esito Accessibilita::look(const Processo& owner, const std::vector<std::string>& command) const {
    // The tool gives up well before the wait for its own end does.
    return runTool(words(owner, Deadline / 2, command), toolEnvironment());
}

std::unique_ptr<Processo> Accessibilita::listener(const Processo& owner, bool names) const {
    const std::vector<std::string> command =
        names ? std::vector<std::string>{"hear", "--names"} : std::vector<std::string>{"hear"};
    auto tool = std::make_unique<Processo>(words(owner, 2 * Deadline, command), toolEnvironment());
    if (tool->readLine() != "ready") {
        throw std::runtime_error("nothing can be heard on the accessibility bus");
    }
    return tool;
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

void Accessibilita::click(const Processo& owner, const std::string& name, const Clic& clic) const {
    clickInside(place(owner, name), clic);
}

void Accessibilita::click(const Processo& owner, const Cella& cella, const Clic& clic) const {
    clickInside(place(owner, cella), clic);
}

Area Accessibilita::place(const Processo& owner, const std::string& name) const {
    return areaFrom(find(owner, {"where", name}));
}

Area Accessibilita::place(const Processo& owner, const Cella& cella) const {
    return areaFrom(findCell(owner, cella));
}

void Accessibilita::waitFor(const Processo& owner, const std::string& name) const {
    place(owner, name);
}

void Accessibilita::waitFor(const Processo& owner, const Cella& cella) const {
    place(owner, cella);
}

void Accessibilita::clickInside(const Area& area, const Clic& clic) const {
    m_schermo->click(area.x + area.width / 2, area.y + area.height / 2, clic);
}

std::vector<Accessibilita::Controllo> Accessibilita::controls(const Processo& owner) const {
    return list(owner, "list");
}

std::vector<Accessibilita::Controllo> Accessibilita::readEverything(const Processo& owner) const {
    return list(owner, "walk");
}

std::vector<Accessibilita::Controllo> Accessibilita::list(const Processo& owner,
                                                          const std::string& command) const {
    std::vector<Controllo> controls;
    for (const std::string& line : linesOf(find(owner, {command}))) {
        const std::size_t tab = line.find('\t');
        if (tab != std::string::npos) {
            controls.push_back({line.substr(0, tab), line.substr(tab + 1)});
        }
    }
    return controls;
}

std::vector<std::string> Accessibilita::cellNames(const Processo& owner, const std::string& table) const {
    return linesOf(find(owner, {"names", table}));
}

std::string Accessibilita::focused(const Processo& owner) const {
    return linesOf(find(owner, {"focus"})).at(0);
}

} // namespace planner::e2e
