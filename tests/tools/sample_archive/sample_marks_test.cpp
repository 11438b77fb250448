// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/numeric_value.h"
#include "sample_archive/sample_archive.h"
#include "sample_archive/working_days.h"
#include "session/calendar_rules.h"
#include "session/totals.h"

#include <gtest/gtest.h>
#include <map>

namespace planner::toolstest {

namespace {

using Totali = std::array<double, CategorieTotali.size()>;

std::map<std::string, Totali> totalsByDay(const std::vector<RigaPlanner>& righe) {
    std::map<std::string, Totali> totals;
    for (const RigaPlanner& riga : righe) {
        Totali& day = totals[riga.anno.text() + riga.mese.text() + riga.giorno.text()];
        const ValoriContatori valori = valoriContatori(riga);
        for (std::size_t i = 0; i < day.size(); ++i) {
            day[i] += valori.at(CategorieTotali[i].contatori[0]) + valori.at(CategorieTotali[i].contatori[1]);
        }
    }
    return totals;
}

double cellNumber(const MesePlanner& mese, std::size_t cell, std::size_t field) {
    return numericValue(mese.testi.at(cell).view().substr(field * 4, 4));
}

/// The day of cell 1 to 42, counted out from the month's first weekday; empty for a cell without a day.
std::string dayOfCell(int anno, int mese, int cell) {
    const auto first = makeDate(anno, mese, 1);
    const int mondayFirst = weekdayOf(*first) == 1 ? 7 : weekdayOf(*first) - 1;
    const auto day = makeDate(anno, mese, cell - mondayFirst + 1);
    return day ? formatDate(*day) : std::string{};
}

class SampleMarks : public testing::TestWithParam<int> {
protected:
    /// Calls `check(month record, cell index from 0, day)` for each mark.
    template <typename Check>
    void forEachMark(Check check) const {
        for (std::size_t month = 0; month < 12; ++month) {
            for (std::size_t cell = 0; cell < MesePlanner::CellCount; ++cell) {
                const MesePlanner& mese = m_archivio.mesi.at(month);
                if (mese.segni.at(cell).view() == "*") {
                    check(mese, cell,
                          dayOfCell(GetParam(), static_cast<int>(month) + 1, static_cast<int>(cell) + 1));
                }
            }
        }
    }

    const ArchivioCampione m_archivio = creaArchivioCampione({.anno = GetParam()});
    const std::map<std::string, Totali> m_totals = totalsByDay(m_archivio.righe);
};

} // namespace

TEST_P(SampleMarks, StandForTwelveMonthsOfTheYear) {
    ASSERT_EQ(m_archivio.mesi.size(), 12u);
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(m_archivio.mesi[i].anno.view(), std::to_string(GetParam()));
        EXPECT_EQ(m_archivio.mesi[i].mese.view(), twoDigits(static_cast<int>(i) + 1));
    }
}

TEST_P(SampleMarks, MarkDaysThatHaveLines) {
    forEachMark([&](const MesePlanner&, std::size_t cell, const std::string& day) {
        EXPECT_TRUE(m_totals.contains(day)) << "cell " << cell << ", day " << day;
    });
}

TEST_P(SampleMarks, NumbersOfADayAddUpItsLines) {
    forEachMark([&](const MesePlanner& mese, std::size_t cell, const std::string& day) {
        const Totali& totali = m_totals.at(day);
        const auto number = [&](std::size_t field) { return cellNumber(mese, cell, field); };
        EXPECT_EQ(number(0) + number(4), totali[0]) << day;
        EXPECT_EQ(number(1) + number(5), totali[1]) << day;
        EXPECT_EQ(number(6), totali[2]) << day;
        EXPECT_EQ(number(7), totali[3]) << day;
        EXPECT_EQ(number(2) + number(8), totali[4]) << day;
        EXPECT_EQ(number(3) + number(9), totali[5]) << day;
        EXPECT_EQ(number(10), totali[6]) << day;
    });
}

TEST_P(SampleMarks, StandOnAboutHalfOfTheWorkingDays) {
    std::size_t marks = 0;
    forEachMark([&](const MesePlanner&, std::size_t, const std::string&) { ++marks; });
    const std::size_t workingDays = giorniLavorativi(GetParam()).size();
    EXPECT_GT(marks * 100, workingDays * 40);
    EXPECT_LT(marks * 100, workingDays * 60);
}

TEST_P(SampleMarks, LeaveUnmarkedCellsBlank) {
    for (const MesePlanner& mese : m_archivio.mesi) {
        for (std::size_t cell = 0; cell < MesePlanner::CellCount; ++cell) {
            EXPECT_EQ(mese.segni[cell].view() == "*", !mese.testi[cell].trimmed().empty());
        }
    }
}

// 2006 and 2023 begin on a Sunday, 2024 on a Monday and is a leap year.
INSTANTIATE_TEST_SUITE_P(Years, SampleMarks, testing::Values(2006, 2023, 2024));

TEST(SampleMarksOfAFewLines, StillMarkTheirDays) {
    std::string marks;
    for (const MesePlanner& mese : creaArchivioCampione({.collaboratori = 1, .righe = 5}).mesi) {
        for (const auto& segno : mese.segni) {
            marks += segno.trimmed();
        }
    }
    EXPECT_EQ(marks.find_first_not_of('*'), std::string::npos);
    EXPECT_GE(marks.size(), 3u);
}

} // namespace planner::toolstest
