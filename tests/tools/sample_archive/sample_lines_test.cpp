// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/numeric_value.h"
#include "sample_archive/sample_archive.h"
#include "session/calendar_rules.h"
#include "session/staff.h"
#include "session/tipi_impegno.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace planner::toolstest {

namespace {

Data dayOfLine(const RigaPlanner& riga) {
    return dateFromTexts(riga.giorno.view(), riga.mese.view(), riga.anno.view());
}

std::string kinds(const RigaPlanner& riga) {
    return std::string(chiaveImmagine(immagineTipi(tipiPresenti(valoriContatori(riga)))));
}

int minuteOf(const RigaPlanner& riga) {
    return wholeNumber(riga.oraInizio.view()) * 60 + wholeNumber(riga.minutoInizio.view());
}

int lengthInMinutes(const RigaPlanner& riga) {
    return static_cast<int>(numericValue(riga.durata.view())) * 60 +
           wholeNumber(lastChars(riga.durata.view(), 2));
}

bool hasHour(const RigaPlanner& riga) {
    return !riga.oraInizio.trimmed().empty();
}

class SampleLines : public testing::TestWithParam<std::uint32_t> {
protected:
    const ArchivioCampione m_archivio = creaArchivioCampione({.anno = 2024, .seme = GetParam()});
};

} // namespace

TEST_P(SampleLines, FallOnWorkingDaysOfTheYear) {
    for (const RigaPlanner& riga : m_archivio.righe) {
        const Data data = dayOfLine(riga);
        EXPECT_EQ(yearOf(data), 2024);
        EXPECT_NE(weekdayOf(data), 1);
        EXPECT_NE(weekdayOf(data), 7);
        EXPECT_EQ(trovaFestivo(dayOf(data) - 1, monthOf(data)), nullptr) << formatDate(data);
    }
}

TEST_P(SampleLines, CountersAreFiveDigits) {
    for (const RigaPlanner& riga : m_archivio.righe) {
        for (const auto& contatore : riga.contatori) {
            EXPECT_EQ(contatore.view().find_first_not_of("0123456789"), std::string_view::npos);
        }
    }
}

TEST_P(SampleLines, ConcludedEntriesAreNeverMoreThanEntries) {
    for (const RigaPlanner& riga : m_archivio.righe) {
        const ValoriContatori valori = valoriContatori(riga);
        EXPECT_LE(valori[3], valori[1]);
        EXPECT_LE(valori[9], valori[5]);
        EXPECT_LE(valori[4], valori[2]);
        EXPECT_LE(valori[10], valori[6]);
        EXPECT_LE(valori[11], valori[8]);
    }
}

TEST_P(SampleLines, EveryMonthButAugustShowsAllFifteenPictures) {
    std::map<std::string, std::set<std::string>> picturesOfMonth;
    for (const RigaPlanner& riga : m_archivio.righe) {
        picturesOfMonth[riga.mese.text()].insert(kinds(riga));
    }
    const std::set<std::string> all(ChiaviImmagini.begin(), ChiaviImmagini.end());
    for (const auto& [mese, pictures] : picturesOfMonth) {
        if (mese != "08") {
            EXPECT_EQ(pictures, all) << "month " << mese;
        }
    }
    EXPECT_EQ(picturesOfMonth.size(), 12u);
}

TEST_P(SampleLines, SingleKindsAreCommon) {
    std::map<std::string, std::size_t> count;
    for (const RigaPlanner& riga : m_archivio.righe) {
        ++count[kinds(riga)];
    }
    for (const char* kind : {"1", "2", "3", "4"}) {
        EXPECT_GT(count[kind], m_archivio.righe.size() / 20) << "kind " << kind;
    }
}

TEST_P(SampleLines, LieWithinTheWorkingDay) {
    std::size_t withoutHour = 0;
    for (const RigaPlanner& riga : m_archivio.righe) {
        if (!hasHour(riga)) {
            ++withoutHour;
            EXPECT_TRUE(riga.minutoInizio.trimmed().empty());
            continue;
        }
        EXPECT_GE(minuteOf(riga), 8 * 60);
        EXPECT_LE(minuteOf(riga) + lengthInMinutes(riga), 18 * 60 + 30);
        EXPECT_GE(ConvertiDurata(riga.durata.view()), 1);
    }
    EXPECT_GT(withoutHour, m_archivio.righe.size() * 3 / 100);
    EXPECT_LT(withoutHour, m_archivio.righe.size() * 8 / 100);
}

