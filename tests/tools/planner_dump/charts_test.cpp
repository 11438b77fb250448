// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <gtest/gtest.h>

namespace planner::test {

namespace {

Json dumpOfKind(std::string_view kind, std::string_view index) {
    SmallOffice office;
    office.richiesta = request(kind);
    return office.dumpWithChart(index);
}

void expectNoChart(const Json& dump, const Json& messages) {
    EXPECT_TRUE(dump.at("grafico").is_null()) << dump.at("grafico");
    EXPECT_EQ(dump.at("messaggi"), messages);
}

} // namespace

TEST(DumpChart, IsThereOnlyWhenAskedForAndThenTheLast) {
    const SmallOffice office;
    EXPECT_FALSE(office.dump().contains("grafico"));
    const Json dump = office.dumpWithChart("0");
    EXPECT_EQ(std::prev(dump.end()).key(), "grafico");
    EXPECT_EQ(dump.size(), 9u);
}

TEST(DumpChart, ChangesNothingElse) {
    const SmallOffice office;
    Json withChart = office.dumpWithChart("0");
    withChart.erase("grafico");
    EXPECT_EQ(withChart.dump(), office.dump().dump());
}

TEST(DumpChart, OfTheMonthlyPlannerIsTheGivenPersonsMonth) {
    const Json dump = dumpOfKind("M", "0");
    Json values = Json::array();
    Json labels = Json::array();
    for (int day = 1; day <= 31; ++day) {
        values.push_back(day == 1 ? 7.5 : day == 15 ? 8.25 : 0.0);
        labels.push_back(std::to_string(day));
    }
    const Json expected{{"titolo", "Planner Mensile"},
                        {"asseX", "Giorni"},
                        {"asseY", "Ore"},
                        {"serie", Json::array({{{"etichetta", "Rossi Mario"}, {"valori", values}}})},
                        {"etichette", labels},
                        {"massimo", 9.0},
                        {"divisioni", 9}};
    EXPECT_EQ(dump.at("grafico").dump(), expected.dump());
    EXPECT_EQ(dump.at("messaggi"), Json::array());
}

TEST(DumpChart, OfTheDailyPlannerIsEverybodysDay) {
    const Json expected{
        {"titolo", "Planner Giornaliero"},
        {"asseX", "Collaboratori"},
        {"asseY", "Ore"},
        {"serie", Json::array({{{"etichetta", "Bianchi Lucia"}, {"valori", {8.25, 4.75, 0.0}}}})},
        {"etichette", {"RM", "BL", "VG"}},
        {"massimo", 9.0},
        {"divisioni", 9}};
    EXPECT_EQ(dumpOfKind("G", "0").at("grafico").dump(), expected.dump());
    EXPECT_EQ(dumpOfKind("G", "-1").at("grafico").dump(), expected.dump()) << "nobody need be selected";
}

TEST(DumpChart, OfTheYearlyPlannerIsTwelveMonths) {
    const Json chart = dumpOfKind("A", "-1").at("grafico");
    EXPECT_EQ(chart.at("titolo"), "Planner Annuale");
    EXPECT_EQ(chart.at("asseX"), "Anno 2006");
    EXPECT_EQ(chart.at("etichette"), Json::array({""}));
    ASSERT_EQ(chart.at("serie").size(), 12u);
    EXPECT_EQ(chart.at("serie").at(0), Json({{"etichetta", "Gen"}, {"valori", {0.0}}}));
    EXPECT_EQ(chart.at("serie").at(2), Json({{"etichetta", "Mar"}, {"valori", {12.0}}}));
    EXPECT_EQ(chart.at("serie").at(3), Json({{"etichetta", "Apr"}, {"valori", {6.0}}}));
    EXPECT_EQ(chart.at("serie").at(11).at("etichetta"), "Dic");
    EXPECT_EQ(chart.at("massimo"), 100.0);
    EXPECT_EQ(chart.at("divisioni"), 10);
}

TEST(DumpChart, OfTheMonthlyPlannerNeedsASelectedPerson) {
    for (const std::string_view index : {"-1", "-32768"}) {
        expectNoChart(
            dumpOfKind("M", index),
            Json::array({information("Selezionare un collaboratore prima di visualizzare il grafico.")}));
    }
}

TEST(DumpChart, OfAnUnknownKindIsNone) {
    expectNoChart(dumpOfKind("X", "0"),
                  Json::array({critical("Richiesta non valida: il tipo di planner \"X\" non è M, G o A.")}));
}

TEST(DumpChart, AFailureIsSaidAndGivesNone) {
    const auto failed = [](const std::string& why) {
        return Json::array({critical("Operazione non riuscita: " + why + ".")});
    };
    for (const std::string_view collab : {"99", "32767"}) {
        expectNoChart(dumpOfKind("M", collab), failed("un indice è fuori dai limiti della tabella"));
    }
    SmallOffice office;
    office.richiesta = request("A");
    office.grafici.push_back(rigaGrafico("RM", "20061301", "0001:00"));
    const std::string record = "wgrafici, record " + std::to_string(office.grafici.size()) + ": ";
    expectNoChart(office.dumpWithChart("0"), failed(record + "il mese \"13\" è fuori dall'anno"));
    office.grafici.back() = rigaGrafico("RM", "2006xx01", "0001:00");
    expectNoChart(office.dumpWithChart("0"), failed(record + "il mese \"xx\" non è un numero"));
    office.grafici.back() = rigaGrafico("RM", "20060101", "1000000");
    expectNoChart(office.dumpWithChart("0"), failed("un numero è troppo grande"));
}

TEST(DumpChart, MissingHoursAreSaidAndGiveAnEmptyChart) {
    for (const std::string_view kind : {"M", "G", "A"}) {
        SmallOffice office;
        office.richiesta = request(kind);
        office.write();
        office.removeFile("wgrafici");
        const Json dump = office.dumpWithChartAsItIs("0");
        EXPECT_EQ(dump.at("messaggi"),
                  Json::array({information("Errore sul File :" + office.folder() + "\\wgrafici")}));
        EXPECT_EQ(dump.at("grafico").at("massimo"), kind == "A" ? 10.0 : 0.0);
        EXPECT_EQ(dump.at("grafico").at("titolo") == "", kind == "A");
    }
}

TEST(DumpChart, MessagesOfTheChartComeAfterThoseOfTheRequest) {
    SmallOffice office;
    office.write();
    office.removeFile("wrighipl");
    office.removeFile("wgrafici");
    expectNoChart(
        office.dumpWithChartAsItIs("-1"),
        Json::array({information("Errore su File :" + office.folder() + "\\wrighipl"),
                     information("Errore sul File :" + office.folder() + "\\wgrafici"),
                     information("Selezionare un collaboratore prima di visualizzare il grafico.")}));
}

TEST(DumpChart, LabelsAreUtf8) {
    SmallOffice office;
    office.richiesta = request("G");
    office.collaboratori.at(1) = collaboratore("\xC0\x80", "Nicol\xF2 D\x92\xC0ngelo", "");
    const Json chart = office.dumpWithChart("0").at("grafico");
    EXPECT_EQ(chart.at("serie").at(0).at("etichetta"), "Nicolò D’Àngelo");
    EXPECT_EQ(chart.at("etichette").at(1), "À€");
}

TEST(DumpChart, ACodeKeepsItsTwoCharacters) {
    SmallOffice office;
    office.richiesta = request("G");
    office.collaboratori.at(0) = collaboratore("7", "Verdi Ugo", "");
    EXPECT_EQ(office.dumpWithChart("0").at("grafico").at("etichette").at(0), "7 ");
}

} // namespace planner::test
