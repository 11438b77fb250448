// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_texts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>

namespace planner::test {

namespace {

/// A chart of one series with the given labels, values and sentences' beginnings.
Grafico chart(std::vector<std::string> etichette, std::vector<double> valori, std::vector<std::string> voci) {
    Grafico grafico;
    grafico.asseX = "Giorni";
    grafico.etichette = std::move(etichette);
    grafico.serie.push_back({"Rossi Bruno", std::move(valori), ColoreSerie});
    grafico.voci = std::move(voci);
    return grafico;
}

Grafico yearlyChart() {
    Grafico grafico;
    grafico.asseX = "Anno 2006";
    grafico.etichette = {""};
    grafico.serie = {{"Gen", {7.5}, ColoriMesi[0]}, {"Feb", {0}, ColoriMesi[1]}};
    grafico.voci = {"gennaio 2006", "febbraio 2006"};
    return grafico;
}

std::string sentenceOf(double value) {
    return fraseValore(chart({"1"}, {value}, {"1 marzo"}), 0);
}

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double MassimoDouble = std::numeric_limits<double>::max();

} // namespace

TEST(TestoOreTest, IsHoursAndMinutes) {
    EXPECT_EQ(testoOre(0), "0:00");
    EXPECT_EQ(testoOre(7.5), "7:30");
    EXPECT_EQ(testoOre(0.25), "0:15");
    EXPECT_EQ(testoOre(24), "24:00");
    EXPECT_EQ(testoOre(1234 + 5.0 / 60), "1234:05");
}

TEST(TestoOreTest, RoundsToTheNearestMinute) {
    EXPECT_EQ(testoOre(7 + 29.6 / 60), "7:30");
    EXPECT_EQ(testoOre(7 + 29.4 / 60), "7:29");
    EXPECT_EQ(testoOre(7 + 59.6 / 60), "8:00");
}

TEST(TestoOreTest, HasOneSignForNegativeHours) {
    EXPECT_EQ(testoOre(-1.25), "-1:15");
    EXPECT_EQ(testoOre(-0.5), "-0:30");
    EXPECT_EQ(testoOre(-0.001), "0:00");
    EXPECT_EQ(testoOre(-0.0), "0:00");
}

TEST(TestoOreTest, IsADecimalNumberBeyondABillionHours) {
    EXPECT_EQ(testoOre(1e9), "1000000000:00");
    EXPECT_EQ(testoOre(2e9), "2000000000");
    EXPECT_EQ(testoOre(-2e9), "-2000000000");
    EXPECT_EQ(testoOre(MassimoDouble).size(), 309u);
    EXPECT_EQ(testoOre(Infinito), "inf");
    EXPECT_FALSE(testoOre(std::nan("")).empty());
}

TEST(TestoDecimaleTest, HasACommaAndAtMostTwoDecimals) {
    EXPECT_EQ(testoDecimale(0), "0");
    EXPECT_EQ(testoDecimale(7.5), "7,5");
    EXPECT_EQ(testoDecimale(7.25), "7,25");
    EXPECT_EQ(testoDecimale(8), "8");
    EXPECT_EQ(testoDecimale(10), "10");
    EXPECT_EQ(testoDecimale(100), "100");
    EXPECT_EQ(testoDecimale(7 + 20.0 / 60), "7,33");
    EXPECT_EQ(testoDecimale(7.999), "8");
    EXPECT_EQ(testoDecimale(32'767), "32767");
}

TEST(TestoDecimaleTest, HasNoNegativeZero) {
    EXPECT_EQ(testoDecimale(-0.0), "0");
    EXPECT_EQ(testoDecimale(-0.001), "0");
    EXPECT_EQ(testoDecimale(-0.25), "-0,25");
    EXPECT_EQ(testoDecimale(-10), "-10");
}

TEST(TestoDecimaleTest, WritesEveryDouble) {
    EXPECT_EQ(testoDecimale(MassimoDouble).size(), 309u);
    EXPECT_EQ(testoDecimale(-MassimoDouble).size(), 310u);
    EXPECT_EQ(testoDecimale(std::numeric_limits<double>::denorm_min()), "0");
    EXPECT_EQ(testoDecimale(-Infinito), "-inf");
}

TEST(FraseValoreTest, SaysWhatAndHowMuch) {
    EXPECT_EQ(sentenceOf(7.5), "1 marzo: 7,5 ore");
    EXPECT_EQ(sentenceOf(0), "1 marzo: 0 ore");
    EXPECT_EQ(sentenceOf(2), "1 marzo: 2 ore");
}

TEST(FraseValoreTest, OneHourIsSingular) {
    EXPECT_EQ(sentenceOf(1), "1 marzo: 1 ora");
    EXPECT_EQ(sentenceOf(1.25), "1 marzo: 1,25 ore");
    EXPECT_EQ(sentenceOf(0.25), "1 marzo: 0,25 ore");
}

TEST(FraseValoreTest, CountsThroughTheSeries) {
    EXPECT_EQ(fraseValore(yearlyChart(), 0), "gennaio 2006: 7,5 ore");
    EXPECT_EQ(fraseValore(yearlyChart(), 1), "febbraio 2006: 0 ore");
}

TEST(FraseValoreTest, ConvertsNamesAndHidesControlCharacters) {
    const Grafico grafico = chart({"NI"}, {1}, {"Nicol\xF2\nD\x92\xC0ngelo (NI)"});
    EXPECT_EQ(fraseValore(grafico, 0), "Nicolò D’Àngelo (NI): 1 ora");
}

TEST(FraseValoreTest, RefusesValuesThatTheChartLacks) {
    EXPECT_THROW(fraseValore(yearlyChart(), 2), std::out_of_range);
    EXPECT_THROW(fraseValore(Grafico{}, 0), std::out_of_range);
    EXPECT_THROW(fraseValore(chart({}, {}, {}), 0), std::out_of_range);
}

TEST(TabellaValoriTest, HasALineForEachRowOfASingleSeries) {
    EXPECT_EQ(tabellaValori(chart({"1", "2", "3"}, {7.5, 0, 8}, {})), "Giorni\tOre\n1\t7,5\n2\t0\n3\t8\n");
}

TEST(TabellaValoriTest, HasALineForEachOfSeveralSeries) {
    EXPECT_EQ(tabellaValori(yearlyChart()), "Anno 2006\tOre\nGen\t7,5\nFeb\t0\n");
}

TEST(TabellaValoriTest, OfAChartWithoutValuesHasItsHeadings) {
    EXPECT_EQ(tabellaValori(chart({}, {}, {})), "Giorni\tOre\n");
    EXPECT_EQ(tabellaValori(Grafico{}), "\tOre\n");
}

TEST(TabellaValoriTest, LabelsCannotBreakTheTable) {
    EXPECT_EQ(tabellaValori(chart({"\t\n", std::string("\r\0", 2), "\x7F\x81"}, {1, 2, 3}, {})),
              "Giorni\tOre\n  \t1\n  \t2\n  \t3\n");
}

TEST(TabellaValoriTest, LabelsBecomeUtf8) {
    EXPECT_EQ(tabellaValori(chart({"\xC0\xF2", "\x80 "}, {1, 2}, {})), "Giorni\tOre\nÀò\t1\n€ \t2\n");
}

} // namespace planner::test
