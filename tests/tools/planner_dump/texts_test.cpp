// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace planner::test {

namespace {

/// Cuts a text of 256 bytes into staff names.
std::vector<Collaboratore> peopleNamedAfterEveryByte() {
    std::vector<Collaboratore> people;
    for (int first = 0; first < 256; first += 32) {
        std::string name;
        for (int byte = first; byte < first + 32; ++byte) {
            name += static_cast<char>(byte);
        }
        people.push_back(collaboratore(std::to_string(first / 32), name, ""));
    }
    return people;
}

} // namespace

TEST(DumpTexts, MarkupStaysText) {
    SmallOffice office;
    office.collaboratori.at(0) = collaboratore("RM", "<b>Rossi</b> & \"Figli\" \\n", "<img src=x>");
    const Json dump = office.dump();
    EXPECT_EQ(dump.at("collaboratori").at(0).at("nome"), "<b>Rossi</b> & \"Figli\" \\n");
    EXPECT_EQ(dump.at("collaboratori").at(0).at("mansione"), "<img src=x>");
    EXPECT_EQ(findCell(dump, 2, 0)->at("testo"), "<b>Rossi</b> & \"Figli\" \\n");
}

TEST(DumpTexts, CodePageBytesBecomeUtf8) {
    SmallOffice office;
    office.richiesta = request("A");
    office.collaboratori.at(1) = collaboratore("BL", "Nicol\xF2 D\x92\xC0ngelo \x80", "Perch\xE9");
    const Json dump = office.dump();
    EXPECT_EQ(dump.at("collaboratori").at(1).at("nome"), "Nicolò D’Àngelo €");
    EXPECT_EQ(dump.at("collaboratori").at(1).at("mansione"), "Perché");
    EXPECT_EQ(dump.at("finestra").at("titolo"), "Anno 2006 Impegni di: Nicolò D’Àngelo €");
}

TEST(DumpTexts, EveryByteOfANameComesThroughAsOneCharacter) {
    SmallOffice office;
    office.collaboratori = peopleNamedAfterEveryByte();
    const Json dump = office.dump();
    ASSERT_EQ(dump.at("collaboratori").size(), 8u);
    EXPECT_EQ(dump.at("collaboratori").at(0).at("nome").get<std::string>().substr(0, 2),
              std::string("\0\1", 2));
    for (const Json& each : dump.at("collaboratori")) {
        const std::string name = each.at("nome");
        const auto characters =
            std::count_if(name.begin(), name.end(), [](char c) { return (c & '\xC0') != '\x80'; });
        EXPECT_EQ(characters, 32);
    }
}

TEST(DumpTexts, RequestOfForeignBytesIsStillUtf8) {
    SmallOffice office;
    office.write();
    office.writeFile("transito", std::string(sizeof(TransitRequest), '\xE0'));
    const Json dump = office.dumpAsItIs();
    EXPECT_EQ(dump.at("richiesta").at("tipoplanner"), "à");
    EXPECT_TRUE(dump.at("griglia").is_null());
}

} // namespace planner::test
