// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"
#include "support/builders.h"

#include <random>

namespace planner::e2e {

namespace {

class Messages : public Scenario {
protected:
    /// Checks that the window comes and that the host gets its answer.
    void checkAnswer(Programma& planner, char tipoplanner, const std::string& title) {
        windowAfterMessages(planner, title).press("Escape");
        EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes(tipoplanner)));
        EXPECT_EQ(planner.exitCode(), 0);
    }
    /// The text that names a file which cannot be read.
    std::string fileText(std::string_view file) const {
        return "Errore su File :" + archivio.path() + "/\\" + std::string(file);
    }
};

std::string noise(std::size_t length) {
    std::mt19937 random(1);
    std::string bytes;
    for (std::size_t i = 0; i < length; ++i) {
        bytes += static_cast<char>(random() & 0xFF);
    }
    return bytes;
}

} // namespace

TEST_F(Messages, AMissingAppointmentArchiveIsSaidAndTheWindowComes) {
    archivio.remove("wrighipl");
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = startWithEvent();
    confirmMessage(planner, "information", fileText("wrighipl"));
    checkAnswer(planner, 'M', "Planner Mensile");
}

TEST_F(Messages, AnEmptyAppointmentArchiveIsSaidAndTheDailyWindowComes) {
    archivio.write("wrighipl", "");
    archivio.writeTransit(requestBytes('G'));
    Programma& planner = startWithEvent();
    confirmMessage(planner, "information", fileText("wrighipl"));
    checkAnswer(planner, 'G', "Planner Giornaliero");
}

TEST_F(Messages, AMissingYearArchiveIsSaidAndTheYearlyWindowComes) {
    archivio.remove("wplanner");
    archivio.writeTransit(requestBytes('A'));
    Programma& planner = startWithEvent();
    confirmMessage(planner, "information", fileText("wplanner"));
    checkAnswer(planner, 'A', "Planner Annuale");
}

TEST_F(Messages, AnAppointmentOnNoDayOfTheCalendarIsSaid) {
    archivio.write("wrighipl", archivio.read("wrighipl") + test::bytesOf(test::riga("01", "20060332")));
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = startWithEvent();
    confirmMessage(planner, "critical",
                   "Una riga degli impegni non è stata mostrata: la data 32/03/2006 non esiste.");
    checkAnswer(planner, 'M', "Planner Mensile");
}

TEST_F(Messages, AMissingStaffArchiveKeepsNobodyFromTheWindow) {
    archivio.remove("wcollab");
    archivio.writeTransit(requestBytes('M'));
    checkAnswer(startWithEvent(), 'M', "Planner Mensile");
}

TEST_F(Messages, NoisyArchivesStillEndInAnAnswer) {
    for (const char* file : {"wrighipl", "wcollab", "wplanner", "wgrafici"}) {
        archivio.write(file, noise(22'801));
    }
    archivio.writeTransit(requestBytes('M'));
    checkAnswer(startWithEvent(), 'M', "Planner Mensile");
    archivio.writeTransit(requestBytes('G'));
    checkAnswer(startWithEvent(), 'G', "Planner Giornaliero");
    archivio.writeTransit(requestBytes('A'));
    checkAnswer(startWithEvent(), 'A', "Planner Annuale");
}

} // namespace planner::e2e
