// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/numeric_value.h"
#include "sample_archive/sample_archive.h"
#include "session/calendar_rules.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace planner::toolstest {

namespace {

double hoursOf(const RigaGrafico& riga) {
    const std::string_view text = riga.ore.front().view();
    return numericValue(text.substr(0, 5)) + numericValue(text.substr(5, 2)) / 60;
}

class SampleHours : public testing::TestWithParam<std::uint32_t> {
protected:
    const ArchivioCampione m_archivio = creaArchivioCampione({.anno = 2006, .seme = GetParam()});
};

} // namespace

TEST_P(SampleHours, AreHoursColonMinutes) {
    for (const RigaGrafico& riga : m_archivio.grafici) {
        for (const auto& ore : riga.ore) {
            EXPECT_EQ(ore.view()[4], ':') << ore.view();
            EXPECT_EQ(ore.view().find_first_not_of("0123456789:"), std::string_view::npos) << ore.view();
            EXPECT_LT(wholeNumber(ore.view().substr(5, 2)), 60);
        }
    }
}

TEST_P(SampleHours, AreThoseOfAWorkingDay) {
    for (const RigaGrafico& riga : m_archivio.grafici) {
        const Data data = dateFromTexts(riga.giorno.view(), riga.mese.view(), riga.anno.view());
        EXPECT_EQ(yearOf(data), 2006);
        EXPECT_NE(weekdayOf(data), 1);
        EXPECT_GE(hoursOf(riga), 1);
        EXPECT_LT(hoursOf(riga), 10) << "the bars of the yearly chart would reach a tenth of its axis";
    }
}

TEST_P(SampleHours, OfAPersonVaryFromDayToDay) {
    std::map<std::string, std::set<double>> ofPerson;
    for (const RigaGrafico& riga : m_archivio.grafici) {
        if (riga.mese.view() == "03") {
            ofPerson[riga.codice.text()].insert(hoursOf(riga));
        }
    }
    for (const auto& [codice, hours] : ofPerson) {
        EXPECT_GE(hours.size(), 6u) << codice;
    }
}

TEST_P(SampleHours, ComeOncePerPersonAndDay) {
    std::set<std::string> seen;
    for (const RigaGrafico& riga : m_archivio.grafici) {
        EXPECT_TRUE(seen.insert(riga.codice.text() + riga.mese.text() + riga.giorno.text()).second);
    }
}

TEST_P(SampleHours, DifferFromMonthToMonthInTheYearlyChart) {
    std::map<std::string, double> lastOfMonth;
    for (const RigaGrafico& riga : m_archivio.grafici) {
        lastOfMonth[riga.mese.text()] = hoursOf(riga);
    }
    std::set<double> values;
    for (const auto& [mese, hours] : lastOfMonth) {
        EXPECT_GT(hours, 0) << "month " << mese;
        values.insert(hours);
    }
    EXPECT_EQ(lastOfMonth.size(), 12u);
    EXPECT_GE(values.size(), 5u);
}

TEST_P(SampleHours, AreFewerForPartTimersAndInAugust) {
    std::map<std::string, double> ofPerson;
    std::map<std::string, double> ofMonth;
    for (const RigaGrafico& riga : m_archivio.grafici) {
        ofPerson[riga.codice.text()] += hoursOf(riga);
        ofMonth[riga.mese.text()] += hoursOf(riga);
    }
    EXPECT_EQ(ofPerson.size(), 12u);
    EXPECT_LT(ofPerson["DA"], ofPerson["RB"] * 0.6);
    EXPECT_LT(ofMonth["08"], ofMonth["07"] * 0.7);
    EXPECT_GT(ofMonth["08"], 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, SampleHours, testing::Values(1u, 2u, 3u));

} // namespace planner::toolstest
