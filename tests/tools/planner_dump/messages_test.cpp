// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <gtest/gtest.h>

namespace planner::test {

TEST(DumpMessages, ImpossibleDatesAreSaidTogetherAndCountAsMissing) {
    SmallOffice office;
    office.richiesta = request("G");
    office.richiesta.valret.assign("20060230");
    office.richiesta.startdate.assign("20061301");
    office.richiesta.enddate.assign("domani");
    const Json dump = office.dump();
    EXPECT_EQ(
        dump.at("messaggi"),
        Json::array({critical("Richiesta non valida: il giorno da mostrare \"20060230\" non è una data; "
                              "la data iniziale \"20061301\" non è una data; "
                              "la data finale \"domani\" non è una data.")}));
    EXPECT_EQ(dump.at("calendario"), "2025-11-20") << "today is left";
    EXPECT_EQ(dump.at("finestra").at("titolo"), "Dal 1 Gennaio 2025 al 31 Dicembre 2025");
}

TEST(DumpMessages, MissingAppointmentsAreSaidWithTheFullPath) {
    SmallOffice office;
    office.write();
    office.removeFile("wrighipl");
    const Json dump = office.dumpAsItIs();
    EXPECT_EQ(dump.at("messaggi"),
              Json::array({information("Errore su File :" + office.folder() + "\\wrighipl")}));
    EXPECT_EQ(dump.at("totali"), Json::array({Json::array({0, 0, 0, 0, 0, 0, 0})}));
    EXPECT_TRUE(findCell(dump, 2, 0)) << "the staff is shown all the same";
}

TEST(DumpMessages, EmptyAppointmentsAreSaid) {
    SmallOffice office;
    office.write();
    office.writeFile("wrighipl", "");
    EXPECT_EQ(office.dumpAsItIs().at("messaggi"),
              Json::array({information("Errore su File :" + office.folder() + "\\wrighipl")}));
}

TEST(DumpMessages, AFolderInAFilesPlaceIsSaid) {
    SmallOffice office;
    office.write();
    office.removeFile("wrighipl");
    std::filesystem::create_directory(office.folder() + "wrighipl");
    EXPECT_EQ(office.dumpAsItIs().at("messaggi"),
              Json::array({information("Errore su File :" + office.folder() + "\\wrighipl")}));
}

TEST(DumpMessages, MissingStaffIsNotSaidAndLeavesTheUnassignedRow) {
    SmallOffice office;
    office.write();
    office.removeFile("wcollab");
    const Json dump = office.dumpAsItIs();
    EXPECT_EQ(dump.at("messaggi"), Json::array());
    EXPECT_EQ(dump.at("collaboratori"), Json::array());
    ASSERT_TRUE(findCell(dump, 2, 0));
    EXPECT_EQ(findCell(dump, 2, 0)->at("testo"), "*NON ASSEGNATE*");
    EXPECT_EQ(dump.at("totali").at(0), Json({2, 3, 4, 1, 1, 1, 0})) << "all entries are nobody's";
}

TEST(DumpMessages, MissingYearIsSaid) {
    SmallOffice office;
    office.richiesta = request("A");
    office.write();
    office.removeFile("wplanner");
    const Json dump = office.dumpAsItIs();
    EXPECT_EQ(dump.at("messaggi"),
              Json::array({information("Errore su File :" + office.folder() + "\\wplanner")}));
    ASSERT_TRUE(findCell(dump, 3, 17));
    EXPECT_EQ(findCell(dump, 3, 17)->at("sfondo"), "#e0e0e0") << "laid out, not marked";
}

TEST(DumpMessages, BadRequestComesBeforeMissingFiles) {
    SmallOffice office;
    office.richiesta.enddate.assign("20060101");
    office.write();
    office.removeFile("wrighipl");
    EXPECT_EQ(office.dumpAsItIs().at("messaggi"),
              Json::array({critical("Richiesta non valida: la data finale viene prima della data iniziale."),
                           information("Errore su File :" + office.folder() + "\\wrighipl")}));
}

TEST(DumpMessages, RecordsLeftOutAreSaidOnceAfterMissingNothingElse) {
    SmallOffice office;
    office.righe.push_back(entry("RM", "20060332"));
    RigaPlanner tooMany = entry("RM", "20060310");
    setCounter(tooMany, 8, "99999");
    office.righe.push_back(tooMany);
    const Json dump = office.dump();
    EXPECT_EQ(dump.at("messaggi"),
              Json::array({critical("2 righe degli impegni non sono state mostrate. La prima: "
                                    "la data 32/03/2006 non esiste.")}));
    EXPECT_EQ(findCell(dump, 2, 12), std::nullopt);
    EXPECT_EQ(dump.at("totali").at(0), Json({2, 0, 0, 1, 1, 0, 0}));
}

TEST(DumpMessages, ATransitFileAloneGivesAWindowWithMessages) {
    SmallOffice office;
    office.writeFile("transito", "");
    const Json dump = office.dumpAsItIs();
    EXPECT_EQ(dump.at("richiesta").at("startdate"), "        ");
    EXPECT_EQ(dump.at("messaggi"),
              Json::array({critical("Richiesta non valida: il tipo di planner \" \" non è M, G o A.")}));
    EXPECT_EQ(dump.at("calendario"), "2025-11-20");
}

} // namespace planner::test
