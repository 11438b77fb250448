// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "painted.h"
#include "support/planner_bench.h"
#include "ui/stampa/inchiostri.h"
#include "ui/stampa/pagina_painter.h"

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// Pages of an office on archives in memory, painted at twice as many pixels as points.
struct PrintPixels : testing::Test {
    PlannerBench bench;

    DocumentoStampa documento(bool totali = false) const {
        return {bench.controlli, bench.sessione, PlannerBench::Oggi, CartaA4, totali};
    }
    Impaginazione piano(bool totali = false) const { return impagina(documento(totali), larghezzaSuCarta); }
    Painted page(std::size_t number, bool totali = false) const {
        const DocumentoStampa document = documento(totali);
        const Impaginazione plan = impagina(document, larghezzaSuCarta);
        const QSize size(static_cast<int>(CartaA4.larghezza), static_cast<int>(CartaA4.altezza));
        return {size, 2, [&](QPainter& painter) {
                    painter.fillRect(QRect({}, size), Qt::white);
                    PaginaPainter(document, plan).paint(painter, number);
                }};
    }
    /// The inside of a cell on the first page, by the grid's own rows and columns.
    QRectF cell(int riga, int colonna) const {
        const Impaginazione plan = piano();
        const auto at = [](const std::vector<Banda>& bands, int index) {
            return *std::find_if(bands.begin(), bands.end(),
                                 [index](const Banda& band) { return band.indice == index; });
        };
        const Banda row = at(plan.pagine.front().righe, riga);
        const Banda column = at(plan.griglia.colonne, colonna);
        return QRectF(column.inizio, row.inizio, column.ampiezza, row.ampiezza).adjusted(2, 2, -2, -2);
    }
};

bool isBlack(QRgb colour) {
    constexpr int darkest = 40;
    return qGray(colour) < darkest;
}

} // namespace

TEST_F(PrintPixels, WeekendsAreShadedAndWorkingDaysWhite) {
    bench.init("M", "20060315"); // 1 March is a Wednesday, in column 3
    const Painted first = page(0);
    EXPECT_TRUE(first.all(cell(2, 6), is(inchiostri::FineSettimana))) << "Saturday, 4 March";
    EXPECT_TRUE(first.all(cell(5, 7), is(inchiostri::FineSettimana))) << "Sunday, 5 March";
    EXPECT_TRUE(first.all(cell(2, 8), is(qRgb(255, 255, 255)))) << "Monday, 6 March";
}

TEST_F(PrintPixels, HolidaysAreHatched) {
    bench.init("M", "20060415"); // 1 April is a Saturday, in column 6
    const Painted first = page(0);
    EXPECT_TRUE(first.any(cell(2, 30), is(inchiostri::FineSettimana))) << "25 April";
    EXPECT_GT(first.amount(cell(2, 30), isNot(inchiostri::FineSettimana)), 5) << "lines";
    EXPECT_TRUE(first.all(cell(2, 29), is(qRgb(255, 255, 255)))) << "24 April";
}

TEST_F(PrintPixels, EntriesAreDrawnInTheirCells) {
    bench.putRighe({riga("RB", "20060315", {{1, "00001"}})});
    bench.init("M", "20060315");
    const Painted first = page(0);
    EXPECT_GT(first.amount(cell(3, 17), isRed), 10) << "a deadline";
    EXPECT_TRUE(first.all(cell(2, 17), is(qRgb(255, 255, 255))));
}

TEST_F(PrintPixels, AppointmentsAreBarsWithDarkEdges) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "00001"}}), "09", "00", "0002:00")});
    bench.init("G", "20060315");
    const Painted first = page(0);
    EXPECT_TRUE(first.all(cell(2, 42).adjusted(0, 2, 0, -2), is(inchiostri::Fascia))) << "10:15";
    EXPECT_TRUE(first.any(cell(2, 44).adjusted(0, 0, 3, 0), isDark)) << "its end";
    EXPECT_TRUE(first.all(cell(2, 46), is(qRgb(255, 255, 255)))) << "after it";
}

