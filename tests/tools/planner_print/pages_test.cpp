// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "print_fixture.h"
#include "session/calendar_rules.h"

#include <set>
#include <sstream>

namespace planner::test {

namespace {

using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

struct PrintedPages : PrintFixture {};

std::set<std::string> wordsOf(const std::string& page) {
    std::istringstream stream(page);
    std::set<std::string> words;
    for (std::string word; stream >> word;) {
        words.insert(word);
    }
    return words;
}

void expectDays(const std::string& page, int last) {
    const std::set<std::string> words = wordsOf(page);
    for (int day = 1; day <= last; ++day) {
        EXPECT_TRUE(words.contains(std::to_string(day))) << day;
    }
}

} // namespace

TEST_F(PrintedPages, EveryNameAndEveryDayIsOnThePages) {
    for (const int staff : {1, 60, 500}) {
        writeOffice(staff);
        printInto("--pdf", "mese.pdf", {"--totali"});
        const std::vector<std::string> printed = pages("mese.pdf");
        std::string grid;
        std::string totals;
        for (std::size_t i = 0; i < printed.size(); ++i) {
            const bool isTotals = printed[i].find("Mese di Marzo 2006 - totali") != std::string::npos;
            (isTotals ? totals : grid) += printed[i];
            EXPECT_THAT(printed[i], HasSubstr("Mese di Marzo 2006"));
            EXPECT_THAT(printed[i], HasSubstr("Stampato il 24/03/2006"));
            EXPECT_THAT(printed[i], HasSubstr("pagina " + std::to_string(i + 1) + " di " +
                                              std::to_string(printed.size())));
            if (isTotals) {
                EXPECT_THAT(printed[i], HasSubstr("Note riservate"));
            } else {
                expectDays(printed[i], 31);
            }
        }
        for (const Collaboratore& each : office.collaboratori) {
            const std::string name = utf8FromCp1252(each.nome.trimmedRight());
            EXPECT_THAT(grid, HasSubstr(name));
            EXPECT_THAT(totals, HasSubstr(name));
        }
        EXPECT_THAT(grid, HasSubstr("*NON ASSEGNATE*"));
    }
}

TEST_F(PrintedPages, ADayHasItsNamesAndHours) {
    writeRequest("G");
    printInto("--pdf", "giorno.pdf");
    const std::vector<std::string> printed = pages("giorno.pdf");
    ASSERT_THAT(printed, SizeIs(1));
    EXPECT_THAT(printed.front(), HasSubstr("mercoledì 15 marzo 2006"));
    for (const Collaboratore& each : office.collaboratori) {
        EXPECT_THAT(printed.front(), HasSubstr(utf8FromCp1252(each.nome.trimmedRight())));
    }
    const std::set<std::string> words = wordsOf(printed.front());
    for (int hour = 7; hour < 20; ++hour) {
        EXPECT_TRUE(words.contains(std::to_string(hour))) << hour;
    }
}

TEST_F(PrintedPages, AYearHasItsMonthsAndDaysOnOneSheet) {
    writeRequest("A");
    printInto("--pdf", "anno.pdf");
    const std::vector<std::string> printed = pages("anno.pdf");
    ASSERT_THAT(printed, SizeIs(1));
    for (const std::string_view month : NomiMesi) {
        EXPECT_THAT(printed.front(), HasSubstr(std::string(month)));
    }
    expectDays(printed.front(), 31);
}

TEST_F(PrintedPages, A3IsALargerSheet) {
    printInto("--pdf", "a4.pdf");
    printInto("--pdf", "a3.pdf", {"--a3"});
    EXPECT_THAT(folder.read("a4.pdf"), HasSubstr("/MediaBox [0 0 842.000000 595.000000]"));
    EXPECT_THAT(folder.read("a3.pdf"), HasSubstr("/MediaBox [0 0 1191.000000 842.000000]"));
}

TEST_F(PrintedPages, PicturesAreNumberedWhereThereAreSeveral) {
    printInto("--png", "uno.png");
    EXPECT_THAT(folder.read("uno.png"), StartsWith("\x89PNG"));
    printInto("--png", "due.png", {"--totali"});
    EXPECT_FALSE(folder.exists("due.png"));
    EXPECT_THAT(folder.read("due-1.png"), StartsWith("\x89PNG"));
    EXPECT_THAT(folder.read("due-2.png"), StartsWith("\x89PNG"));
    EXPECT_FALSE(folder.exists("due-3.png"));
}

TEST_F(PrintedPages, TheSameRequestGivesTheSamePicture) {
    printInto("--png", "uno.png");
    printInto("--png", "due.png");
    EXPECT_EQ(folder.read("uno.png"), folder.read("due.png"));
}

TEST_F(PrintedPages, NamesAreNeverMarkup) {
    folder.write("wcollab", bytesOf(std::vector{collaboratore("AA", "<b>Rossi</b> &amp; %1")}));
    printInto("--pdf", "mese.pdf");
    EXPECT_THAT(pages("mese.pdf").front(), HasSubstr("<b>Rossi</b> &amp; %1"));
}

} // namespace planner::test
