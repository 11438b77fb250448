// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/giornaliera.h"
#include "grids/mensile.h"
#include "support/planner_bench.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace planner::test {
namespace {

/// Runs `check` with the record that has `value` at each place, for every value.
template <typename Check>
void forEveryByte(const std::string& record, std::size_t place, Check check) {
    std::string changed = record;
    for (int value = 0; value < 256; ++value) {
        changed[place] = static_cast<char>(value);
        check(changed);
        if (testing::Test::HasFatalFailure()) {
            FAIL() << "byte " << place << " = " << value;
        }
    }
}

/// What one row of a grid holds.
std::vector<Cella> rowOf(const Griglia& griglia, int row) {
    std::vector<Cella> cells;
    for (int column = 0; column < griglia.Cols(); ++column) {
        cells.push_back(griglia.cella(row, column));
    }
    return cells;
}

/// One appointment record of Rossi between those of Bianchi and Verdi, all on one day: whatever its bytes,
/// the others' rows and totals must be as without it.
class RigheRobustnessTest : public testing::Test {
protected:
    using Fill = EsitoRiempimento (*)(modpl&, const Calendario&, Griglia&, bool);

    RigheRobustnessTest() { bench.init("M", "20060315"); }

    /// Reads the three records and fills the grid from scratch.
    void fillWith(const std::string& record, Griglia& griglia, Fill fill) {
        bench.put(FileRighe, before + record + after);
        readRighePlanner(bench.files, PlannerBench::path(FileRighe), sessione.archivi);
        clearRows(griglia);
        fill(sessione, bench.controlli.calendario, griglia, true);
    }

    void checkEveryByte(Griglia& griglia, int firstRow, Fill fill) {
        fillWith(std::string(89, ' '), griglia, fill);
        std::vector<std::vector<Cella>> rows;
        for (int row = 0; row < griglia.Rows(); ++row) {
            rows.push_back(rowOf(griglia, row));
        }
        const auto totals = sessione.TotaliImpegni.righe();
        for (std::size_t place = 0; place < 89; ++place) {
            forEveryByte(middle, place, [&](const std::string& record) {
                ASSERT_NO_THROW(fillWith(record, griglia, fill));
                ASSERT_EQ(sessione.archivi.NumRighe, 3);
                const int own = sessione.indiceCodici.IndCollaboratore(record.substr(0, 2)).valore;
                for (int index = 0; index <= 3; ++index) {
                    const auto at = static_cast<std::size_t>(index);
                    if (index != own) {
                        ASSERT_EQ(sessione.TotaliImpegni.righe().at(at), totals.at(at));
                        ASSERT_EQ(rowOf(griglia, firstRow + index),
                                  rows.at(static_cast<std::size_t>(firstRow + index)));
                    }
                }
            });
        }
    }

