// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace planner::test {

namespace {

Json cell(int row, int column, std::string_view text, std::string_view fore, std::string_view back,
          int picture) {
    return {{"r", row},       {"c", column},    {"testo", text},
            {"colore", fore}, {"sfondo", back}, {"immagine", picture}};
}

bool isEnabled(const Json& dump, std::string_view key) {
    for (const Json& button : dump.at("pulsanti")) {
        if (button.at("chiave") == key) {
            return button.at("abilitato");
        }
    }
    throw std::out_of_range(std::string(key));
}

bool isVisible(const Json& dump, std::string_view key) {
    for (const Json& button : dump.at("pulsanti")) {
        if (button.at("chiave") == key) {
            return button.at("visibile");
        }
    }
    throw std::out_of_range(std::string(key));
}

Json dumpOfKind(std::string_view kind) {
    SmallOffice office;
    office.richiesta = request(kind);
    return office.dump();
}

} // namespace

TEST(Dump, HasItsKeysInTheirDocumentedOrder) {
    const Json dump = dumpOfKind("M");
    std::vector<std::string> keys;
    for (const auto& [key, value] : dump.items()) {
        keys.push_back(key);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"richiesta", "finestra", "calendario", "collaboratori",
                                              "griglia", "totali", "pulsanti", "messaggi"}));
}

TEST(Dump, GivesTheTenFieldsOfTheRequestInFullWidth) {
    const Json dump = dumpOfKind("M");
    const Json expected{{"riservato1", "HOST0001"},
                        {"tipoplanner", "M"},
                        {"startdate", "20060301"},
                        {"enddate", "20060630"},
                        {"riservato2", std::string(60, ' ')},
                        {"tipocall", " "},
                        {"collab", "BL"},
                        {"valret", "20060315   "},
                        {"Windowcaption", " Studio Rossi        "},
                        {"planrichiesto", " "}};
    EXPECT_EQ(dump.at("richiesta").dump(), expected.dump());
}

TEST(Dump, ListsTheStaffWithoutTrailingBlanks) {
    const Json expected = Json::array({
        {{"codice", "RM"}, {"nome", "Rossi Mario"}, {"mansione", "Avvocato"}},
        {{"codice", "BL"}, {"nome", "Bianchi Lucia"}, {"mansione", "Segretaria"}},
        {{"codice", "VG"}, {"nome", "Verdi Gino"}, {"mansione", ""}},
    });
    EXPECT_EQ(dumpOfKind("M").at("collaboratori").dump(), expected.dump());
}

TEST(MonthlyDump, NamesWindowMonthAndGrid) {
    const Json dump = dumpOfKind("M");
    EXPECT_EQ(dump.at("finestra"),
              Json({{"didascalia", "Planner Mensile"}, {"titolo", "Mese di Marzo 2006"}}));
    EXPECT_EQ(dump.at("calendario"), "2006-03-15");
    EXPECT_EQ(dump.at("griglia").at("nome"), "Flxm");
    EXPECT_EQ(dump.at("griglia").at("righe"), 3 + 2 + 10);
    EXPECT_EQ(dump.at("griglia").at("colonne"), 38);
    EXPECT_EQ(dump.at("griglia").at("righeFisse"), 2);
    EXPECT_EQ(dump.at("messaggi"), Json::array());
}

TEST(MonthlyDump, ShowsDaysAndPictures) {
    const Json dump = dumpOfKind("M");
    // 1 March 2006 was a Wednesday: column 3.
    EXPECT_EQ(findCell(dump, 0, 0), cell(0, 0, "Marzo", "#000080", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 1, 0), cell(1, 0, "2006", "#000080", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 0, 6), cell(0, 6, "S", "#ff0000", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 1, 2), std::nullopt);
    EXPECT_EQ(findCell(dump, 1, 3), cell(1, 3, "1", "#000000", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 1, 33), cell(1, 33, "31", "#000000", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 2, 0), cell(2, 0, "Rossi Mario", "#000000", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 2, 17), cell(2, 17, "", "#000000", "#ffffd7", 6));
    EXPECT_EQ(findCell(dump, 3, 17), cell(3, 17, "", "#000000", "#ffffd7", 11));
    EXPECT_EQ(findCell(dump, 4, 17), std::nullopt);
    EXPECT_EQ(findCell(dump, 5, 0), cell(5, 0, "*NON ASSEGNATE*", "#000000", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 5, 17), cell(5, 17, "", "#000000", "#ffffd7", 9));
    EXPECT_EQ(findCell(dump, 2, 33), std::nullopt) << "concluded entries alone mark no day";
}

