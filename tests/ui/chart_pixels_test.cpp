// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "core/forms/plfgraf/plfgraf_fixture.h"
#include "painted.h"
#include "ui/plfgraf/chart_painter.h"

#include <QPainter>

#include <gtest/gtest.h>
#include <numbers>

namespace planner::test {

namespace {

constexpr QSize ImageSize(1100, 620);
constexpr double FrameWidth = 3;
const QRgb White = qRgb(255, 255, 255);
const QRgb Black = qRgb(0, 0, 0);
const QRgb Shadow = qRgb(128, 128, 128);

QRgb qtRgb(Rgb colour) {
    return qRgb(colour.red, colour.green, colour.blue);
}

QRectF rectOf(const ChartArea& area) {
    return {area.x, area.y, area.width, area.height};
}

bool isYellow(QRgb colour) {
    return qRed(colour) > 240 && qGreen(colour) > 240 && qBlue(colour) < 200;
}

struct ChartCase {
    char tipo; // of the planner
    int ratio;
};

void PrintTo(const ChartCase& tested, std::ostream* out) {
    *out << tested.tipo << tested.ratio;
}

/// The three charts of an office of three, painted at a device pixel ratio.
class ChartPixels : public PlfgrafTest, public testing::WithParamInterface<ChartCase> {
protected:
    ChartPixels() {
        setHours({rigaGrafico("RB", "20060314", "0004:00"), rigaGrafico("RB", "20060315", "0007:30"),
                  rigaGrafico("BI", "20060315", "0006:45"), rigaGrafico("7 ", "20060401", "0020:00"),
                  rigaGrafico("BI", "20060501", "0016:00")});
    }

    const Grafico& grafico() const { return *form.visibile(); }
    bool framed() const { return GetParam().tipo != 'G'; }

    /// Builds the kind's chart, as bars or as a pie, and paints it.
    Painted paintBars() { return paintAs(0); }
    Painted paintPie() { return paintAs(2); }

    static Painted paint(const Grafico& chart, ChartLayout& layout) {
        const ChartPainter painter(chart, 1);
        layout =
            layoutChart(chart, {ImageSize.width() * 1.0, ImageSize.height() * 1.0}, {}, painter.measure());
        return {ImageSize, GetParam().ratio, [&](QPainter& target) { painter.paint(target, layout); }};
    }

    QRgb colourOf(std::size_t number) const {
        return qtRgb(grafico().serie[grafico().serieDi(number)].colore);
    }

    /// A place between the axis and the first bar, which the lines of the grid cross.
    double besideTheFirstBar() const { return (layout.plot.x + layout.bars.front().area.x) / 2 + 0.5; }

    void expectFrames(const Painted& painted) const;
    void expectLegend(const Painted& painted) const;
    void expectTexts(const Painted& painted) const;