TEST_P(SampleLines, OfOneDayAndPersonDoNotOverlap) {
    std::map<std::string, int> endOfLast;
    for (const RigaPlanner& riga : m_archivio.righe) {
        if (!hasHour(riga)) {
            continue;
        }
        int& end = endOfLast[riga.codice.text() + formatDate(dayOfLine(riga))];
        EXPECT_GE(minuteOf(riga), riga.codice.view() == "ZZ" ? 0 : riga.codice.trimmed().empty() ? 0 : end);
        end = minuteOf(riga) + lengthInMinutes(riga);
    }
}

TEST_P(SampleLines, LastLineOfADayHoldsAllKindsOfThatDay) {
    std::map<std::string, std::set<char>> kindsOfDay;
    std::map<std::string, std::string> lastOfDay;
    for (const RigaPlanner& riga : m_archivio.righe) {
        if (!IndiceCodici(m_archivio.collaboratori).trova(riga.codice.view()).presente()) {
            continue;
        }
        const std::string key = riga.codice.text() + formatDate(dayOfLine(riga));
        const std::string tipi = kinds(riga);
        kindsOfDay[key].insert(tipi.begin(), tipi.end());
        lastOfDay[key] = tipi;
    }
    for (const auto& [key, tipi] : kindsOfDay) {
        EXPECT_EQ(lastOfDay[key], std::string(tipi.begin(), tipi.end())) << key;
    }
}

TEST_P(SampleLines, AFewHaveACodeThatNobodyHas) {
    const IndiceCodici indice(m_archivio.collaboratori);
    const auto strangers =
        std::count_if(m_archivio.righe.begin(), m_archivio.righe.end(),
                      [&](const RigaPlanner& riga) { return !indice.trova(riga.codice.view()).presente(); });
    EXPECT_GE(strangers, 10);
    EXPECT_LE(strangers, 60);
}

TEST_P(SampleLines, DeadlinesPileUpOnTaxDays) {
    std::map<std::string, int> deadlines;
    for (const RigaPlanner& riga : m_archivio.righe) {
        const ValoriContatori valori = valoriContatori(riga);
        deadlines[riga.mese.text() + riga.giorno.text()] += static_cast<int>(valori[1] + valori[5]);
    }
    EXPECT_GT(deadlines["0716"], 2 * deadlines["0710"]);
    EXPECT_GT(deadlines["1202"], 2 * deadlines["1204"]); // 30 November 2024 is a Saturday
}

TEST_P(SampleLines, AreFewerInAugust) {
    std::map<std::string, int> ofMonth;
    for (const RigaPlanner& riga : m_archivio.righe) {
        ++ofMonth[riga.mese.text()];
    }
    EXPECT_LT(ofMonth["08"], ofMonth["07"] / 2);
    EXPECT_GT(ofMonth["08"], 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, SampleLines, testing::Values(1u, 2u, 3u));

TEST(SampleLineCount, IsExactlyTheOneAskedFor) {
    for (const int righe : {200, 5000, 32'767}) {
        EXPECT_EQ(creaArchivioCampione({.righe = righe}).righe.size(), static_cast<std::size_t>(righe));
    }
}

TEST(SampleLineCount, IsAlwaysGreaterThanTheStaff) {
    for (const int staff : {1, 12, 500}) {
        EXPECT_GT(creaArchivioCampione({.collaboratori = staff, .righe = 1}).righe.size(),
                  static_cast<std::size_t>(staff));
    }
}

TEST(SampleLineCount, LeavesTheTotalsWithin16Bits) {
    const auto archivio = creaArchivioCampione({.collaboratori = 12, .righe = 32'767});
    TabellaTotali totali(12);
    for (const RigaPlanner& riga : archivio.righe) {
        if (riga.mese.view() == "06") {
            const auto indice = IndiceCodici(archivio.collaboratori).trova(riga.codice.view());
            EXPECT_NO_THROW(
                totali.aggiungi(indice.presente() ? indice : IndiceCollaboratore{12}, valoriContatori(riga)));
        }
    }
    EXPECT_GT(totali.at({0}, Totale::scadenze), 0);
}

} // namespace planner::toolstest
