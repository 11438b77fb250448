// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/giornaliera.h"
#include "session/tipi_impegno.h"
#include "ui/plcal/cell_painter.h"

#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

namespace planner::test {

namespace {

constexpr int Row = 1;
constexpr int Width = 24; // of a quarter
constexpr int Detailed = 80;
constexpr int Plain = 20;
constexpr int Deadline = 10; // picture of a deadline alone
constexpr int AllKinds = 1;

const QRgb Fill = qtColor(Colore::azzurro).rgb();
const QRgb Marked = qtColor(Colore::ciano).rgb();
const QRgb Edge = qRgb(70, 110, 180);

/// A row of the daily grid, painted as the window paints it.
struct BarsTest : testing::Test {
    Griglia griglia{3, ColonneQuarti + 1, Row, Colore::gialloChiaro};
    CellPainter painter{1};
    int height = Detailed;
    int columns = 12; // painted, from the first on

    void put(std::vector<FasciaImpegno> bars) {
        for (const FasciaImpegno& bar : bars) {
            griglia.setCellPicture(Row, bar.prima, bar.immagine);
            for (int column = bar.prima; column <= bar.ultima; ++column) {
                griglia.addCellEntry(Row, column, 0);
            }
        }
        assegnaCorsie(bars);
        griglia.setFasce(Row, std::move(bars));
    }

    static QRect cell(int column, int height) { return {(column - 1) * Width, 0, Width, height}; }

    QImage paint() {
        QImage image(columns * Width, height, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter target(&image);
        for (int column = 1; column <= columns; ++column) {
            painter.paint(target, cell(column, height), griglia, {Row, column});
        }
        return image;
    }

    /// Heights of the stripes of one colour, from the top, down the middle of a column.
    static std::vector<int> stripes(const QImage& image, int column, QRgb colour) {
        const int x = cell(column, image.height()).center().x();
        std::vector<int> heights;
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != colour) {
                continue;
            }
            const bool continues = y > 0 && image.pixel(x, y - 1) == colour && !heights.empty();
            continues ? void(++heights.back()) : heights.push_back(1);
        }
        return heights;
    }

    /// Expects an edge and a line of fill of each bar where it ends, and the row's rim free.
    void expectEachBarInSight(const QImage& image, int count) const {
        for (int column = 2; column <= count + 1; ++column) {
            const int x = cell(column, height).center().x();
            EXPECT_FALSE(stripes(image, column, Fill).empty()) << height << " " << count << ": " << column;
            EXPECT_FALSE(stripes(image, column, Edge).empty()) << height << " " << count << ": " << column;
            EXPECT_EQ(image.pixel(x, 0), qtColor(Colore::gialloChiaro).rgb()) << height << " " << count;
            EXPECT_NE(image.pixel(x, height - 1), Fill) << height << " " << count;
            EXPECT_NE(image.pixel(x, height - 1), Edge) << height << " " << count;
        }
    }

    /// Pixels in the area of a deadline's drawing.
    static int ink(const QImage& image, const QRect& area) {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const QRgb colour = image.pixel(x, y);
                count += qRed(colour) > 120 && qGreen(colour) < 60 && qBlue(colour) < 60 ? 1 : 0;
            }
        }
        return count;
    }
};

} // namespace

TEST_F(BarsTest, AnAppointmentHasAnEdgeAllAroundItsFillAndItsPictureInTheFirstQuarter) {
    put({{3, 6, Deadline}});
    const QImage image = paint();
    const int left = cell(3, height).left();
    const int right = cell(6, height).right();
    const int middle = height / 2;
    EXPECT_EQ(image.pixel(left, middle), Edge);
    EXPECT_EQ(image.pixel(right, middle), Edge);
    EXPECT_THAT(stripes(image, 5, Edge), testing::ElementsAre(1, 1)) << "above and below";
    EXPECT_THAT(stripes(image, 5, Fill), testing::ElementsAre(testing::Ge(height * 4 / 5)));
    EXPECT_EQ(image.pixel(cell(4, height).left(), middle), Fill) << "one bar, no quarters apart";
    EXPECT_GT(ink(image, cell(3, height)), 20);
    EXPECT_EQ(ink(image, cell(4, height)), 0);
}

