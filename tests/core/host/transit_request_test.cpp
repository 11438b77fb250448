// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/transit_request.h"
#include "support/builders.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace planner::test {
namespace {

std::string numberedBytes() {
    std::string bytes;
    for (char i = 0; i < 121; ++i) {
        bytes += i;
    }
    return bytes;
}

TEST(TransitRequestTest, Has121BytesInTenFields) {
    const std::vector<std::tuple<std::string_view, std::size_t, std::size_t>> table{
        {"riservato1", 0, 8},      {"tipoplanner", 8, 1},    {"startdate", 9, 8}, {"enddate", 17, 8},
        {"riservato2", 25, 60},    {"tipocall", 85, 1},      {"collab", 86, 2},   {"valret", 88, 11},
        {"Windowcaption", 99, 21}, {"planrichiesto", 120, 1}};
    EXPECT_EQ(sizeof(TransitRequest), 121u);
    ASSERT_EQ(TransitRequestFields.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        const Field& field = TransitRequestFields[i];
        EXPECT_EQ(std::make_tuple(field.name, field.offset, field.length), table[i]);
    }
}

TEST(TransitRequestTest, EachFieldHoldsItsBytes) {
    const std::string bytes = numberedBytes();
    const auto r = recordOf<TransitRequest>(bytes);
    EXPECT_EQ(r.riservato1.text(), bytes.substr(0, 8));
    EXPECT_EQ(r.tipoplanner.text(), bytes.substr(8, 1));
    EXPECT_EQ(r.startdate.text(), bytes.substr(9, 8));
    EXPECT_EQ(r.enddate.text(), bytes.substr(17, 8));
    EXPECT_EQ(r.riservato2.text(), bytes.substr(25, 60));
    EXPECT_EQ(r.tipocall.text(), bytes.substr(85, 1));
    EXPECT_EQ(r.collab.text(), bytes.substr(86, 2));
    EXPECT_EQ(r.valret.text(), bytes.substr(88, 11));
    EXPECT_EQ(r.Windowcaption.text(), bytes.substr(99, 21));
    EXPECT_EQ(r.planrichiesto.text(), bytes.substr(120, 1));
    EXPECT_EQ(bytesOf(r), bytes);
}

TEST(TransitRequestTest, TheActionIsTheEleventhCharacterOfTheAnswer) {
    EXPECT_EQ(recordOf<TransitRequest>(numberedBytes()).azione(), 98);
    EXPECT_EQ(TransitRequest{}.azione(), ' ');
}

} // namespace
} // namespace planner::test
