// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/records.h"
#include "support/builders.h"

#include <gtest/gtest.h>
#include <span>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

using Places = std::vector<std::pair<std::size_t, std::size_t>>; // offset and length of each field

Places placesOf(std::span<const Field> fields) {
    Places places;
    for (const Field& field : fields) {
        places.emplace_back(field.offset, field.length);
    }
    return places;
}

/// Bytes that tell their own place: the number of the byte, modulo 251.
std::string numberedBytes(std::size_t count) {
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes += static_cast<char>(i % 251);
    }
    return bytes;
}

TEST(RigaPlannerTest, Has89BytesIn24Fields) {
    EXPECT_EQ(sizeof(RigaPlanner), 89u);
    EXPECT_EQ(placesOf(RigaPlannerFields),
              (Places{{0, 2},  {2, 4},  {6, 2},  {8, 2},  {10, 2}, {12, 4}, {16, 2}, {18, 2},
                      {20, 2}, {22, 2}, {24, 5}, {29, 5}, {34, 5}, {39, 5}, {44, 5}, {49, 5},
                      {54, 5}, {59, 5}, {64, 5}, {69, 5}, {74, 5}, {79, 1}, {80, 7}, {87, 2}}));
}

TEST(RigaPlannerTest, EachFieldHoldsItsBytes) {
    const std::string bytes = numberedBytes(89);
    const auto riga = recordOf<RigaPlanner>(bytes);
    EXPECT_EQ(riga.codice.text(), bytes.substr(0, 2));
    EXPECT_EQ(riga.anno.text(), bytes.substr(2, 4));
    EXPECT_EQ(riga.mese.text(), bytes.substr(6, 2));
    EXPECT_EQ(riga.giorno.text(), bytes.substr(8, 2));
    EXPECT_EQ(riga.campo5.text(), bytes.substr(10, 2));
    EXPECT_EQ(riga.campo6.text(), bytes.substr(12, 4));
    EXPECT_EQ(riga.oraInizio.text(), bytes.substr(16, 2));
    EXPECT_EQ(riga.minutoInizio.text(), bytes.substr(18, 2));
    EXPECT_EQ(riga.campo9.text(), bytes.substr(20, 2));
    EXPECT_EQ(riga.campo10.text(), bytes.substr(22, 2));
    EXPECT_EQ(riga.campo22.text(), bytes.substr(79, 1));
    EXPECT_EQ(riga.durata.text(), bytes.substr(80, 7));
    EXPECT_EQ(riga.campo24.text(), bytes.substr(87, 2));
}

TEST(RigaPlannerTest, CounterNStandsFiveBytesAfterCounterNLessOne) {
    const std::string bytes = numberedBytes(89);
    const auto riga = recordOf<RigaPlanner>(bytes);
    for (std::size_t number = 1; number <= 11; ++number) {
        EXPECT_EQ(riga.contatore(number).text(), bytes.substr(24 + 5 * (number - 1), 5)) << number;
    }
    EXPECT_THROW(riga.contatore(0), std::out_of_range);
    EXPECT_THROW(riga.contatore(12), std::out_of_range);
}

TEST(MesePlannerTest, Has1900BytesIn6Fields) {
    EXPECT_EQ(sizeof(MesePlanner), 1900u);
    EXPECT_EQ(placesOf(MesePlannerFields),
              (Places{{0, 4}, {4, 2}, {6, 2}, {8, 42}, {50, 42 * 44}, {1898, 2}}));
}

TEST(MesePlannerTest, MarksAndTextsStandInCellOrder) {
    const std::string bytes = numberedBytes(1900);
    const auto mese = recordOf<MesePlanner>(bytes);
    EXPECT_EQ(mese.anno.text(), bytes.substr(0, 4));
    EXPECT_EQ(mese.mese.text(), bytes.substr(4, 2));
    EXPECT_EQ(mese.campo3.text(), bytes.substr(6, 2));
    for (std::size_t cell = 0; cell < 42; ++cell) {
        EXPECT_EQ(mese.segni.at(cell).text(), bytes.substr(8 + cell, 1)) << cell;
        EXPECT_EQ(mese.testi.at(cell).text(), bytes.substr(50 + 44 * cell, 44)) << cell;
    }
    EXPECT_EQ(mese.campo6.text(), bytes.substr(1898, 2));
}