TEST_F(BarsTest, OutsideTheBarTheRowIsPlain) {
    put({{3, 6, Deadline}});
    const QImage image = paint();
    const QRgb plain = qtColor(Colore::gialloChiaro).rgb();
    EXPECT_EQ(image.pixel(cell(2, height).center()), plain);
    EXPECT_EQ(image.pixel(cell(7, height).center()), plain);
    EXPECT_EQ(image.pixel(cell(4, height).center().x(), 0), plain) << "the bar keeps off the row above";
    EXPECT_EQ(image.pixel(cell(4, height).center().x(), height - 2), plain) << "and off the row's line";
}

TEST_F(BarsTest, TwoThatOverlapStandOneAboveTheOtherEachWhole) {
    put({{1, 6, Deadline}, {4, 9, Deadline}});
    const QImage image = paint();
    EXPECT_THAT(stripes(image, 5, Fill), testing::SizeIs(2));
    EXPECT_THAT(stripes(image, 5, Edge), testing::ElementsAre(1, 1, 1, 1));
    const QRect upper(0, 0, Width, height / 2);
    const QRect lower(3 * Width, height / 2, Width, height / 2);
    EXPECT_GT(ink(image, upper), 20);
    EXPECT_GT(ink(image, lower), 20);
    EXPECT_EQ(image.pixel(upper.left(), height / 4), Edge);
    EXPECT_EQ(image.pixel(cell(6, height).right(), height / 4), Edge) << "where the upper one ends";
    EXPECT_EQ(image.pixel(lower.left(), height * 3 / 4), Edge) << "where the lower one starts";
    EXPECT_EQ(image.pixel(cell(9, height).right(), height * 3 / 4), Edge);
}

TEST_F(BarsTest, FiveAtOneHourTellApartWithTheirPicturesInADetailedRow) {
    put({{1, 4, Deadline}, {1, 5, Deadline}, {1, 6, Deadline}, {1, 7, Deadline}, {1, 8, Deadline}});
    const QImage image = paint();
    EXPECT_THAT(stripes(image, 3, Fill), testing::SizeIs(5));
    EXPECT_THAT(stripes(image, 8, Fill), testing::SizeIs(1)) << "the longest alone";
    for (int lane = 0; lane < 5; ++lane) {
        EXPECT_GT(ink(image, QRect(0, height * lane / 5, Width, height / 5)), 20) << lane;
    }
}

TEST_F(BarsTest, FiveAtOneHourTellApartInALowRow) {
    height = Plain;
    put({{1, 8}, {1, 8}, {1, 8}, {1, 8}, {1, 8}});
    const QImage image = paint();
    EXPECT_THAT(stripes(image, 3, Fill), testing::SizeIs(5));
    EXPECT_THAT(stripes(image, 3, Edge), testing::SizeIs(5));
}

TEST_F(BarsTest, ALaneIsNeverLowerThanTwoPixelsAndStaysInItsRow) {
    for (const int rowHeight : {12, Plain, 40, Detailed}) {
        for (const int count : {1, 2, 5, 8, 20, 60}) {
            height = rowHeight;
            columns = count + 2;
            std::vector<FasciaImpegno> bars;
            for (int i = 0; i < count; ++i) {
                bars.push_back({1, count + 1 - i}); // on its last column stand only those above it
            }
            put(std::move(bars));
            expectEachBarInSight(paint(), count);
        }
    }
}

TEST_F(BarsTest, AllFourKindsHaveTheirDrawingInALowBar) {
    height = Plain;
    put({{1, 4, AllKinds}, {2, 4, AllKinds}});
    columns = 4;
    const QImage one = paint();
    EXPECT_GT(ink(one, cell(1, height)), 2) << "the deadline among them";
}

TEST_F(BarsTest, TheDrawingsAreNeverSmallerThanTheCornersOfASquareWouldBe) {
    for (const int rowHeight : {Plain, 40, Detailed}) {
        for (const int count : {1, 2, 3, 4}) {
            height = rowHeight;
            columns = 2;
            put(std::vector<FasciaImpegno>(static_cast<std::size_t>(count), {1, 2, AllKinds}));
            const int lane = rowHeight / count;
            const int corner = std::min(Width, lane - 4) / 2;
            EXPECT_GE(ink(paint(), cell(1, height)), count * corner * corner / 8)
                << rowHeight << " " << count;
        }
    }
}

TEST_F(BarsTest, ABarAsHighAsAQuarterIsWideHasItsDrawingsInTheirCorners) {
    height = Width + 4; // with its margins
    put({{1, 2, Deadline}});
    columns = 2;
    const QImage image = paint();
    EXPECT_GT(ink(image, QRect(0, height / 2, Width / 2, height / 2)), 20)
        << "a deadline's: below, to the left";
    EXPECT_EQ(ink(image, QRect(0, 0, Width, height / 2 - 1)), 0);
}