TEST_F(PrintPixels, AShortBarShowsItsDrawingAsLargeAsItCan) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "00001"}}), "09", "00", "0000:15")});
    bench.init("G", "20060315");
    EXPECT_GT(page(0).amount(cell(2, 37).adjusted(-1, -1, 1, 1), isRed), 20);
}

TEST_F(PrintPixels, TheSelectionIsToldByWeight) {
    bench.init("M", "20060315");
    bench.controlli.Flxm.evidenzia(3);
    bench.controlli.Flxm.scegli({3, 17});
    const Painted first = page(0);
    const QRectF plain = cell(3, 10);
    EXPECT_TRUE(isBlack(first.at({plain.center().x(), plain.top() - 2}))) << "a line above the row";
    EXPECT_TRUE(isBlack(first.at({plain.center().x(), plain.bottom() + 2}))) << "and one below it";
    const QRectF chosen = cell(3, 17);
    EXPECT_TRUE(isBlack(first.at({chosen.left() - 1, chosen.center().y()}))) << "the cell's own frame";
    EXPECT_FALSE(isBlack(first.at({plain.left() - 1, plain.center().y()})));
}

TEST_F(PrintPixels, MarkedDaysOfTheYearAreWhiteOnDark) {
    bench.putAnnuale(annoPlanner("2006", {{3, 17}})); // Wednesday, 15 March
    bench.init("A", "20060310");
    const Painted first = page(0);
    EXPECT_GT(first.amount(cell(3, 17), is(inchiostri::Segnato)), 100);
    EXPECT_TRUE(first.any(cell(3, 17).adjusted(2, 2, -2, -2), is(qRgb(255, 255, 255))));
    EXPECT_FALSE(first.any(cell(3, 16), is(inchiostri::Segnato)));
}

TEST_F(PrintPixels, ShadesDifferWithoutColours) {
    constexpr int distance = 20; // of 256 shades of grey
    const std::array<int, 4> greys{255, qGray(inchiostri::FineSettimana), qGray(inchiostri::Fascia),
                                   qGray(inchiostri::Segnato)};
    for (std::size_t i = 1; i < greys.size(); ++i) {
        EXPECT_GT(greys[i - 1] - greys[i], distance) << i;
    }
}

TEST_F(PrintPixels, EveryPageHasHeadingsNamesTitleAndFoot) {
    std::vector<Collaboratore> staff(60, collaboratore("AA", "Rossi"));
    bench.putCollaboratori(staff);
    bench.init("M", "20060315");
    const Impaginazione plan = piano(/*totali=*/true);
    ASSERT_GT(plan.pagine.size(), 4u);
    for (const std::size_t number : {std::size_t{1}, plan.pagine.size() - 1}) {
        const Painted painted = page(number, /*totali=*/true);
        const TabellaPosta& table = plan.pagine[number].totali ? plan.totali : plan.griglia;
        const Banda& column = table.colonne.at(1);
        const QRectF heading(column.inizio, table.angolo.y, column.ampiezza, table.angolo.altezza);
        EXPECT_TRUE(painted.any(heading.adjusted(2, 2, -2, -2), isDark)) << number;
        const Banda& row = plan.pagine[number].righe.front();
        EXPECT_TRUE(painted.any(QRectF(table.angolo.x + 2, row.inizio + 2, 40, row.ampiezza - 4), isDark));
        EXPECT_TRUE(painted.any(rettangolo(plan.titolo), isDark));
        EXPECT_TRUE(painted.any(rettangolo(plan.piede), isDark));
    }
}

TEST_F(PrintPixels, ANameTooLongForItsColumnStaysInIt) {
    bench.putCollaboratori({collaboratore("AA", std::string(70, 'W'))});
    bench.init("M", "20060315");
    EXPECT_TRUE(page(0).all(cell(2, 3), is(qRgb(255, 255, 255)))) << "the first day";
}

} // namespace planner::test
