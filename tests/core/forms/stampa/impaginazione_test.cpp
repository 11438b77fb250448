// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "stampa_fixture.h"

namespace planner::test {

namespace {

using testing::ElementsAre;
using testing::SizeIs;

struct ImpaginazioneTest : StampaFixture {
    std::vector<int> giorni(const Impaginazione& piano) const {
        std::vector<int> days;
        for (const Banda& colonna : piano.griglia.colonne) {
            days.push_back(std::stoi(std::string(griglia().TextMatrix(1, colonna.indice))));
        }
        return days;
    }
};

std::vector<int> from1To(int last) {
    std::vector<int> numbers;
    for (int i = 1; i <= last; ++i) {
        numbers.push_back(i);
    }
    return numbers;
}

/// The rows of all pages of a kind, one after the other.
std::vector<int> rowsOf(const Impaginazione& piano, bool totali) {
    std::vector<int> rows;
    for (const PaginaStampa& pagina : piano.pagine) {
        for (const Banda& riga : pagina.righe) {
            if (pagina.totali == totali) {
                rows.push_back(riga.indice);
            }
        }
    }
    return rows;
}

/// Nothing lies outside the sheet or over anything else.
void expectSound(const Impaginazione& piano) {
    double end = piano.griglia.angolo.destra();
    for (const Banda& colonna : piano.griglia.colonne) {
        EXPECT_NEAR(colonna.inizio, end, 1e-6) << "columns stand beside each other";
        EXPECT_GT(colonna.ampiezza, 5);
        end = colonna.fine();
    }
    EXPECT_LE(end, piano.carta.larghezza - piano.titolo.x + 1e-6);
    EXPECT_GE(piano.griglia.angolo.y, piano.titolo.fondo());
    for (const PaginaStampa& pagina : piano.pagine) {
        double y = (pagina.totali ? piano.totali : piano.griglia).angolo.fondo();
        for (const Banda& riga : pagina.righe) {
            EXPECT_NEAR(riga.inizio, y, 1e-6) << "rows stand below each other";
            y = riga.fine();
        }
        const double lowest =
            pagina.totali || piano.legenda.empty() ? piano.piede.y : piano.legenda.front().testo.y;
        EXPECT_LE(y, lowest) << "no row is cut";
    }
    for (const VocePosta& voce : piano.legenda) {
        EXPECT_LE(voce.testo.destra(), piano.titolo.destra() + 1e-6);
        EXPECT_LE(voce.testo.fondo(), piano.piede.y);
    }
    EXPECT_LE(piano.piede.fondo(), piano.carta.altezza);
}

} // namespace

TEST_F(ImpaginazioneTest, AMonthHasAColumnForEachOfItsDaysAndForNothingElse) {
    bench.init("M", "20060515");
    EXPECT_EQ(giorni(pagine()), from1To(31));
    EXPECT_EQ(pagine().griglia.colonne.front().indice, 1) << "May 2006 begins on a Monday";
    bench.init("M", "20060215");
    EXPECT_EQ(giorni(pagine()), from1To(28));
    EXPECT_EQ(pagine().griglia.colonne.front().indice, 3) << "a Wednesday";
    bench.init("M", "20040215", "20040101", "20041231");
    EXPECT_EQ(giorni(pagine()), from1To(29));
}

TEST_F(ImpaginazioneTest, NamedRowsAloneArePrinted) {
    bench.init("M", "20060315");
    const Impaginazione piano = pagine();
    ASSERT_THAT(piano.pagine, SizeIs(1));
    EXPECT_EQ(rowsOf(piano, false), (std::vector<int>{2, 3, 4, 5})) << "three names and *NON ASSEGNATE*";
    expectSound(piano);
}

TEST_F(ImpaginazioneTest, EveryOneIsOnExactlyOnePageWhateverTheirNumberAndThePaper) {
    for (const int staff : {1, 60, 500}) {
        putStaff(staff);
        for (const Carta& carta : {CartaA4, CartaA3}) {
            for (const std::string_view tipo : {"M", "G"}) {
                bench.init(tipo, "20060315");
                const Impaginazione piano = pagine(carta, /*totali=*/true);
                const int first = griglia().FixedRows();
                EXPECT_THAT(rowsOf(piano, false), SizeIs(static_cast<std::size_t>(staff) + 1));
                EXPECT_EQ(rowsOf(piano, false).back(), first + staff);
                EXPECT_EQ(rowsOf(piano, true), [&] {
                    std::vector<int> rows = from1To(staff + 1);
                    std::for_each(rows.begin(), rows.end(), [](int& row) { --row; });
                    return rows;
                }());
                expectSound(piano);
            }
        }
    }
}

TEST_F(ImpaginazioneTest, ALargerSheetHoldsMoreRows) {
    putStaff(500);
    bench.init("M", "20060315");
    EXPECT_LT(pagine(CartaA3).pagine.size(), pagine(CartaA4).pagine.size());
}

TEST_F(ImpaginazioneTest, RowsWithoutDetailsAreLower) {
    putStaff(500);
    bench.init("M", "20060315");
    const std::size_t detailed = pagine().pagine.size();
    bench.controlli.Toolbar1.setDettagliato(false);
    EXPECT_LT(pagine().pagine.size(), detailed);
}

TEST_F(ImpaginazioneTest, AYearIsOnePageOfTwelveMonths) {
    bench.init("A", "20060315");
    const Impaginazione piano = pagine();
    ASSERT_THAT(piano.pagine, SizeIs(1));
    EXPECT_EQ(rowsOf(piano, false), from1To(12));
    EXPECT_THAT(piano.griglia.colonne, SizeIs(37)) << "October 2006 begins on a Sunday";
    expectSound(piano);
}

TEST_F(ImpaginazioneTest, AYearThatBeginsOnAMondayStartsInTheFirstColumn) {
    bench.putAnnuale(annoPlanner("2018"));
    bench.init("A", "20180315", "20180101", "20181231");
    EXPECT_EQ(pagine().griglia.colonne.front().indice, 1);
    expectSound(pagine());
}

TEST_F(ImpaginazioneTest, AYearHasNoColumnWithoutADay) {
    bench.putAnnuale(annoPlanner("2014"));
    bench.init("A", "20140315", "20140101", "20141231");
    EXPECT_EQ(pagine().griglia.colonne.back().indice, 36) << "no long month of 2014 begins on a Sunday";
}

TEST_F(ImpaginazioneTest, ADayShowsTheOfficesHoursAndThoseOfAppointments) {
    bench.init("G", "20060315");
    EXPECT_EQ(pagine().griglia.colonne.front().indice, 7 * 4 + 1);
    EXPECT_EQ(pagine().griglia.colonne.back().indice, 20 * 4);
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "00001"}}), "05", "45", "0001:00"),
                    conOrario(riga("BI", "20060315", {{1, "00001"}}), "22", "00", "0000:30")});
    bench.init("G", "20060315");
    EXPECT_EQ(pagine().griglia.colonne.front().indice, 5 * 4 + 1);
    EXPECT_EQ(pagine().griglia.colonne.back().indice, 23 * 4) << "whole hours";
    expectSound(pagine());
}

