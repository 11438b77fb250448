// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/processo.h"

#include <memory>

namespace planner::e2e {

/// What the mouse does at a place.
struct Clic {
    int tasto = 1; // 1 left, 2 middle, 3 right, 5 wheel down
    int volte = 1;
    std::chrono::milliseconds pausa{100}; // between two clicks
};

/// A screen of its own with a window manager; both end with the object.
class Schermo {
public:
    struct Size {
        int width = 1366;
        int height = 768;
    };

    /// `environment` is what the programs on this screen get; DISPLAY is added to it.
    Schermo(const Size& size, Environment environment);
    ~Schermo();

    const Environment& environment() const { return m_environment; }
    const Size& size() const { return m_size; }

    /// Runs a tool on this screen and returns its output; throws when it does not end with 0.
    std::string tool(const std::vector<std::string>& words) const;
    /// The same for a tool whose failure is an answer.
    Esito tryTool(const std::vector<std::string>& words) const;

    /// Clicks on a point of the screen.
    void click(int x, int y, const Clic& clic = {}) const;
    /// Puts the mouse where nothing stands out because it is there.
    void moveMouseAway() const;
    /// Saves what the screen shows as a PNG file, if it still shows anything.
    void savePicture(const std::string& file) const;

    /// Cuts off the program of this name, once it has come: the server closes its connection.
    void cutOff(const std::string& program) const;
    /// The server ends under everybody.
    void shutDown() const;
    /// Waits until the program of this name has come to the server.
    void awaitProgram(const std::string& program) const;

private:
    std::unique_ptr<Processo> startQuietly(const std::vector<std::string>& words) const;
    void waitForWindowManager() const;
    /// A window of the program that never shows, and lasts as long as its connection; empty without one.
    std::string hiddenWindow(const std::string& program) const;

    Size m_size;
    Environment m_environment;
    std::unique_ptr<Processo> m_server;
    std::unique_ptr<Processo> m_manager;
};

} // namespace planner::e2e