TEST_F(BarsTest, LinesAreSharpOnAScreenOfTwiceTheDensity) {
    put({{1, 4, Deadline}});
    QImage image(2 * Width, 2 * height, QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    QPainter target(&image);
    painter.paint(target, cell(1, height), griglia, {Row, 1});
    target.end();
    EXPECT_EQ(image.pixel(0, height), Edge);
    EXPECT_EQ(image.pixel(1, height), Edge);
    EXPECT_NE(image.pixel(2, height), Edge);
    EXPECT_EQ(image.pixel(Width, 2 * height - 2), image.pixel(Width, 2 * height - 1)) << "the row's line";
    EXPECT_NE(image.pixel(Width, 2 * height - 3), image.pixel(Width, 2 * height - 2));
}

TEST_F(BarsTest, AHighlightedRowAndAMarkedCellLeaveTheBarsInSight) {
    put({{1, 6, Deadline}, {4, 9, Deadline}});
    griglia.evidenzia(Row);
    griglia.scegli({Row, 5});
    const QImage image = paint();
    EXPECT_THAT(stripes(image, 6, Fill), testing::SizeIs(2));
    EXPECT_THAT(stripes(image, 6, Edge), testing::ElementsAre(1, 1, 1, 1));
    EXPECT_EQ(image.pixel(cell(11, height).center()), qtColor(Colore::giallo).rgb());
    EXPECT_THAT(stripes(image, 5, Fill), testing::IsEmpty());
    EXPECT_THAT(stripes(image, 5, Edge), testing::ElementsAre(1, 1, 1, 1)) << "both bars in the marked cell";
    EXPECT_THAT(stripes(image, 5, Marked), testing::SizeIs(testing::Ge(3U)));
}

TEST_F(BarsTest, AMarkedCellKeepsItsPictures) {
    put({{5, 8, Deadline}});
    griglia.scegli({Row, 5});
    const QImage image = paint();
    EXPECT_GT(ink(image, cell(5, height)), 20);
    EXPECT_EQ(image.pixel(cell(5, height).left(), height / 2), qtColor(cornice(Colore::ciano)).rgb());
}

TEST_F(BarsTest, TodaysFrameStandsAroundItsCell) {
    griglia.setCellToday(Row, 2, true);
    const QImage image = paint();
    const QRgb frame = qRgb(0, 110, 60);
    const QRect today = cell(2, height);
    EXPECT_EQ(image.pixel(today.left() + 1, height / 2), frame);
    EXPECT_EQ(image.pixel(today.right() - 1, height / 2), frame);
    EXPECT_EQ(image.pixel(today.center().x(), 1), frame);
    EXPECT_EQ(image.pixel(today.center().x(), height - 2), frame);
    EXPECT_NE(image.pixel(today.center()), frame);
    EXPECT_NE(image.pixel(cell(3, height).left() + 1, height / 2), frame);
}

TEST_F(BarsTest, ThePictureOfADayStandsInTheMiddleOfItsCell) {
    griglia.setCellPicture(Row, 2, Deadline);
    const QImage image = paint();
    EXPECT_GT(ink(image, cell(2, height)), 20);
    EXPECT_EQ(ink(image, cell(1, height)), 0);
    EXPECT_EQ(ink(image, cell(3, height)), 0);
    EXPECT_EQ(ink(image, QRect(Width, 0, Width, height / 4)), 0);
    EXPECT_EQ(ink(image, QRect(Width, height * 3 / 4, Width, height / 4)), 0);
}

TEST_F(BarsTest, TheFocusFrameStandsAroundTheCurrentCellOnly) {
    QImage image(Width, height, QImage::Format_RGB32);
    const auto paintCell = [&](bool focused) {
        QPainter target(&image);
        griglia.setCurrent({Row, focused ? 2 : 3});
        painter.paintBlock(target, {{Row, 2}, {0, height}, {0, Width}}, griglia, focused);
    };
    const QRgb frame = qtColor(Colore::navy).rgb();
    paintCell(true);
    for (const QPoint point : {QPoint(1, height / 2), QPoint(Width - 2, height / 2), QPoint(Width / 2, 1),
                               QPoint(Width / 2, height - 2)}) {
        EXPECT_EQ(image.pixel(point), frame) << point.x() << "," << point.y();
    }
    EXPECT_NE(image.pixel(image.rect().center()), frame);
    paintCell(false);
    EXPECT_NE(image.pixel(1, height / 2), frame);
}

} // namespace planner::test