    PlannerBench bench;
    modpl& sessione = bench.sessione;
    const std::string before = bytesOf(conOrario(riga("BI", "20060315", {{1, "1"}}), "09", "00", "0000100"));
    const std::string middle =
        bytesOf(conOrario(riga("RB", "20060315", {{2, "00012"}, {7, "1"}}), "10", "15", "0000230"));
    const std::string after = bytesOf(conOrario(riga("7 ", "20060315", {{8, "1"}}), "11", "00", "0000100"));
};

TEST_F(RigheRobustnessTest, EveryByteOfAnAppointmentInTheMonthlyGrid) {
    checkEveryByte(bench.controlli.Flxm, PrimaRigaMensile, PopolaGrid1);
}

TEST_F(RigheRobustnessTest, EveryByteOfAnAppointmentInTheDailyGrid) {
    showgrid2(bench.controlli.flxg);
    checkEveryByte(bench.controlli.flxg, PrimaRigaGiornaliera, PopolaGrid2);
}

TEST_F(RigheRobustnessTest, AFileOfOneByteOnly) {
    for (int value = 0; value < 256; ++value) {
        bench.put(FileRighe, std::string(5 * 89, static_cast<char>(value)));
        ASSERT_NO_THROW(bench.init("M", "20060315")) << value;
        ASSERT_NO_THROW(bench.init("G", "20060315")) << value;
    }
}

TEST(MeseRobustnessTest, EveryByteOfAMonthInTheYearlyGrid) {
    PlannerBench bench;
    bench.init("A", "20060315");
    Griglia& flxa = bench.controlli.flxa;
    const std::vector<Cella> neighbour = rowOf(flxa, 2);
    const auto mesi = annoPlanner("2006", {{1, 10}});
    const std::string rest = bytesOf(mesi).substr(1900);
    const auto check = [&](const std::string& record) {
        bench.put(FileAnnuale, record + rest);
        ASSERT_NO_THROW(bench.motore.LeggiDatiAnnuali());
        ASSERT_NO_THROW(bench.motore.PopolaGrid3());
        ASSERT_EQ(rowOf(flxa, 2), neighbour);
    };
    // The texts of the cells are not read by the fill: one byte of each will do.
    for (std::size_t place = 0; place < 1900; place += place < 50 ? 1 : 22) {
        forEveryByte(bytesOf(mesi[0]), place, check);
    }
}

TEST(CollaboratoreRobustnessTest, EveryByteOfAStaffMember) {
    PlannerBench bench;
    bench.putRighe({riga("RB", "20060315", {{1, "1"}}), RigaPlanner{}, RigaPlanner{}});
    bench.init("M", "20060315");
    const std::string before = bytesOf(collaboratore("BI", "Bianchi Rosa"));
    const std::string after = bytesOf(collaboratore("7 ", "Verdi Ugo"));
    for (std::size_t place = 0; place < 125; ++place) {
        forEveryByte(bytesOf(collaboratore("RB", "Rossi Bruno")), place, [&](const std::string& record) {
            bench.put(FileCollaboratori, before + record + after);
            ASSERT_TRUE(bench.motore.LeggiCollab());
            ASSERT_NO_THROW(bench.motore.PopolaGrid1());
            ASSERT_EQ(bench.controlli.Flxm.TextMatrix(2, 0), "Bianchi Rosa");
            ASSERT_EQ(bench.controlli.Flxm.TextMatrix(4, 0), "Verdi Ugo");
        });
    }
}

TEST(CollaboratoreRobustnessTest, EveryCodeOfTwoBytesIsFoundAgain) {
    PlannerBench bench;
    for (int first = 0; first < 256; ++first) {
        std::vector<Collaboratore> staff;
        for (int second = 0; second < 256; ++second) {
            staff.push_back(
                collaboratore(std::string{static_cast<char>(first), static_cast<char>(second)}, "x"));
        }
        const IndiceCodici index(staff);
        for (std::size_t i = 0; i < staff.size(); ++i) {
            const auto found =
                static_cast<std::size_t>(index.IndCollaboratore(staff[i].codice.view()).valore);
            ASSERT_EQ(staff[found].codice.trimmed(), staff[i].codice.trimmed());
        }
    }
}

TEST(RigaGraficoRobustnessTest, EveryByteOfAnHoursRecord) {
    PlannerBench bench;
    bench.init("M", "20060315");
    const std::string neighbour = bytesOf(rigaGrafico("BI", "20060315", "0000800"));
    for (std::size_t place = 0; place < 47; ++place) {
        forEveryByte(bytesOf(rigaGrafico("RB", "20060315", "0000730")), place,
                     [&](const std::string& record) {
                         bench.put(FileGrafici, neighbour + record + neighbour);
                         ASSERT_NO_THROW(bench.motore.LeggiDatiPerGrafici());
                         ASSERT_EQ(bytesOf(bench.sessione.archivi.RigheGrafici),
                                   neighbour + record + neighbour + std::string(47, ' '));
                     });
    }
}

} // namespace
} // namespace planner::test
