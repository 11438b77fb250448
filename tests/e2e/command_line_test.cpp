// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

#include <algorithm>
#include <filesystem>

namespace planner::e2e {

namespace {

class CommandLine : public Scenario {
protected:
    /// Starts a monthly planner on the transit file under that spelling of its path, and checks that it finds
    /// both the file and the archives beside it.
    void checkPath(const std::string& spelling) {
        archivio.writeTransit(requestBytes('M'));
        Programma& planner = start({spelling, "1", evento});
        escape(planner);
        EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
        EXPECT_EQ(planner.exitCode(), 0);
    }
};

std::string replaced(std::string text, char from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, 1, to);
    }
    return text;
}

} // namespace

TEST_F(CommandLine, WithoutArgumentsTheProgramEndsWithoutADisplay) {
    Programma planner({}, utente.environment());
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(planner.readToEnd(), "");
}

TEST_F(CommandLine, TheWordForPollingMayBeInAnyLetterCase) {
    archivio.writeTransit(requestBytes('M'));
    archivio.putMarker(Archivio::LockPl);
    Programma& planner = start({archivio.transitPath(), "1", "nOeVeNt"});
    escape(planner);
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_FALSE(archivio.exists(Archivio::LockPl));
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('M')));
}

TEST_F(CommandLine, BackslashesSeparateFolders) {
    checkPath(replaced(archivio.transitPath(), '/', "\\"));
}

TEST_F(CommandLine, DoubledSlashesCountAsOne) {
    checkPath(archivio.path() + "//" + std::string(Archivio::Transit));
}

TEST_F(CommandLine, DoubledBackslashesCountAsOne) {
    checkPath(replaced(archivio.path(), '/', "\\") + "\\\\" + std::string(Archivio::Transit));
}

TEST_F(CommandLine, ANetworkPathKeepsItsTwoSeparators) {
    checkPath("/" + archivio.transitPath());
}

TEST_F(CommandLine, APathMayHoldBlanksAndArriveInPieces) {
    const std::string folder = archivio.path("archivio di prova");
    std::filesystem::create_directory(folder);
    for (const char* file : {"wrighipl", "wcollab"}) {
        std::filesystem::copy_file(archivio.path(file), folder + "/" + file);
    }
    const std::string transit = "archivio di prova/" + std::string(Archivio::Transit);
    archivio.write(transit, requestBytes('M'));
    Programma& planner =
        start({archivio.path("archivio"), "di", "prova/" + std::string(Archivio::Transit) + " 1", evento});
    escape(planner);
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(archivio.read(transit), closedOn("20060315", requestBytes('M')));
}

TEST_F(CommandLine, TheStartFlagMeansNothingInEventMode) {
    archivio.writeTransit(requestBytes('M'));
    archivio.putMarker(Archivio::TvPlaOK);
    Programma& planner = start({archivio.transitPath(), "0", evento});
    escape(planner);
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
    EXPECT_TRUE(archivio.exists(Archivio::TvPlaOK));
}

TEST_F(CommandLine, TheToolkitTakesNoSwitchFromIt) {
    const std::string name = "-style";
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = start({archivio.transitPath(), "1", name});
    escape(planner);
    EXPECT_EQ(Ospite(name, archivio.transitPath()).answer(), closedOn("20060315", requestBytes('M')));
}

} // namespace planner::e2e
