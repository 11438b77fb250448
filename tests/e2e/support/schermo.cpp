// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/schermo.h"

#include <stdexcept>

namespace planner::e2e {

Schermo::Schermo(const Size& size, Environment environment)
    : m_size(size), m_environment(std::move(environment)) {
    const std::string geometry = std::to_string(size.width) + "x" + std::to_string(size.height) + "x24";
    m_server =
        startQuietly({"Xvfb", "-displayfd", "1", "-screen", "0", geometry, "-nolisten", "tcp", "-noreset"});
    m_environment["DISPLAY"] = ":" + m_server->readLine();
    m_manager = startQuietly({"openbox", "--sm-disable"});
    waitForWindowManager();
    // The first key has the server announce its keyboard anew, and for a moment the window manager lets go of
    // its shortcuts: better now than when a scenario presses one.
    tool({"xdotool", "key", "shift"});
}

Schermo::~Schermo() {
    m_manager->terminate();
    m_server->terminate(); // a killed one would leave its socket behind
}

std::unique_ptr<Processo> Schermo::startQuietly(const std::vector<std::string>& words) const {
    return std::make_unique<Processo>(words, m_environment, Errors::Dropped);
}

void Schermo::waitForWindowManager() const {
    const bool ready = comesTrue([this] {
        return tryTool({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).output.find("window id") !=
               std::string::npos;
    });
    if (!ready) {
        throw std::runtime_error("the window manager does not start");
    }
}

Esito Schermo::tryTool(const std::vector<std::string>& words) const {
    return runTool(words, m_environment);
}

std::string Schermo::tool(const std::vector<std::string>& words) const {
    Esito esito = tryTool(words);
    if (esito.exitCode != 0) {
        std::string command;
        for (const std::string& word : words) {
            command += word + " ";
        }
        throw std::runtime_error(command + "ended with " + std::to_string(esito.exitCode));
    }
    return std::move(esito.output);
}

void Schermo::click(int x, int y, const Clic& clic) const {
    tool({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", "--repeat",
          std::to_string(clic.volte), "--delay", std::to_string(clic.pausa.count()),
          std::to_string(clic.tasto)});
}

void Schermo::moveMouseAway() const {
    tool({"xdotool", "mousemove", "0", "0"});
}

void Schermo::savePicture(const std::string& file) const {
    tryTool({"import", "-silent", "-window", "root", "png:" + file});
}

std::string Schermo::hiddenWindow(const std::string& program) const {
    const Esito search = tryTool({"xdotool", "search", "--name", "^Qt Selection Owner for " + program + "$"});
    return search.exitCode == 0 ? search.output.substr(0, search.output.find('\n')) : std::string();
}

void Schermo::awaitProgram(const std::string& program) const {
    if (!comesTrue([&] { return !hiddenWindow(program).empty(); })) {
        throw std::runtime_error(program + " does not come to the screen");
    }
}

void Schermo::cutOff(const std::string& program) const {
    awaitProgram(program);
    tool({"xdotool", "windowkill", hiddenWindow(program)});
}

void Schermo::shutDown() const {
    m_server->terminate();
}

} // namespace planner::e2e