TEST_F(ImpaginazioneTest, TheNamesGetWhatTheLongestNeedsUpToAThirdOfTheSheet) {
    bench.putCollaboratori({collaboratore("AA", "Bi"), collaboratore("BB", std::string(30, 'x'))});
    bench.init("M", "20060315");
    const double name = misura(std::string(30, 'x'), CorpoTesto, true);
    EXPECT_GT(pagine().griglia.angolo.larghezza, name);
    EXPECT_LT(pagine().griglia.angolo.larghezza, name + 20);
    const auto wide = [](const std::string& testo, double corpo, bool grassetto) {
        return 4 * misura(testo, corpo, grassetto);
    };
    EXPECT_DOUBLE_EQ(impagina(documento(), wide).griglia.angolo.larghezza, CartaA4.larghezza / 3);
}

TEST_F(ImpaginazioneTest, HeadingsStandAboveTheRowsOfEveryPage) {
    bench.init("M", "20060315");
    EXPECT_THAT(pagine().griglia.testa, SizeIs(2)) << "letters and numbers";
    EXPECT_DOUBLE_EQ(pagine().griglia.testa.back().fine(), pagine().griglia.angolo.fondo());
    bench.init("A", "20060315");
    EXPECT_THAT(pagine().griglia.testa, SizeIs(1));
}

