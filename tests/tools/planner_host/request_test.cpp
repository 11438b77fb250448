// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/byte_dump.h"
#include "planner_host/errors.h"
#include "planner_host/request.h"
#include "planner_host/transit_file.h"
#include "support/temp_folder.h"

#include <fstream>
#include <gmock/gmock.h>

namespace planner::toolstest {

using testing::HasSubstr;

namespace {

OpzioniHost sampleOptions() {
    OpzioniHost opzioni;
    opzioni.inizio = "20060101";
    opzioni.fine = "20061231";
    opzioni.giorno = "20060315";
    return opzioni;
}

} // namespace

TEST(Request, FillsEveryField) {
    OpzioniHost opzioni = sampleOptions();
    opzioni.riservato1 = "R1";
    opzioni.riservato2 = "R2";
    opzioni.tipocall = 'A';
    opzioni.collab = "RB";
    opzioni.windowcaption = "NTitolo di ventuno  B";
    opzioni.planrichiesto = 'S';
    const TransitRequest richiesta = creaRichiesta(opzioni, 'G');
    const std::string bytes(reinterpret_cast<const char*>(&richiesta), sizeof richiesta);
    EXPECT_EQ(bytes,
              "R1      G2006010120061231R2" + std::string(58, ' ') + "ARB20060315   NTitolo di ventuno  BS");
}

TEST(Request, TakesARawIncomingAnswerAsItIs) {
    OpzioniHost opzioni = sampleOptions();
    opzioni.valret = "00000000XXY";
    EXPECT_EQ(creaRichiesta(opzioni, 'M').valret.view(), "00000000XXY");
}

TEST(Request, HidesTheNameOnlyInTheYearlyPlannerOfTheWholeOffice) {
    OpzioniHost opzioni = sampleOptions();
    EXPECT_EQ(creaRichiesta(opzioni, 'A').Windowcaption.view().front(), 'N');
    EXPECT_EQ(creaRichiesta(opzioni, 'M').Windowcaption.view().front(), ' ');
    opzioni.collab = "RB";
    EXPECT_EQ(creaRichiesta(opzioni, 'A').Windowcaption.view().front(), ' ');
}

TEST(Request, IsDescribedInWords) {
    OpzioniHost opzioni = sampleOptions();
    opzioni.fine = "00000000";
    opzioni.collab = "RB";
    EXPECT_EQ(descriviRichiesta(creaRichiesta(opzioni, 'G')),
              "planner giornaliero dal 01/01/2006 al (nessuna data), giorno 15/03/2006, collaboratore RB");
    opzioni.inizio = "20060231";
    EXPECT_THAT(descriviRichiesta(creaRichiesta(opzioni, 'M')), HasSubstr("dal \"20060231\""));
}

TEST(ByteDump, ShowsAllBytesAndFields) {
    TransitRequest richiesta = creaRichiesta(sampleOptions(), 'M');
    richiesta.riservato1.assign("\xE8\x1B");
    const std::string text = mostraByte(richiesta);
    EXPECT_THAT(text,
                HasSubstr("  000  e8 1b 20 20 20 20 20 20 4d 32 30 30 36 30 31 30  |..      M2006010|\n"));
    EXPECT_THAT(text, HasSubstr("  112  6f 76 61 20 20 20 20 20 20                       |ova      |\n"));
    EXPECT_THAT(text, HasSubstr("  riservato1      0   8  \"è.      \"\n"));
    for (const Field& field : TransitRequestFields) {
        EXPECT_THAT(text, HasSubstr("\n  " + std::string(field.name) + " "));
    }
}

TEST(TransitFile, HoldsExactlyOneRecord) {
    const test::TempFolder folder;
    const TransitRequest richiesta = creaRichiesta(sampleOptions(), 'M');
    scriviTransito(folder.folder() / "transito.dat", richiesta);
    EXPECT_EQ(std::filesystem::file_size(folder.folder() / "transito.dat"), 121u);
    const TransitRequest back = leggiTransito(folder.folder() / "transito.dat");
    EXPECT_EQ(back.valret, richiesta.valret);
    EXPECT_EQ(back.planrichiesto, richiesta.planrichiesto);
}

TEST(TransitFile, IsRefusedWhenMissingOrShort) {
    const test::TempFolder folder;
    EXPECT_THROW(leggiTransito(folder.folder() / "transito.dat"), HostError);
    std::ofstream(folder.folder() / "transito.dat") << std::string(120, 'x');
    EXPECT_THROW(leggiTransito(folder.folder() / "transito.dat"), HostError);
    EXPECT_THROW(scriviTransito(folder.folder() / "nessuna" / "transito.dat", TransitRequest{}), HostError);
}

} // namespace planner::toolstest
