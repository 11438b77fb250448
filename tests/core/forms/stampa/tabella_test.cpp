// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/stampa/tabella.h"
#include "stampa_fixture.h"

#include <algorithm>
#include <sstream>

namespace planner::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct TabellaCopiataTest : StampaFixture {
    TabellaCopiata tabella() const { return tabellaCopiata(bench.controlli, bench.sessione); }
    /// The cells of the text's lines.
    std::vector<std::vector<std::string>> celle() const {
        std::vector<std::vector<std::string>> rows;
        std::istringstream lines(tabella().testo);
        for (std::string line; std::getline(lines, line);) {
            std::vector<std::string>& row = rows.emplace_back(1);
            for (const char c : line) {
                c == '\t' ? row.emplace_back() : row.back() += c;
            }
        }
        return rows;
    }
};

} // namespace

TEST_F(TabellaCopiataTest, AMonthIsARowForEachNameAndAColumnForEachDayAndTotal) {
    bench.putRighe(
        {riga("RB", "20060301", {{1, "00002"}, {2, "00001"}}), riga("BI", "20060331", {{7, "1"}})});
    bench.init("M", "20060315");
    const auto cells = celle();
    ASSERT_EQ(cells.size(), 6u);
    EXPECT_THAT(cells[0], ElementsAre("Mese di Marzo 2006 - Planner Mensile"));
    EXPECT_TRUE(std::all_of(cells.begin() + 1, cells.end(),
                            [](const auto& row) { return row.size() == 1 + 31 + 7; }));
    EXPECT_EQ(cells[1][0], "Collaboratore");
    EXPECT_EQ(cells[1][1], "1");
    EXPECT_EQ(cells[1][31], "31");
    EXPECT_EQ(cells[1][32], "Scadenze");
    EXPECT_EQ(cells[3][0], "Rossi Bruno");
    EXPECT_EQ(cells[3][1], "scadenze, pratiche");
    EXPECT_EQ(cells[3][2], "");
    EXPECT_EQ(cells[3][32], "2");
    EXPECT_EQ(cells[2][31], "note riservate");
    EXPECT_EQ(cells[5][0], "*NON ASSEGNATE*");
}

TEST_F(TabellaCopiataTest, ADayIsAColumnForEachQuarterOfAnHour) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "00001"}}), "09", "15", "0000:30"),
                    riga("BI", "20060315", {{8, "00001"}})});
    bench.init("G", "20060315");
    const auto cells = celle();
    EXPECT_EQ(cells[0][0], "Dal 1 Gennaio 2006 al 31 Dicembre 2006 - mercoledì 15 marzo 2006");
    ASSERT_EQ(cells[1].size(), 2 + 13 * 4 + 7u);
    EXPECT_EQ(cells[1][1], "Senza ora");
    EXPECT_EQ(cells[1][2], "7:00");
    EXPECT_EQ(cells[2][1], "impegni vari");
    const auto column =
        static_cast<std::size_t>(std::find(cells[1].begin(), cells[1].end(), "9:15") - cells[1].begin());
    ASSERT_LT(column, cells[1].size());
    EXPECT_EQ(cells[3][column - 1], "");
    EXPECT_EQ(cells[3][column], "scadenze");
    EXPECT_EQ(cells[3][column + 1], "scadenze");
    EXPECT_EQ(cells[3][column + 2], "");
}

TEST_F(TabellaCopiataTest, AYearHasItsDaysUnderTheirNumbers) {
    auto mesi = annoPlanner("2006", {{3, 17}}); // Wednesday, 15 March
    mesi[2].testi[16].assign("00002");
    bench.putAnnuale(mesi);
    bench.init("A", "20060315");
    const auto cells = celle();
    ASSERT_EQ(cells.size(), 14u);
    EXPECT_EQ(cells[1][0], "Mese");
    EXPECT_EQ(cells[4][0], "Marzo");
    EXPECT_EQ(cells[1][15], "15");
    EXPECT_THAT(cells[4][15], HasSubstr(" 2"));
    EXPECT_EQ(cells[4][14], "");
}

TEST_F(TabellaCopiataTest, NamesAreNeverMarkupAndNeverPartTheTable) {
    bench.putCollaboratori({collaboratore("RB", "<b>\"A\" & \tB\n</b>")});
    bench.init("M", "20060315");
    EXPECT_EQ(celle()[2][0], "<b>\"A\" &  B </b>");
    EXPECT_THAT(tabella().html, HasSubstr("<td>&lt;b&gt;&quot;A&quot; &amp;  B &lt;/b&gt;</td>"));
    EXPECT_THAT(tabella().html, Not(HasSubstr("<b>")));
}

TEST_F(TabellaCopiataTest, TheTableIsTheTextsTwin) {
    bench.init("M", "20060315");
    const std::string html = tabella().html;
    const std::string text = tabella().testo;
    const auto count = [](const std::string& in, std::string_view what) {
        std::ptrdiff_t found = 0;
        for (std::size_t at = in.find(what); at != std::string::npos; at = in.find(what, at + 1)) {
            ++found;
        }
        return found;
    };
    EXPECT_EQ(count(html, "<tr>"), std::count(text.begin(), text.end(), '\n') - 1);
    EXPECT_EQ(count(html, "<td>") + count(html, "<th>"), 5 * (1 + 31 + 7));
    EXPECT_THAT(html, HasSubstr("<caption>Mese di Marzo 2006 - Planner Mensile</caption>"));
}

} // namespace planner::test