TEST_F(ImpaginazioneTest, ASheetTooSmallForARowStillGetsOne) {
    putStaff(3);
    bench.init("M", "20060315");
    EXPECT_THAT(pagine({100, 60}).pagine, SizeIs(4));
}

TEST_F(ImpaginazioneTest, ABarStandsInItsLaneFromItsFirstColumnToItsLast) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "00001"}}), "09", "00", "0001:00"),
                    conOrario(riga("RB", "20060315", {{2, "00001"}}), "09", "30", "0001:00")});
    bench.init("G", "20060315");
    const Impaginazione piano = pagine();
    const Banda& row = piano.pagine.front().righe.at(1);
    const auto bars = griglia().fasce(row.indice);
    ASSERT_THAT(bars, SizeIs(2));
    const AreaStampa first = areaFascia(piano.griglia, row, bars[0]);
    const AreaStampa second = areaFascia(piano.griglia, row, bars[1]);
    const double quarter = piano.griglia.colonne.front().ampiezza;
    EXPECT_NEAR(first.larghezza, 4 * quarter, 1e-6);
    EXPECT_NEAR(second.x - first.x, 2 * quarter, 1e-6);
    EXPECT_GE(second.y, first.fondo());
    EXPECT_LE(second.fondo(), row.fine());
}

TEST_F(ImpaginazioneTest, TheFootNamesPageAndDay) {
    EXPECT_EQ(testoPagina(1, 3), "pagina 2 di 3");
    EXPECT_EQ(testoStampatoIl(PlannerBench::Oggi), "Stampato il 15/03/2006");
}

TEST_F(ImpaginazioneTest, TheTitleIsTheWindowsAndADaysPageNamesTheDay) {
    bench.init("M", "20060315");
    EXPECT_EQ(titoloStampa(bench.controlli), "Mese di Marzo 2006");
    EXPECT_EQ(sottotitoloStampa(bench.controlli), "Planner Mensile");
    bench.init("G", "20060315");
    EXPECT_EQ(sottotitoloStampa(bench.controlli), "mercoledì 15 marzo 2006");
}

TEST_F(ImpaginazioneTest, AFileIsNamedByTheMonthOrTheDay) {
    bench.init("M", "20060315");
    EXPECT_EQ(nomeStampa(bench.controlli), "Mese di Marzo 2006");
    bench.controlli.lbldescr = "Studio A/B";
    EXPECT_EQ(nomeStampa(bench.controlli), "Studio A-B");
    bench.init("G", "20060315");
    EXPECT_EQ(nomeStampa(bench.controlli), "mercoledì 15 marzo 2006");
}

TEST_F(ImpaginazioneTest, DaysOffAreToldApartInTheMonthAndInTheYear) {
    bench.init("M", "20060415");
    EXPECT_EQ(giornoStampato(bench.controlli, {2, 5}), GiornoStampa::nessuno) << "before the first";
    EXPECT_EQ(giornoStampato(bench.controlli, {2, 6}), GiornoStampa::fineSettimana)
        << "the first, a Saturday";
    EXPECT_EQ(giornoStampato(bench.controlli, {2, 8}), GiornoStampa::feriale);
    EXPECT_EQ(giornoStampato(bench.controlli, {2, 30}), GiornoStampa::festivo) << "the 25th";
    bench.init("A", "20060315");
    EXPECT_EQ(giornoStampato(bench.controlli, {1, 7}), GiornoStampa::festivo)
        << "a Sunday, the first of January";
    bench.init("G", "20060425");
    EXPECT_EQ(giornoStampato(bench.controlli, {1, 40}), GiornoStampa::nessuno)
        << "every column is of one day";
}

} // namespace planner::test