    ChartLayout layout;

private:
    Painted paintAs(int option) {
        switch (GetParam().tipo) {
        case 'M':
            form.VisualizzaGraficoMensile({1});
            break;
        case 'G':
            form.VisualizzaGraficoGiornaliero({1});
            break;
        default:
            form.VisualizzaGraficoAnnuale();
        }
        form.OptTipoGrafico_Click(option);
        return paint(grafico(), layout);
    }
};

/// A double yellow line and a shadow around the title, a thick and a thin line and a shadow around the plot;
/// in the daily chart none of it.
void ChartPixels::expectFrames(const Painted& painted) const {
    const QRectF title = rectOf(layout.title);
    const double middle = title.center().y();
    EXPECT_EQ(painted.any({title.left(), middle, 2, 0.5}, isYellow), framed()) << "outer line";
    EXPECT_EQ(painted.any({title.left() + 2.5, middle, 2, 0.5}, isYellow), framed()) << "inner line";
    EXPECT_EQ(painted.any({title.center().x(), title.bottom(), 1, 2}, isGrey), framed()) << "title's shadow";

    const QRectF frame = rectOf(layout.frame);
    const double height = frame.center().y();
    const QRgb outer = framed() ? Black : White;
    EXPECT_EQ(painted.at({frame.left() + FrameWidth / 2, height}), outer);
    EXPECT_EQ(painted.at({frame.right() - FrameWidth / 2, height}), outer);
    EXPECT_EQ(painted.at({frame.left() + 3.5, height}), White);
    EXPECT_EQ(painted.any({frame.left() + 4, height, 2, 0.5}, isGrey), framed()) << "inner line";
    EXPECT_EQ(painted.at({frame.right() + 1.5, height}), framed() ? Shadow : White);
    EXPECT_EQ(painted.any({frame.center().x(), frame.bottom() + 1, 1, 1}, is(Shadow)), framed());
    EXPECT_EQ(painted.at({frame.left() - 2, height}), White);
}

void ChartPixels::expectLegend(const Painted& painted) const {
    ASSERT_EQ(layout.legend.size(), grafico().serie.size());
    for (const ChartLegendEntry& entry : layout.legend) {
        const QRectF swatch = rectOf(entry.swatch);
        EXPECT_EQ(painted.at(swatch.center()), qtRgb(grafico().serie[entry.series].colore)) << entry.series;
        EXPECT_TRUE(painted.all(swatch.adjusted(2, 2, -2, -2), is(painted.at(swatch.center()))));
        EXPECT_NE(painted.at({swatch.center().x(), swatch.top()}), painted.at(swatch.center())) << "its edge";
    }
}

void ChartPixels::expectTexts(const Painted& painted) const {
    for (const PlacedText& text : layout.texts) {
        // A text stands on paper, whatever is beside it: away from bars, slices and the labels' own edges.
        const QRectF area = rectOf(text.area).adjusted(2, 2, -2, -2);
        EXPECT_EQ(painted.any(area, isDark), !text.text.empty())
            << static_cast<int>(text.role) << " " << text.text;
    }
}

} // namespace

TEST_P(ChartPixels, EachValueHasItsBar) {
    const Painted painted = paintBars();
    ASSERT_EQ(layout.bars.size(), grafico().numValori());
    int bars = 0;
    for (std::size_t number = 0; number < layout.bars.size(); ++number) {
        const QRectF bar = rectOf(layout.bars[number].area);
        if (bar.height() > 0) {
            ++bars;
            EXPECT_TRUE(painted.all(bar.adjusted(1, 1, -1, -3), is(colourOf(number)))) << number;
            EXPECT_NE(painted.at({bar.left() - 2, bar.center().y()}), colourOf(number)) << number;
            EXPECT_NE(painted.at({bar.right() + 2, bar.center().y()}), colourOf(number)) << number;
        }
        EXPECT_NE(painted.at({bar.center().x(), bar.top() - 1.5}), colourOf(number)) << number;
    }
    EXPECT_EQ(bars, GetParam().tipo == 'A' ? 3 : 2);
}

TEST_P(ChartPixels, TheGridsLinesCrossThePlotInTheirColour) {
    const Painted painted = paintBars();
    const QRgb colour = qtRgb(grafico().asseY.PennaMajor.colore);
    ASSERT_GT(layout.majorLines.size(), 5U);
    for (std::size_t i = 1; i < layout.majorLines.size(); ++i) { // the first is the axis's
        const double y = layout.majorLines[i];
        EXPECT_EQ(painted.at({besideTheFirstBar(), y}), colour) << i;
        EXPECT_EQ(painted.at({layout.plot.right() - 2, y}), colour) << i;
        EXPECT_EQ(painted.at({layout.plot.x - 3, y}), White) << i;
        const double between = (y + layout.majorLines[i - 1]) / 2;
        EXPECT_EQ(painted.at({besideTheFirstBar(), between}), White) << i;
    }
}

TEST_P(ChartPixels, TheBarsStandBeforeTheLines) {
    const Painted painted = paintBars();
    for (std::size_t number = 0; number < layout.bars.size(); ++number) {
        const QRectF bar = rectOf(layout.bars[number].area);
        for (const double y : layout.majorLines) {
            if (y > bar.top() + 3 && y < bar.bottom() - 3) {
                EXPECT_EQ(painted.at({bar.center().x(), y}), colourOf(number)) << number;
            }
        }
    }
}

TEST_P(ChartPixels, TheAxesAreDrawn) {
    const Painted painted = paintBars();
    const ChartArea& plot = layout.plot;
    const double between = (layout.majorLines[1] + layout.majorLines[2]) / 2;
    EXPECT_TRUE(painted.any({plot.x - 1, between, 2, 0.5}, isGrey)) << "the hours' axis";
    EXPECT_EQ(painted.at({plot.x - 2, between}), White);
    // The grid's first line, in a colour of its own, lies below the other axis.
    if (grafico().asseY.PennaMajor.colore != Nero) {
        EXPECT_TRUE(painted.any({besideTheFirstBar(), plot.bottom() - 1, 0.5, 2},
                                [](QRgb c) { return qRed(c) < 150; }));
    }
}

TEST_P(ChartPixels, FrameTitleLegendAndTextsOfBars) {
    const Painted painted = paintBars();
    expectFrames(painted);
    expectLegend(painted);
    expectTexts(painted);
}

TEST_P(ChartPixels, EachValueHasItsSlice) {
    const Painted painted = paintPie();
    ASSERT_EQ(layout.slices.size(), GetParam().tipo == 'A' ? 3U : 2U);
    const auto place = [&](double degrees, double share) {
        const double angle = degrees * std::numbers::pi / 180;
        return QPointF(layout.pieCentre.x + share * layout.pieRadius * std::sin(angle),
                       layout.pieCentre.y - share * layout.pieRadius * std::cos(angle));
    };
    for (const ChartSlice& slice : layout.slices) {
        for (const double share : {0.1, 0.3, 0.5, 0.7, 0.9}) {
            for (const double radius : {0.3, 0.6, 0.95}) {
                EXPECT_EQ(painted.at(place(slice.start + share * slice.span, radius)), qtRgb(slice.colour))
                    << slice.number << " " << share << " " << radius;
            }
        }
        EXPECT_NE(painted.at(place(slice.start, 0.7)), qtRgb(slice.colour)) << "a line apart";
        EXPECT_EQ(painted.at(place(slice.start + 0.1 * slice.span, 1.02)), White) << slice.number;
    }
}

TEST_P(ChartPixels, EachSlicesLabelStandsInABoxAtTheEndOfItsLine) {
    const Painted painted = paintPie();
    for (const ChartSlice& slice : layout.slices) {
        ASSERT_TRUE(slice.label) << slice.number;
        const QRectF box = rectOf(layout.texts[*slice.label].area);
        EXPECT_GT(painted.amount({box.left() - 1, box.top(), 2, box.height()}, isGrey), box.height() - 1);
        EXPECT_GT(painted.amount({box.left(), box.top() - 1, box.width(), 2}, isGrey), box.width() - 1);
        EXPECT_EQ(painted.at(box.topLeft() + QPointF(2, 2)), White);
        const ChartPoint from = slice.labelLine[1];
        const ChartPoint to = slice.labelLine[2];
        const QPointF middle((from.x + to.x) / 2, (from.y + to.y) / 2);
        EXPECT_TRUE(painted.any({middle - QPointF(1, 1), QSizeF(2, 2)}, isGrey)) << slice.number;
    }
}

TEST_P(ChartPixels, FrameTitleLegendAndTextsOfAPie) {
    const Painted painted = paintPie();
    expectFrames(painted);
    expectLegend(painted);
    expectTexts(painted);
}

TEST_P(ChartPixels, APieHasNeitherAxesNorLines) {
    const Painted painted = paintPie();
    const QRectF plot = rectOf(layout.plot);
    EXPECT_FALSE(painted.any({plot.left() - 1, plot.top() + 20, 3, plot.height() - 40}, isNot(White)));
    EXPECT_FALSE(painted.any({plot.left() + 20, plot.bottom() - 1, plot.width() - 40, 3}, isNot(White)));
}

TEST_P(ChartPixels, PartsOfADivisionHaveLinesOfTheirOwnColour) {
    paintBars();
    Grafico divided = grafico();
    divided.asseY.MinorDivision = 2;
    const Painted painted = paint(divided, layout);
    ASSERT_GT(layout.minorLines.size(), 3U);
    for (const double y : layout.minorLines) {
        EXPECT_EQ(painted.at({besideTheFirstBar(), y}), qtRgb(divided.asseY.PennaMinor.colore)) << y;
    }
}

TEST_P(ChartPixels, TheLinesPassBehindTheValues) {
    paintBars();
    Grafico dense = grafico();
    dense.asseY.MajorDivision = 24; // lines nearer to each other than a value is high
    const Painted painted = paint(dense, layout);
    const QRgb line = qtRgb(dense.asseY.PennaMajor.colore);
    int values = 0;
    for (const PlacedText& text : layout.texts) {
        if (text.role == ChartTextRole::value) {
            const QRectF area = rectOf(text.area);
            EXPECT_TRUE(line == Black || !painted.any(area.adjusted(1, 1, -1, -1), isRed)) << text.text;
            EXPECT_EQ(painted.at(area.topLeft() + QPointF(1.5, 1.5)), White) << text.text;
            ++values;
        }
    }
    EXPECT_GE(values, 2);
}

TEST_P(ChartPixels, TheValuePointedAtHasADarkLineBetweenLightOnes) {
    const Painted plain = paintBars();
    const std::size_t number = GetParam().tipo == 'M' ? 13 : GetParam().tipo == 'G' ? 0 : 2;
    const QRectF bar = rectOf(layout.bars[number].area);
    ASSERT_GT(bar.height(), 20);
    const Painted painted(ImageSize, GetParam().ratio, [&](QPainter& target) {
        ChartPainter(grafico(), 1).paint(target, layout);
        ChartPainter::pointOut(target, layout, number);
    });
    const double middle = bar.center().y();
    EXPECT_TRUE(painted.any({bar.left() - 1, middle, 2, 0.5}, isDark));
    EXPECT_TRUE(painted.any({bar.left() - 3, middle, 2, 0.5}, is(White)));
    EXPECT_EQ(painted.at(bar.center()), colourOf(number));
    EXPECT_EQ(plain.any({bar.left() + 1, middle, 2, 0.5}, is(White)), false);
    EXPECT_TRUE(painted.any({bar.left() + 1, middle, 2, 0.5}, is(White)));
}

INSTANTIATE_TEST_SUITE_P(Charts, ChartPixels,
                         testing::Values(ChartCase{'M', 1}, ChartCase{'M', 2}, ChartCase{'G', 1},
                                         ChartCase{'G', 2}, ChartCase{'A', 1}, ChartCase{'A', 2}),
                         testing::PrintToStringParamName());

} // namespace planner::test
