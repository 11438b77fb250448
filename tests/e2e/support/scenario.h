// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/archivio.h"
#include "e2e/support/finestra.h"
#include "e2e/support/ospite.h"
#include "e2e/support/osservatore.h"
#include "e2e/support/programma.h"
#include "e2e/support/richiesta.h"
#include "e2e/support/utente.h"

#include <gtest/gtest.h>
#include <list>

namespace planner::e2e {

/// What every scenario starts from: a user, a screen, an archive folder and a host that knows an event. The
/// planners that a scenario starts end with it. When a scenario fails, a picture of the screen is kept in the
/// folder in which the tests run.
class Scenario : public testing::Test {
protected:
    explicit Scenario(const Schermo::Size& size = {});
    void TearDown() override;

    /// What the planners get of the surroundings.
    virtual Environment plannerEnvironment() const { return schermo.environment(); }

    /// Starts the planner with these arguments.
    Programma& start(const std::vector<std::string>& arguments);
    /// Starts it on the archive's transit file and the host's event.
    Programma& startWithEvent();
    Programma& startPolling(const std::string& flag = "1");

    /// True while the event has a file.
    bool eventStands() const;

    Finestra window(const Programma& planner, const std::string& title) const;
    bool showsNoWindow(const Programma& planner) const;
    /// Waits for a message box, checks that it looks as one with this icon ("critical" or "information") and
    /// this text must look, and closes it with the Enter key.
    void confirmMessage(const Programma& planner, const std::string& icon, const std::string& text) const;
    /// Closes every message box that comes before the window with this title; returns that window.
    Finestra windowAfterMessages(const Programma& planner, const std::string& title) const;
    /// Waits for the window with this title, and presses Escape in it.
    void escape(const Programma& planner, const std::string& title = "Planner Mensile") const;

    const Utente utente;
    const Schermo schermo;
    const Archivio archivio;
    /// No two scenarios share a name, so that a wait which hangs disturbs no other.
    const std::string evento;
    Ospite ospite;

    /// The words that start another program, which shows nothing but this message.
    static std::vector<std::string> otherProgram(const std::string& icon, const std::string& text);

private:
    /// Compares with the same message shown on another screen of the same size, pixel by pixel.
    bool looksLikeMessage(const Finestra& box, const std::string& icon, const std::string& text) const;

    std::list<Programma> m_planners;
};

} // namespace planner::e2e
