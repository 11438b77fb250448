// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/chart_properties.h"

#include "core/forms/plfgraf/chart_samples.h"
#include "forms/plfgraf/chart_texts.h"
#include "fuzz/fuzz_input.h"
#include "sample_archive/cp1252_from_utf8.h"

#include <algorithm>
#include <cmath>

namespace planner::test {

namespace {

constexpr double Tolerance = 1e-6; // of sums of lengths

bool finite(const ChartArea& area) {
    return std::isfinite(area.x) && std::isfinite(area.y) && std::isfinite(area.width) &&
           std::isfinite(area.height) && area.width >= 0 && area.height >= 0;
}

void requireTextsInside(const ChartLayout& layout) {
    for (const PlacedText& text : layout.texts) {
        require(finite(text.area), "a text stands somewhere: " + text.text);
        require(layout.size.width < NarrowestChart ||
                    (text.area.x >= -Tolerance && text.area.right() <= layout.size.width + Tolerance),
                "a text lies within the chart's width: " + text.text);
    }
}

void requireValuesClear(const ChartLayout& layout) {
    std::vector<ChartArea> values;
    for (const PlacedText& text : layout.texts) {
        if (text.role != ChartTextRole::value) {
            continue;
        }
        const auto covers = [&](const ChartArea& other) {
            ChartArea inner = text.area;
            inner.width -= Tolerance;
            inner.height -= Tolerance;
            return inner.overlaps(other);
        };
        require(std::none_of(values.begin(), values.end(), covers), "no value covers another: " + text.text);
        require(std::none_of(layout.bars.begin(), layout.bars.end(),
                             [&](const ChartBar& bar) { return covers(bar.area); }),
                "no value covers a bar: " + text.text);
        values.push_back(text.area);
    }
}

void requireSlicesCloseTheCircle(const ChartLayout& layout) {
    double turned = 0;
    for (const ChartSlice& slice : layout.slices) {
        require(slice.span >= 0 && std::abs(slice.start - turned) < Tolerance, "slices follow each other");
        require(finite(areaOf(layout, slice.number)), "a slice has its place");
        turned = slice.start + slice.span;
    }
    require(layout.slices.empty() || std::abs(turned - 360) < Tolerance, "slices close the circle");
}

void requireBarsInsideThePlot(const Grafico& grafico, const ChartLayout& layout) {
    require(layout.bars.size() == grafico.numValori(), "each value has its bar");
    for (std::size_t number = 0; number < layout.bars.size(); ++number) {
        const ChartArea& bar = layout.bars[number].area;
        require(finite(bar) && bar.y >= layout.plot.y - Tolerance, "a bar ends below the plot's top");
        require(finite(areaOf(layout, number)), "a bar has its slot");
    }
}

void requireSoundTable(const Grafico& grafico) {
    const std::string table = tabellaValori(grafico);
    const auto lines = std::count(table.begin(), table.end(), '\n');
    const std::size_t headings = grafico.intestazione.empty() ? 1 : 2;
    require(static_cast<std::size_t>(lines) == grafico.numValori() + headings,
            "the table has a line per value");
    const auto tabs = static_cast<std::size_t>(std::count(table.begin(), table.end(), '\t'));
    require(tabs == 2 * (grafico.numValori() + 1), "each line has three columns");
    require(cp1252FromUtf8(table).has_value(), "the table is UTF-8");
}

} // namespace

void requireSound(const Grafico& grafico) {
    require(std::isfinite(grafico.asseY.Maximum), "the axis ends somewhere");
    require(grafico.voci.size() == grafico.numValori(), "each value has its name");
    for (std::size_t numero = 0; numero < grafico.numValori(); ++numero) {
        require(std::isfinite(grafico.valore(numero)), "a value is a number");
        require(!testoOre(grafico.valore(numero)).empty(), "hours have a text");
        require(cp1252FromUtf8(fraseValore(grafico, numero)).has_value(), "a sentence is UTF-8");
        require(cp1252FromUtf8(fraseParlata(grafico, numero)).has_value(), "a spoken sentence is UTF-8");
    }
    requireSoundTable(grafico);
    const std::string name = nomeFileGrafico(grafico);
    require(!name.empty() && name.find_first_of("/\\.") == std::string::npos, "a file can have the name");
}

void requireSoundLayout(const Grafico& grafico, ChartSize size, const ChartArea& reserved) {
    const ChartLayout bars = layoutOf(grafico, size, reserved);
    requireTextsInside(bars);
    requireBarsInsideThePlot(grafico, bars);
    requireValuesClear(bars);
    const ChartLayout pie = layoutOf(asPie(grafico), size, reserved);
    requireTextsInside(pie);
    requireSlicesCloseTheCircle(pie);
    requireValuesClear(pie);
    for (const ChartLayout* layout : {&bars, &pie}) {
        const auto found = valueAt(*layout, {size.width / 2, size.height / 2});
        require(!found || *found < grafico.numValori(), "what is found at a point is a value");
    }
}

} // namespace planner::test