TEST(CollaboratoreTest, Has125BytesIn9Fields) {
    EXPECT_EQ(sizeof(Collaboratore), 125u);
    EXPECT_EQ(placesOf(CollaboratoreFields),
              (Places{{0, 2}, {2, 50}, {52, 2}, {54, 2}, {56, 40}, {96, 25}, {121, 1}, {122, 1}, {123, 2}}));
}

TEST(CollaboratoreTest, EachFieldHoldsItsBytes) {
    const std::string bytes = numberedBytes(125);
    const auto c = recordOf<Collaboratore>(bytes);
    EXPECT_EQ(c.codice.text(), bytes.substr(0, 2));
    EXPECT_EQ(c.nome.text(), bytes.substr(2, 50));
    EXPECT_EQ(c.campo3.text(), bytes.substr(52, 2));
    EXPECT_EQ(c.campo4.text(), bytes.substr(54, 2));
    EXPECT_EQ(c.mansione.text(), bytes.substr(56, 40));
    EXPECT_EQ(c.campo6.text(), bytes.substr(96, 25));
    EXPECT_EQ(c.campo7.text(), bytes.substr(121, 1));
    EXPECT_EQ(c.campo8.text(), bytes.substr(122, 1));
    EXPECT_EQ(c.campo9.text(), bytes.substr(123, 2));
}

TEST(RigaGraficoTest, Has47BytesIn10Fields) {
    EXPECT_EQ(sizeof(RigaGrafico), 47u);
    EXPECT_EQ(placesOf(RigaGraficoFields),
              (Places{{0, 2}, {2, 4}, {6, 2}, {8, 2}, {10, 7}, {17, 7}, {24, 7}, {31, 7}, {38, 7}, {45, 2}}));
}

TEST(RigaGraficoTest, EachFieldHoldsItsBytes) {
    const std::string bytes = numberedBytes(47);
    const auto riga = recordOf<RigaGrafico>(bytes);
    EXPECT_EQ(riga.codice.text(), bytes.substr(0, 2));
    EXPECT_EQ(riga.anno.text(), bytes.substr(2, 4));
    EXPECT_EQ(riga.mese.text(), bytes.substr(6, 2));
    EXPECT_EQ(riga.giorno.text(), bytes.substr(8, 2));
    for (std::size_t series = 0; series < 5; ++series) {
        EXPECT_EQ(riga.ore.at(series).text(), bytes.substr(10 + 7 * series, 7)) << series;
    }
    EXPECT_EQ(riga.campo10.text(), bytes.substr(45, 2));
}

TEST(RecordsTest, UnknownBytesComeBackAsTheyWere) {
    EXPECT_EQ(bytesOf(recordOf<RigaPlanner>(numberedBytes(89))), numberedBytes(89));
    EXPECT_EQ(bytesOf(recordOf<MesePlanner>(numberedBytes(1900))), numberedBytes(1900));
    EXPECT_EQ(bytesOf(recordOf<Collaboratore>(numberedBytes(125))), numberedBytes(125));
    EXPECT_EQ(bytesOf(recordOf<RigaGrafico>(numberedBytes(47))), numberedBytes(47));
}

TEST(RecordsTest, ANewRecordIsBlank) {
    EXPECT_EQ(bytesOf(RigaPlanner{}), std::string(89, ' '));
    EXPECT_EQ(bytesOf(MesePlanner{}), std::string(1900, ' '));
    EXPECT_EQ(bytesOf(Collaboratore{}), std::string(125, ' '));
    EXPECT_EQ(bytesOf(RigaGrafico{}), std::string(47, ' '));
}

TEST(FieldsTest, AGapOrAnOverlapIsNoticed) {
    constexpr std::array whole{Field{"a", 0, 2, ""}, Field{"b", 2, 1, ""}};
    constexpr std::array gap{Field{"a", 0, 1, ""}, Field{"b", 2, 1, ""}};
    EXPECT_TRUE(fieldsCover(whole, 3));
    EXPECT_FALSE(fieldsCover(whole, 4));
    EXPECT_FALSE(fieldsCover(gap, 3));
}

} // namespace
} // namespace planner::test
