// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>

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
    /// The same with the transit file and the archives in a folder of that name, whose words arrive one by
    /// one.
    void checkPieces(const std::vector<std::string>& words) {
        std::string name;
        for (const std::string& word : words) {
            name += name.empty() ? word : " " + word;
        }
        archivio.moveInto(name);
        const std::string transit = name + "/" + std::string(Archivio::Transit);
        archivio.write(transit, requestBytes('M'));
        std::vector<std::string> arguments = words;
        arguments.front() = archivio.path(arguments.front());
        arguments.back() += "/" + std::string(Archivio::Transit);
        arguments.insert(arguments.end(), {"1", evento});
        Programma& planner = start(arguments);
        escape(planner);
        EXPECT_EQ(planner.exitCode(), 0);
        EXPECT_EQ(archivio.read(transit), closedOn("20060315", requestBytes('M')));
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

TEST_F(CommandLine, HelpAndVersionArePrintedWithoutADisplayAndLeaveNoFile) {
    for (const auto& [argument, words] :
         {std::pair("--help", "Uso: planner TRANSITO FLAG EVENTO\n"), std::pair("--version", "planner ")}) {
        Environment environment = utente.environment();
        Programma planner({argument}, environment, Errors::InOutput);
        EXPECT_THAT(planner.readToEnd(), testing::StartsWith(words));
        EXPECT_EQ(planner.exitCode(), 0);
        EXPECT_FALSE(std::filesystem::exists(std::string(argument).substr(0, std::strlen(argument) - 2)));
    }
}

TEST_F(CommandLine, TheLogThatTheEnvironmentNamesTellsTheConversation) {
    archivio.writeTransit(requestBytes('M'));
    Environment environment = schermo.environment();
    environment["PLANNER_LOG"] = archivio.path("diario");
    Programma planner({archivio.transitPath(), "1", evento}, environment);
    escape(planner);
    EXPECT_EQ(planner.exitCode(), 0);
    const std::string log = archivio.read("diario");
    for (const std::string line :
         {"avvio: planner ", "richiesta: tipo M, dal 20060315 al 20061231, giorno 0", "archivio wcollab: ",
          "archivio wrighipl: ", "risposta: giorno 20060315, nessun collaboratore, azione E",
          "evento rimosso"}) {
        EXPECT_THAT(log, testing::ContainsRegex("\n?[0-9TZ:.-]+ [0-9]+ " + line));
    }
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
    checkPieces({"archivio", "di", "prova"});
}

TEST_F(CommandLine, TheToolkitTakesNoSwitchFromIt) {
    checkPieces({"archivio", "-platform", "nessuna"});
}

TEST_F(CommandLine, TheStartFlagMeansNothingInEventMode) {
    archivio.writeTransit(requestBytes('M'));
    archivio.putMarker(Archivio::TvPlaOK);
    Programma& planner = start({archivio.transitPath(), "0", evento});
    escape(planner);
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
    EXPECT_TRUE(archivio.exists(Archivio::TvPlaOK));
}

} // namespace planner::e2e
