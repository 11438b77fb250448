// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

#include <algorithm>
#include <filesystem>

namespace planner::e2e {

namespace {

/// A file for a picture of the running test, made from the test's name.
std::string pictureFile(const std::string& suffix = {}) {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test.test_suite_name()) + "." + test.name() + suffix + ".png";
    std::replace(name.begin(), name.end(), '/', '-');
    const std::filesystem::path folder = std::filesystem::current_path() / "e2e-failures";
    std::filesystem::create_directories(folder);
    return (folder / name).string();
}

} // namespace

Scenario::Scenario(const Schermo::Size& size)
    : schermo(size, utente.environment()), evento(std::filesystem::path(archivio.path()).filename()),
      ospite(evento, archivio.transitPath()) {}

void Scenario::TearDown() {
    if (HasFailure()) {
        schermo.savePicture(pictureFile());
    }
}

Programma& Scenario::start(const std::vector<std::string>& arguments) {
    return m_planners.emplace_back(arguments, plannerEnvironment());
}

Programma& Scenario::startWithEvent() {
    return start({archivio.transitPath(), "1", evento});
}

Programma& Scenario::startPolling(const std::string& flag) {
    return start({archivio.transitPath(), flag, "NOEVENT"});
}

bool Scenario::eventStands() const {
    return std::filesystem::exists(utente.eventFolder() + "/" + ospite.eventFile());
}

Finestra Scenario::window(const Programma& planner, const std::string& title) const {
    return {schermo, planner, title};
}

bool Scenario::showsNoWindow(const Programma& planner) const {
    return !Finestra::any(schermo, planner);
}

void Scenario::confirmMessage(const Programma& planner, const std::string& icon,
                              const std::string& text) const {
    const Finestra box = window(planner, "Planner");
    box.activate();
    EXPECT_EQ(box.title(), "Planner");
    EXPECT_TRUE(looksLikeMessage(box, icon, text)) << icon << ": " << text;
    box.press("Return");
    EXPECT_TRUE(box.disappears());
}

bool Scenario::looksLikeMessage(const Finestra& box, const std::string& icon, const std::string& text) const {
    const Schermo other(schermo.size(), utente.environment());
    const Processo twin(otherProgram(icon, text), other.environment());
    const Finestra model(other, twin, "Planner");
    // A button looks different under the mouse, and so does a box that is not the active window.
    schermo.moveMouseAway();
    other.moveMouseAway();
    // Neither may be painted to the end yet, and a window that comes up late takes the box's place as active.
    const bool alike = comesTrue([&] {
        model.activate();
        box.activate();
        return model.picture() == box.picture();
    });
    if (!alike) {
        other.savePicture(pictureFile("-expected"));
        schermo.savePicture(pictureFile("-seen"));
    }
    return alike;
}

std::vector<std::string> Scenario::otherProgram(const std::string& icon, const std::string& text) {
    return {MESSAGE_BOX_FILE, icon, text};
}

Finestra Scenario::windowAfterMessages(const Programma& planner, const std::string& title) const {
    std::optional<Finestra> found;
    comesTrue([&] {
        found = Finestra::find(schermo, planner, title);
        if (const auto box = Finestra::find(schermo, planner, "Planner"); box && !found) {
            box->press("Return");
            box->disappears();
        }
        return found.has_value();
    });
    return found ? *found : window(planner, title);
}

void Scenario::escape(const Programma& planner, const std::string& title) const {
    window(planner, title).press("Escape");
}

} // namespace planner::e2e
