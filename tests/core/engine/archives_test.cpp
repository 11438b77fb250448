// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Message RigheMessage{MessageIcon::Information, "Planner", "Errore su File :C:\\arch\\wrighipl"};
const Message AnnualeMessage{MessageIcon::Information, "Planner", "Errore su File :C:\\arch\\wplanner"};
const Message GraficiMessage{MessageIcon::Information, "Planner", "Errore sul File :C:\\arch\\wgrafici"};

class ArchivesTest : public testing::Test {
protected:
    ArchivesTest() {
        bench.sessione.PathArchivi = PlannerBench::Cartella;
        bench.controlli.calendario.setValue(*makeDate(2006, 10, 20));
    }

    Archivi& archivi() { return bench.sessione.archivi; }
    std::vector<Message>& messages() { return bench.messaggi.shown; }

    PlannerBench bench;
};

TEST_F(ArchivesTest, LeggiDatiReadsTheAppointments) {
    bench.putRighe({riga("RB", "20060315"), riga("BI", "20060316")});
    bench.motore.LeggiDati();
    EXPECT_EQ(archivi().NumRighe, 2);
    EXPECT_EQ(archivi().RighePlanner.at(1).codice.view(), "BI");
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ArchivesTest, LeggiDatiShowsTheSessionDateAndItsMonthsFirstWeekday) {
    bench.motore.LeggiDati();
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20061020");
    EXPECT_EQ(bench.controlli.PrimoGiornoSettimana(), 1);
}

TEST_F(ArchivesTest, LeggiDatiGivesTheGridsTheStaffsRowsAndTenToSpare) {
    bench.putCollaboratori(std::vector<Collaboratore>(5, collaboratore("XX", "x")));
    bench.motore.LeggiCollab();
    bench.motore.LeggiDati();
    EXPECT_EQ(archivi().NumCollab, 5);
    EXPECT_EQ(bench.controlli.Flxm.Rows(), 17);
    EXPECT_EQ(bench.controlli.flxg.Rows(), 16);
}

TEST_F(ArchivesTest, LeggiDatiWithoutFileShowsItsMessage) {
    bench.files.remove(PlannerBench::path(FileRighe));
    bench.motore.LeggiDati();
    EXPECT_THAT(messages(), ElementsAre(RigheMessage));
}

TEST_F(ArchivesTest, LeggiDatiWithoutFileKeepsWhatItHad) {
    bench.putRighe({riga("RB", "20060315")});
    bench.motore.LeggiDati();
    bench.files.remove(PlannerBench::path(FileRighe));
    bench.motore.LeggiDati();
    EXPECT_EQ(archivi().NumRighe, 1);
    EXPECT_EQ(archivi().RighePlanner.at(0).codice.view(), "RB");
}

TEST_F(ArchivesTest, LeggiDatiOfALockedFileShowsItsMessage) {
    bench.files.refuse(PlannerBench::path(FileRighe));
    bench.motore.LeggiDati();
    EXPECT_THAT(messages(), ElementsAre(RigheMessage));
}

TEST_F(ArchivesTest, LeggiDatiOfZeroBytesLeavesOneBlankElementAndShowsNoAppointment) {
    bench.init("M", "20060315");
    bench.put(FileRighe, "");
    bench.init("M", "20060315");
    EXPECT_EQ(archivi().NumRighe, 0);
    EXPECT_EQ(bytesOf(archivi().RighePlanner), std::string(89, ' '));
    EXPECT_THAT(messages(), ElementsAre(RigheMessage));
    for (int row = 2; row < bench.controlli.Flxm.Rows(); ++row) {
        for (int column = 1; column <= 37; ++column) {
            ASSERT_EQ(bench.controlli.Flxm.cella(row, column).immagine, 0);
        }
    }
}

TEST_F(ArchivesTest, LeggiDatiOfMoreRecordsThan16BitsCountShowsItsMessage) {
    bench.put(FileRighe, std::string(32768 * 89, ' '));
    bench.motore.LeggiDati();
    EXPECT_THAT(messages(), ElementsAre(RigheMessage));
}

