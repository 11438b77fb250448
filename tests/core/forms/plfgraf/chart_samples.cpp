// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "core/forms/plfgraf/chart_samples.h"

#include <algorithm>

namespace planner::test {

ChartSize fixedMeasure(ChartTextRole role, const std::string& text) {
    const double scale = role == ChartTextRole::title ? 1.5 : 1;
    return {static_cast<double>(text.size()) * 7 * scale, 14 * scale};
}

Grafico oneSeries(const std::vector<double>& values, double maximum) {
    Grafico grafico;
    grafico.TitleText = "Planner Mensile";
    grafico.asseX = "Giorni";
    grafico.asseY.titolo = "Ore";
    grafico.asseY.Maximum = maximum;
    grafico.asseY.MajorDivision = static_cast<std::int16_t>(maximum);
    grafico.serie = {{"Rossi Mario", values, ColoreSerie}};
    for (std::size_t row = 1; row <= values.size(); ++row) {
        grafico.etichette.push_back(std::to_string(row));
        grafico.voci.push_back("voce " + std::to_string(row));
    }
    return grafico;
}

Grafico twelveSeries(const std::vector<double>& values) {
    Grafico grafico = oneSeries({}, 100);
    grafico.asseY.MajorDivision = 10;
    grafico.etichette = {""};
    grafico.serie.clear();
    for (std::size_t month = 0; month < values.size(); ++month) {
        grafico.serie.push_back({"M" + std::to_string(month + 1), {values[month]}, ColoriMesi.at(month)});
    }
    return grafico;
}

Grafico asPie(Grafico grafico) {
    grafico.tipo = TipoGrafico::Torta;
    return grafico;
}

ChartLayout layoutOf(const Grafico& grafico, ChartSize size, const ChartArea& reserved) {
    return layoutChart(grafico, size, reserved, fixedMeasure);
}

std::vector<std::string> textsOf(const ChartLayout& layout, ChartTextRole role) {
    std::vector<std::string> texts;
    for (const PlacedText& text : layout.texts) {
        if (text.role == role) {
            texts.push_back(text.text);
        }
    }
    return texts;
}

namespace {

bool covered(const ChartLayout& layout, const PlacedText& text) {
    const auto overlapsText = [&text](const PlacedText& other) {
        return &other != &text && other.area.overlaps(text.area);
    };
    const auto overlapsBar = [&text](const ChartBar& bar) { return bar.area.overlaps(text.area); };
    return std::any_of(layout.texts.begin(), layout.texts.end(), overlapsText) ||
           std::any_of(layout.bars.begin(), layout.bars.end(), overlapsBar);
}

} // namespace

std::vector<std::string> coveredTexts(const ChartLayout& layout) {
    std::vector<std::string> texts;
    for (const PlacedText& text : layout.texts) {
        if (covered(layout, text)) {
            texts.push_back(text.text);
        }
    }
    return texts;
}

} // namespace planner::test
