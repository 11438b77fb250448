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

std::string fileNameOf(std::string intestazione) {
    Grafico grafico;
    grafico.intestazione = std::move(intestazione);
    return nomeFileGrafico(grafico);
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

TEST(TestoQuotaTest, IsTheSharesHundredthsInAPie) {
    Grafico pie =
        chart({"1", "2", "3", "4"}, {30, 0, 69.8, 0.2}, {"1 marzo", "2 marzo", "3 marzo", "4 marzo"});
    const double total = totaleTorta(pie);
    EXPECT_EQ(total, 100);
    EXPECT_EQ(testoQuota(30, total), "30 %");
    EXPECT_EQ(testoQuota(0, total), "");
    EXPECT_EQ(testoQuota(69.8, total), "70 %");
    EXPECT_EQ(testoQuota(0.2, total), "<1 %");
    EXPECT_EQ(fraseValore(pie, 0), "1 marzo: 30:00");
    pie.tipo = TipoGrafico::Torta;
    EXPECT_EQ(fraseValore(pie, 0), "1 marzo: 30:00, 30 %");
    EXPECT_EQ(fraseValore(pie, 1), "2 marzo: 0:00");
    EXPECT_EQ(fraseParlata(pie, 0), "1 marzo: 30 ore, 30 %");
}

TEST(TestoQuotaTest, NegativeAndEndlessValuesHaveNoShare) {
    EXPECT_EQ(totaleTorta(chart({"1", "2"}, {-5, 5}, {"a", "b"})), 5);
    EXPECT_EQ(testoQuota(-5, 5), "");
    EXPECT_EQ(testoQuota(5, 5), "100 %");
    const double endless = totaleTorta(chart({"1", "2"}, {MassimoDouble, MassimoDouble}, {"a", "b"}));
    EXPECT_EQ(testoQuota(MassimoDouble, endless), "");
}

TEST(TestoPiedeTest, SaysWhoseHoursHowManyAndTheMean) {
    Grafico month = chart({"1", "2", "3"}, {7.5, 0, 8.25}, {"1 marzo", "2 marzo", "3 marzo"});
    EXPECT_EQ(testoPiede(month), "totale 15:45, media 7:53 su 2 valori");
    month.intestazione = "Ore di Rossi Bruno - marzo 2006";
    month.voceUna = "giorno";
    month.voceMolte = "giorni";
    EXPECT_EQ(testoPiede(month), "Ore di Rossi Bruno - marzo 2006: totale 15:45, media 7:53 su 2 giorni");
    month.serie.front().valori = {7.5, 0, 0};
    EXPECT_EQ(testoPiede(month), "Ore di Rossi Bruno - marzo 2006: totale 7:30, media 7:30 su 1 giorno");
    month.serie.front().valori = {0, 0, 0};
    EXPECT_EQ(testoPiede(month), "Ore di Rossi Bruno - marzo 2006: nessuna ora");
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

TEST(OreParlateTest, AreCountedInWords) {
    EXPECT_EQ(oreParlate(7.5), "7 ore e 30 minuti");
    EXPECT_EQ(oreParlate(2), "2 ore");
    EXPECT_EQ(oreParlate(0.5), "30 minuti");
    EXPECT_EQ(oreParlate(0), "nessuna ora");
}

TEST(OreParlateTest, OneIsSingular) {
    EXPECT_EQ(oreParlate(1), "1 ora");
    EXPECT_EQ(oreParlate(1 + 1.0 / 60), "1 ora e 1 minuto");
    EXPECT_EQ(oreParlate(2 + 1.0 / 60), "2 ore e 1 minuto");
    EXPECT_EQ(oreParlate(1.5), "1 ora e 30 minuti");
    EXPECT_EQ(oreParlate(1.0 / 60), "1 minuto");
}

TEST(OreParlateTest, AgreeWithTheWrittenOnes) {
    EXPECT_EQ(oreParlate(7 + 59.6 / 60), "8 ore");
    EXPECT_EQ(oreParlate(-1.25), "meno 1 ora e 15 minuti");
    EXPECT_EQ(oreParlate(-0.001), "nessuna ora");
    EXPECT_EQ(oreParlate(2e9), "2000000000 ore");
    EXPECT_EQ(oreParlate(-Infinito), "-inf ore");
}

TEST(FraseValoreTest, SaysWhatAndHowMuchInHoursAndMinutes) {
    EXPECT_EQ(sentenceOf(7.5), "1 marzo: 7:30");
    EXPECT_EQ(sentenceOf(0), "1 marzo: 0:00");
    EXPECT_EQ(sentenceOf(2), "1 marzo: 2:00");
}

TEST(FraseValoreTest, CountsThroughTheSeries) {
    EXPECT_EQ(fraseValore(yearlyChart(), 0), "gennaio 2006: 7:30");
    EXPECT_EQ(fraseValore(yearlyChart(), 1), "febbraio 2006: 0:00");
    EXPECT_EQ(fraseParlata(yearlyChart(), 0), "gennaio 2006: 7 ore e 30 minuti");
    EXPECT_EQ(fraseParlata(yearlyChart(), 1), "febbraio 2006: nessuna ora");
}

TEST(FraseValoreTest, ConvertsNamesAndHidesControlCharacters) {
    const Grafico grafico = chart({"NI"}, {1}, {"Nicol\xF2\nD\x92\xC0ngelo (NI)"});
    EXPECT_EQ(fraseValore(grafico, 0), "Nicolò D’Àngelo (NI): 1:00");
    EXPECT_EQ(fraseParlata(grafico, 0), "Nicolò D’Àngelo (NI): 1 ora");
}

TEST(FraseValoreTest, RefusesValuesThatTheChartLacks) {
    for (const auto sentence : {fraseValore, fraseParlata}) {
        EXPECT_THROW(sentence(yearlyChart(), 2), std::out_of_range);
        EXPECT_THROW(sentence(Grafico{}, 0), std::out_of_range);
        EXPECT_THROW(sentence(chart({}, {}, {}), 0), std::out_of_range);
    }
}

TEST(TabellaValoriTest, HasALineForEachRowOfASingleSeries) {
    EXPECT_EQ(tabellaValori(chart({"1", "2", "3"}, {7.5, 0, 8}, {})),
              "Giorni\tOre\tOre decimali\n1\t7:30\t7,5\n2\t0:00\t0\n3\t8:00\t8\n");
}

TEST(TabellaValoriTest, HasALineForEachOfSeveralSeries) {
    EXPECT_EQ(tabellaValori(yearlyChart()), "Anno 2006\tOre\tOre decimali\nGen\t7:30\t7,5\nFeb\t0:00\t0\n");
}

TEST(TabellaValoriTest, BeginsWithTheChartsHeading) {
    Grafico grafico = chart({"1"}, {0.25}, {});
    grafico.intestazione = "Ore di Nicol\xF2\tRossi - marzo 2006";
    EXPECT_EQ(tabellaValori(grafico),
              "Ore di Nicolò Rossi - marzo 2006\nGiorni\tOre\tOre decimali\n1\t0:15\t0,25\n");
}

TEST(TabellaValoriTest, OfAChartWithoutValuesHasItsHeadings) {
    EXPECT_EQ(tabellaValori(chart({}, {}, {})), "Giorni\tOre\tOre decimali\n");
    EXPECT_EQ(tabellaValori(Grafico{}), "\tOre\tOre decimali\n");
}

TEST(TabellaValoriTest, LabelsCannotBreakTheTable) {
    EXPECT_EQ(tabellaValori(chart({"\t\n", std::string("\r\0", 2), "\x7F\x81"}, {1, 2, 3}, {})),
              "Giorni\tOre\tOre decimali\n  \t1:00\t1\n  \t2:00\t2\n  \t3:00\t3\n");
}

TEST(TabellaValoriTest, LabelsBecomeUtf8) {
    EXPECT_EQ(tabellaValori(chart({"\xC0\xF2", "\x80 "}, {1, 2}, {})),
              "Giorni\tOre\tOre decimali\nÀò\t1:00\t1\n€ \t2:00\t2\n");
}

TEST(NomeFileGraficoTest, IsTheHeading) {
    EXPECT_EQ(fileNameOf("Ore di Rossi Bruno - marzo 2006"), "Ore di Rossi Bruno - marzo 2006");
    EXPECT_EQ(fileNameOf("Ore dell'anno 2006"), "Ore dell'anno 2006");
    EXPECT_EQ(fileNameOf("Ore di Nicol\xF2"), "Ore di Nicolò");
    EXPECT_EQ(fileNameOf(""), "Grafico");
}

TEST(NomeFileGraficoTest, HoldsNothingThatAFileSystemForbids) {
    EXPECT_EQ(fileNameOf("Ore di a/b\\c:d*e?f\"g<h>i|j - marzo"), "Ore di a_b_c_d_e_f_g_h_i_j - marzo");
    EXPECT_EQ(fileNameOf("Ore di .. Dott. Rossi"), "Ore di __ Dott_ Rossi") << "a point begins a suffix";
    EXPECT_EQ(fileNameOf("Ore di a\n\t b\x7F- marzo "), "Ore di a b - marzo");
    EXPECT_EQ(fileNameOf(" \x01 "), "Grafico");
}

TEST(NomeFileGraficoTest, OfTheLongestNameFitsAFolder) {
    EXPECT_LE(fileNameOf("Ore di " + std::string(50, '\x80') + " - settembre 2006").size(), 250u);
}

TEST(TestoVisibileTest, ShowsEveryByte) {
    EXPECT_EQ(testoVisibile("3x"), "3x");
    EXPECT_EQ(testoVisibile(std::string("3\0", 2)), "3\\x00");
    EXPECT_EQ(testoVisibile("\xF2\x81\x7F\n"), "ò\\x81\\x7F\\x0A");
    EXPECT_EQ(testoVisibile("<b>"), "<b>");
}

} // namespace planner::test