TEST_F(ArchivesTest, LeggiDatiAnnualiShowsTheFirstOfJanuaryOfTheFilesYear) {
    bench.putAnnuale(annoPlanner("2004"));
    bench.motore.LeggiDatiAnnuali();
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20040101");
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ArchivesTest, LeggiDatiAnnualiWithoutFileShowsItsMessageAndLeavesBlankMonths) {
    bench.motore.LeggiDatiAnnuali();
    bench.files.remove(PlannerBench::path(FileAnnuale));
    bench.motore.LeggiDatiAnnuali();
    EXPECT_THAT(messages(), ElementsAre(AnnualeMessage));
    EXPECT_EQ(bytesOf(archivi().PlannerAnnuale.front()), std::string(1900, ' '));
}

TEST_F(ArchivesTest, LeggiDatiAnnualiWithoutYearShowsItsMessage) {
    for (const std::string_view year : {"    ", "abcd", "0000", "1752"}) {
        messages().clear();
        bench.putAnnuale(annoPlanner(year));
        bench.motore.LeggiDatiAnnuali();
        EXPECT_THAT(messages(), ElementsAre(AnnualeMessage)) << year;
    }
}

TEST_F(ArchivesTest, LeggiCollabReadsTheStaffAndReturnsTrue) {
    EXPECT_TRUE(bench.motore.LeggiCollab());
    EXPECT_EQ(archivi().NumCollab, 3);
    EXPECT_EQ(bench.motore.IndCollaboratore("RB").valore, 1);
}

TEST_F(ArchivesTest, LeggiCollabReturnsFalseWithoutAMessage) {
    bench.files.remove(PlannerBench::path(FileCollaboratori));
    EXPECT_FALSE(bench.motore.LeggiCollab());
    bench.put(FileCollaboratori, "");
    EXPECT_FALSE(bench.motore.LeggiCollab());
    bench.put(FileCollaboratori, std::string(32768 * 125, ' '));
    EXPECT_FALSE(bench.motore.LeggiCollab());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ArchivesTest, LeggiCollabThatFailsKeepsTheStaffItHad) {
    bench.motore.LeggiCollab();
    bench.files.refuse(PlannerBench::path(FileCollaboratori));
    EXPECT_FALSE(bench.motore.LeggiCollab());
    EXPECT_EQ(bench.motore.EstraiCollaboratore("RB"), "Rossi Bruno");
}

TEST_F(ArchivesTest, LeggiDatiPerGraficiReadsTheHours) {
    bench.putGrafici({rigaGrafico("RB", "20060315", "0000830")});
    bench.motore.LeggiDatiPerGrafici();
    EXPECT_EQ(archivi().NumGrafici, 1);
    EXPECT_EQ(archivi().RigheGrafici.at(0).ore.front().view(), "0000830");
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ArchivesTest, LeggiDatiPerGraficiWithoutFileShowsItsOwnMessage) {
    bench.motore.LeggiDatiPerGrafici();
    EXPECT_THAT(messages(), ElementsAre(GraficiMessage));
    EXPECT_EQ(archivi().NumGrafici, 0);
    EXPECT_EQ(bytesOf(archivi().RigheGrafici), std::string(47, ' '));
}

TEST_F(ArchivesTest, MessagesShowTheFullPathWithTheSeparatorsOfTheHost) {
    bench.sessione.PathArchivi = "\\\\server\\dati/2006";
    bench.motore.LeggiDati();
    ASSERT_EQ(messages().size(), 1u);
    EXPECT_EQ(messages().front().text, "Errore su File :\\\\server\\dati/2006\\wrighipl");
}

TEST_F(ArchivesTest, AFullStaffAndAFullAppointmentFileFitTheGrids) {
    bench.put(FileCollaboratori, std::string(32767 * 125, 'x'));
    bench.put(FileRighe, std::string(32767 * 89, '2'));
    bench.init("M", "20060315");
    EXPECT_EQ(archivi().NumCollab, 32767);
    EXPECT_EQ(archivi().NumRighe, 32767);
    EXPECT_EQ(bench.controlli.Flxm.Rows(), 32779);
    EXPECT_EQ(bench.controlli.flxg.Rows(), 32778);
    EXPECT_EQ(bench.controlli.Flxm.TextMatrix(32769, 0), "*NON ASSEGNATE*");
    EXPECT_THAT(messages(), IsEmpty());
}

} // namespace
} // namespace planner::test