TEST(MonthlyDump, ListsCellsRowByRow) {
    const Json dump = dumpOfKind("M");
    std::vector<std::pair<int, int>> places;
    for (const Json& each : dump.at("griglia").at("celle")) {
        places.emplace_back(each.at("r"), each.at("c"));
    }
    EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
    EXPECT_EQ(places.size(), 1u + 37 + 1 + 31 + 4 + 3); // corner, letters, year, days, names, pictures
}

TEST(MonthlyDump, TotalsHaveOneRowPerRecordAndOneMore) {
    const Json totals = dumpOfKind("M").at("totali");
    ASSERT_EQ(totals.size(), 6u);
    EXPECT_EQ(totals.at(0), Json({2, 0, 0, 1, 1, 0, 0}));
    EXPECT_EQ(totals.at(1), Json({0, 3, 0, 0, 0, 1, 0}));
    EXPECT_EQ(totals.at(2), Json({0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(totals.at(3), Json({0, 0, 4, 0, 0, 0, 0}));
    EXPECT_EQ(totals.at(5), Json({0, 0, 0, 0, 0, 0, 0}));
}

TEST(MonthlyDump, ModeNOpensWithoutDetails) {
    SmallOffice office;
    office.richiesta.Windowcaption.assign("N");
    const Json dump = office.dump();
    EXPECT_EQ(findCell(dump, 2, 17), cell(2, 17, "", "#000000", "#ffffd7", 16));
    EXPECT_FALSE(isEnabled(dump, "dettno"));
    EXPECT_FALSE(isVisible(dump, "dettno"));
    EXPECT_TRUE(isEnabled(dump, "dettsi"));
    EXPECT_TRUE(isVisible(dump, "dettsi"));
}

TEST(MonthlyDump, ButtonsHaveTheirPlacesAndKeys) {
    const Json expected = Json::array({
        {{"indice", 2}, {"chiave", "exit"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 4}, {"chiave", "coll"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 6}, {"chiave", "filtri"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 8}, {"chiave", "agenda"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 10}, {"chiave", "consult"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 11}, {"chiave", "insimp"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 13}, {"chiave", "dettno"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 14}, {"chiave", "dettsi"}, {"abilitato", false}, {"visibile", false}},
        {{"indice", 15}, {"chiave", "grafici"}, {"abilitato", true}, {"visibile", true}},
        {{"indice", 17}, {"chiave", "info"}, {"abilitato", true}, {"visibile", true}},
    });
    EXPECT_EQ(dumpOfKind("M").at("pulsanti").dump(), expected.dump());
}

TEST(MonthlyDump, RequestFlagsDisableAgendaAndCharts) {
    SmallOffice office;
    office.richiesta.tipocall.assign("A");
    office.richiesta.planrichiesto.assign("S");
    const Json dump = office.dump();
    EXPECT_FALSE(isEnabled(dump, "agenda"));
    EXPECT_FALSE(isEnabled(dump, "grafici"));
    EXPECT_TRUE(isVisible(dump, "agenda"));
}

TEST(DailyDump, ShowsPeriodAndQuarters) {
    const Json dump = dumpOfKind("G");
    EXPECT_EQ(dump.at("finestra"), Json({{"didascalia", "Planner Giornaliero"},
                                         {"titolo", "Dal 1 Marzo 2006 al 30 Giugno 2006"}}));
    EXPECT_EQ(dump.at("griglia").at("nome"), "flxg");
    EXPECT_EQ(dump.at("griglia").at("righe"), 3 + 1 + 10);
    EXPECT_EQ(dump.at("griglia").at("colonne"), 97);
    EXPECT_EQ(dump.at("griglia").at("righeFisse"), 1);
    EXPECT_EQ(findCell(dump, 0, 0), cell(0, 0, "15/03/2006", "#000080", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 0, 1), cell(0, 1, "0", "#000080", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 0, 96), cell(0, 96, "45", "#000080", "#f0f0f0", 0));
}

TEST(DailyDump, AppointmentsCoverTheirQuarters) {
    const Json dump = dumpOfKind("G");
    // Half past nine for an hour and a half: columns 39 to 44.
    EXPECT_EQ(findCell(dump, 1, 38), std::nullopt);
    EXPECT_EQ(findCell(dump, 1, 39), cell(1, 39, "", "#000000", "#b0d0ff", 6));
    EXPECT_EQ(findCell(dump, 1, 44), cell(1, 44, "", "#000000", "#b0d0ff", 0));
    EXPECT_EQ(findCell(dump, 1, 45), std::nullopt);
    EXPECT_EQ(findCell(dump, 2, 0), cell(2, 0, "Bianchi Lucia", "#000000", "#f0f0f0", 11));
    EXPECT_EQ(findCell(dump, 4, 96), cell(4, 96, "", "#000000", "#b0d0ff", 9));
    EXPECT_EQ(dump.at("totali").at(0), Json({2, 0, 0, 1, 0, 0, 0})) << "the shown day only";
}

TEST(YearlyDump, MarksTheDaysOfTheYearlyArchive) {
    const Json dump = dumpOfKind("A");
    EXPECT_EQ(dump.at("finestra"),
              Json({{"didascalia", "Planner Annuale"}, {"titolo", "Anno 2006 Impegni di: Bianchi Lucia"}}));
    EXPECT_EQ(dump.at("calendario"), "2006-03-15");
    EXPECT_EQ(dump.at("griglia").at("nome"), "flxa");
    EXPECT_EQ(dump.at("griglia").at("righe"), 13);
    EXPECT_EQ(dump.at("griglia").at("righeFisse"), 1);
    EXPECT_EQ(findCell(dump, 0, 0), cell(0, 0, "2006", "#000080", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 3, 0), cell(3, 0, "Marzo", "#000000", "#f0f0f0", 0));
    EXPECT_EQ(findCell(dump, 3, 17), cell(3, 17, "15", "#ffffff", "#000080", 0));
    EXPECT_EQ(findCell(dump, 3, 18), cell(3, 18, "16", "#000000", "#e0e0e0", 0));
    EXPECT_EQ(findCell(dump, 1, 7), cell(1, 7, "1", "#ff0000", "#e0e0e0", 0));
}

TEST(YearlyDump, ListsMarkedCellsWithoutADay) {
    SmallOffice office;
    office.richiesta = request("A");
    office.mesi.at(1).segni.at(0).assign("*"); // February 2006 began in column 3
    const Json dump = office.dump();
    EXPECT_EQ(findCell(dump, 2, 1), cell(2, 1, "", "#ffffff", "#000080", 0));
    EXPECT_EQ(findCell(dump, 2, 2), std::nullopt);
}

TEST(YearlyDump, DisablesDetailAndStaffButtons) {
    const Json dump = dumpOfKind("A");
    EXPECT_FALSE(isEnabled(dump, "dettno"));
    EXPECT_FALSE(isEnabled(dump, "dettsi"));
    EXPECT_FALSE(isEnabled(dump, "coll"));
    EXPECT_TRUE(isEnabled(dump, "grafici"));
}

TEST(YearlyDump, ModeNLeavesTheNameOut) {
    SmallOffice office;
    office.richiesta = request("A");
    office.richiesta.Windowcaption.assign("N");
    EXPECT_EQ(office.dump().at("finestra").at("titolo"), "Anno 2006");
}

TEST(UnknownKindDump, HasNoGridAndSaysWhy) {
    const Json dump = dumpOfKind("X");
    EXPECT_TRUE(dump.at("griglia").is_null());
    EXPECT_EQ(dump.at("finestra"), Json({{"didascalia", "Planner grafico"}, {"titolo", ""}}));
    EXPECT_EQ(dump.at("calendario"), "2006-03-15");
    EXPECT_EQ(dump.at("collaboratori").size(), 3u);
    EXPECT_EQ(dump.at("messaggi").dump(),
              Json::array({{{"icona", "critica"},
                            {"titolo", "Planner"},
                            {"testo", "Richiesta non valida: il tipo di planner \"X\" non è M, G o A."}}})
                  .dump());
}

} // namespace planner::test
