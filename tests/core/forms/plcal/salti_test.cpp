// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <algorithm>

namespace planner::test {
namespace {

/// Bianchi, Rossi and Verdi stand in rows 2 to 4, in the daily planner one higher; March 2006 begins in
/// column 3, so that day d stands in column d + 2.
class SaltiTest : public PlcalFixture {
protected:
    void SetUp() override {
        bench.putRighe({riga("BI", "20060302", {{1, "00001"}}), riga("BI", "20060310", {{6, "00002"}}),
                        riga("BI", "20060320", {{1, "00001"}, {7, "00001"}}),
                        riga("7 ", "20060310", {{8, "00001"}}),
                        conOrario(riga("RB", "20060315", {{1, "00001"}}), "09", "00", "0000200"),
                        conOrario(riga("RB", "20060315", {{2, "00001"}}), "16", "30", "0000100")});
    }
    /// Where the jump of that key leads; the key must be in the table.
    Casella jump(std::string_view keys) {
        const auto salto = std::find_if(Salti.begin(), Salti.end(),
                                        [&](const Salto& each) { return each.scorciatoia == keys; });
        form.griglia_Salto(*salto);
        return controlli.grigliaVisibile()->corrente();
    }
    std::string shown() { return formatDate(controlli.calendario.Value()); }
};

TEST_F(SaltiTest, AlongTheRowToWhatHoldsSomethingAndBack) {
    open("M");
    gesto(2, 3);
    EXPECT_EQ(jump("Ctrl+Right"), (Casella{2, 4}));
    EXPECT_EQ(jump("Ctrl+Right"), (Casella{2, 12}));
    EXPECT_EQ(shown(), "20060310") << "as an arrow does";
    EXPECT_EQ(sessione.collab, "BI");
    EXPECT_EQ(jump("Ctrl+Left"), (Casella{2, 4}));
}

TEST_F(SaltiTest, DownAndUpTheColumn) {
    open("M");
    gesto(2, 12);
    EXPECT_EQ(jump("Ctrl+Down"), (Casella{4, 12})) << "Rossi has nothing on the 10th";
    EXPECT_EQ(sessione.collab, "7 ");
    EXPECT_EQ(jump("Ctrl+Up"), (Casella{2, 12}));
}

TEST_F(SaltiTest, ALetterFindsItsKindAlone) {
    open("M");
    gesto(2, 3);
    EXPECT_EQ(jump("S"), (Casella{2, 4}));
    EXPECT_EQ(jump("S"), (Casella{2, 22}));
    EXPECT_EQ(jump("Shift+P"), (Casella{2, 12}));
    EXPECT_EQ(jump("N"), (Casella{2, 22}));
    EXPECT_EQ(jump("Shift+S"), (Casella{2, 4}));
}

TEST_F(SaltiTest, TheKindsAreKnownInTheGridWithoutDetailsToo) {
    open("M");
    form.Toolbar1_ButtonClick("dettno");
    gesto(2, 4);
    EXPECT_EQ(jump("P"), (Casella{2, 12}));
}

TEST_F(SaltiTest, WhereThereIsNothingTheStatusSaysSoAndNothingMoves) {
    open("M");
    gesto(2, 22);
    for (const auto& [keys, said] :
         {std::pair{"Ctrl+Right", "Nella riga non c'è altro dopo questa casella."},
          std::pair{"Ctrl+Down", "Nella colonna non c'è altro sotto questa casella."},
          std::pair{"Ctrl+Up", "Nella colonna non c'è altro sopra questa casella."},
          std::pair{"P", "Nella riga non ci sono pratiche dopo questa casella."},
          std::pair{"Shift+I", "Nella riga non ci sono impegni vari prima di questa casella."}}) {
        EXPECT_EQ(jump(keys), (Casella{2, 22})) << keys;
        EXPECT_EQ(form.stato(), said);
    }
    EXPECT_EQ(shown(), "20060320");
}

TEST_F(SaltiTest, InTheDayItStopsWhereAnAppointmentBegins) {
    open("G");
    gesto(2, 33); // Rossi, 8:00
    EXPECT_EQ(jump("Ctrl+Right"), (Casella{2, 37})) << "9:00";
    EXPECT_EQ(jump("Ctrl+Right"), (Casella{2, 67})) << "16:30, beyond the rest of the first";
    EXPECT_EQ(jump("Shift+S"), (Casella{2, 37}));
    EXPECT_EQ(jump("P"), (Casella{2, 67}));
    EXPECT_EQ(shown(), "20060315");
}

TEST_F(SaltiTest, InTheDayTheColumnIsFullWhereAnAppointmentLasts) {
    open("G");
    gesto(1, 40);
    EXPECT_EQ(jump("Ctrl+Down"), (Casella{2, 40})) << "9:45";
}

TEST_F(SaltiTest, InTheYearMarkedDaysCountAndTheirNumbersTellTheKinds) {
    auto year = annoPlanner("2006", {{3, 17}, {3, 20}, {4, 20}});
    year[2].testi[19].assign("   1"); // counter 1: deadlines
    bench.putAnnuale(year);
    open("A", "20060301");
    gesto(3, 3);
    EXPECT_EQ(jump("Ctrl+Right"), (Casella{3, 17}));
    EXPECT_EQ(shown(), "20060315");
    EXPECT_EQ(jump("S"), (Casella{3, 20}));
    EXPECT_EQ(jump("Ctrl+Down"), (Casella{4, 20}));
    EXPECT_EQ(jump("I"), (Casella{4, 20})) << "the year has no such kind";
}

TEST_F(SaltiTest, AMarkThatStandsForNoDayIsPassed) {
    bench.putAnnuale(annoPlanner("2006", {{3, 1}, {3, 10}}));
    open("A", "20060315");
    gesto(3, 17);
    EXPECT_EQ(jump("Ctrl+Left"), (Casella{3, 10}));
    EXPECT_EQ(jump("Ctrl+Left"), (Casella{3, 10}));
}

TEST_F(SaltiTest, WithoutAGridNothingHappens) {
    form.griglia_Salto(Salti.front());
    EXPECT_EQ(form.stato(), "");
    EXPECT_TRUE(bench.messaggi.shown.empty());
}

TEST_F(SaltiTest, TheCursorIsBroughtIntoSight) {
    open("M");
    gesto(2, 3);
    bench.journal.clear();
    jump("S");
    EXPECT_EQ(std::count(bench.journal.begin(), bench.journal.end(), "cursor in sight"), 1);
}

} // namespace
} // namespace planner::test
