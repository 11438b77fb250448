// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/errors.h"
#include "planner_host/host_options.h"
#include "planner_host/option_table.h"

#include <array>
#include <gmock/gmock.h>
#include <vector>

namespace planner::toolstest {

using testing::HasSubstr;

namespace {

constexpr Data Oggi{std::chrono::year{2026}, std::chrono::month{4}, std::chrono::day{9}};

OpzioniHost parse(const std::vector<std::string_view>& argomenti) {
    return leggiOpzioni(argomenti, Oggi);
}

/// The message of the refusal; empty when the arguments were taken.
std::string refusal(const std::vector<std::string_view>& argomenti) {
    try {
        parse(argomenti);
    } catch (const HostError& error) {
        EXPECT_EQ(error.exitCode(), 1);
        return error.what();
    }
    return {};
}

} // namespace

TEST(HostOptions, DefaultsShowTheMonthOfToday) {
    const OpzioniHost opzioni = parse({});
    EXPECT_EQ(opzioni.tipo, 'M');
    EXPECT_EQ(opzioni.modo, Modo::Evento);
    EXPECT_EQ(opzioni.inizio, "20260101");
    EXPECT_EQ(opzioni.fine, "20261231");
    EXPECT_EQ(opzioni.giorno, "20260409");
    EXPECT_EQ(opzioni.opzioniCampione.anno, 2026);
    EXPECT_EQ(opzioni.opzioniCampione.collaboratori, 12);
    EXPECT_EQ(opzioni.transito, "transito.dat");
    EXPECT_EQ(opzioni.flag, '1');
    EXPECT_EQ(opzioni.risposte, 0);
}

TEST(HostOptions, AnotherYearIsShownInMarch) {
    const OpzioniHost opzioni = parse({"--anno", "2006"});
    EXPECT_EQ(opzioni.inizio, "20060101");
    EXPECT_EQ(opzioni.fine, "20061231");
    EXPECT_EQ(opzioni.giorno, "20060315");
}

TEST(HostOptions, TheYearFollowsTheDatesThatAreGiven) {
    EXPECT_EQ(parse({"--inizio", "20050601"}).opzioniCampione.anno, 2005);
    EXPECT_EQ(parse({"--inizio", "20050601"}).fine, "20051231");
    EXPECT_EQ(parse({"--giorno", "20050601"}).inizio, "20050101");
    EXPECT_EQ(parse({"--inizio", "20050601", "--anno", "2006"}).opzioniCampione.anno, 2006);
    EXPECT_EQ(parse({"--inizio", "00000000"}).opzioniCampione.anno, 2026);
}

TEST(HostOptions, TheDefaultDayLiesInThePeriod) {
    EXPECT_EQ(parse({"--inizio", "20260601", "--fine", "20260930"}).giorno, "20260601");
    EXPECT_EQ(parse({"--inizio", "20260101", "--fine", "20260331"}).giorno, "20260101");
}

TEST(HostOptions, ValuesMayFollowAnEqualsSign) {
    EXPECT_EQ(parse({"--tipo=G"}).tipo, 'G');
    EXPECT_EQ(parse({"--windowcaption=a=b"}).windowcaption, "a=b");
    EXPECT_EQ(parse({"--collab="}).collab, "");
}

TEST(HostOptions, TextsBecomeWindows1252) {
    const OpzioniHost opzioni = parse({"--riservato2", "perché € 5", "--windowcaption", "àèìòù"});
    EXPECT_EQ(opzioni.riservato2, "perch\xE9 \x80 5");
    EXPECT_EQ(opzioni.windowcaption, "\xE0\xE8\xEC\xF2\xF9");
}

TEST(HostOptions, AreStoredOneByOne) {
    const OpzioniHost opzioni = parse({"--giro",    "--modo",          "polling",    "--evento",
                                       "EV",        "--tipocall",      "A",          "--planrichiesto",
                                       "S",         "--collab",        "RB",         "--valret",
                                       "00000000",  "--collaboratori", "60",         "--righe",
                                       "5000",      "--seme",          "4294967295", "--archivio",
                                       "dati",      "--campione",      "--conserva", "--flag",
                                       "0",         "--mostra-byte",   "--risposte", "3",
                                       "--planner", "./finto",         "--transito", "t.dat"});
    EXPECT_TRUE(opzioni.giro && opzioni.campione && opzioni.conserva && opzioni.mostraByte);
    EXPECT_EQ(opzioni.modo, Modo::Polling);
    EXPECT_EQ(opzioni.evento, "EV");
    EXPECT_EQ(opzioni.tipocall, 'A');
    EXPECT_EQ(opzioni.planrichiesto, 'S');
    EXPECT_EQ(opzioni.collab, "RB");
    EXPECT_EQ(opzioni.valret, "00000000");
    EXPECT_EQ(opzioni.opzioniCampione.collaboratori, 60);
    EXPECT_EQ(opzioni.opzioniCampione.righe, 5000);
    EXPECT_EQ(opzioni.opzioniCampione.seme, 4'294'967'295u);
    EXPECT_EQ(opzioni.archivio, "dati");
    EXPECT_EQ(opzioni.flag, '0');
    EXPECT_EQ(opzioni.risposte, 3);
    EXPECT_EQ(opzioni.planner, "./finto");
    EXPECT_EQ(opzioni.transito, "t.dat");
}

TEST(HostOptions, ImpossibleDatesAreForThePlannerToJudge) {
    EXPECT_EQ(parse({"--fine", "20060231"}).fine, "20060231");
    EXPECT_EQ(parse({"--giorno", "00000000"}).giorno, "00000000");
}

TEST(HostOptions, WrongValuesAreRefusedByName) {
    struct Wrong {
        std::string_view option;
        std::string_view value;
    };
    constexpr std::array wrong{
        Wrong{"--tipo", "m"},
        Wrong{"--tipo", "MG"},
        Wrong{"--inizio", "2006"},
        Wrong{"--fine", "2006-1-1"},
        Wrong{"--giorno", "2006031x"},
        Wrong{"--collab", "RBX"},
        Wrong{"--tipocall", ""},
        Wrong{"--planrichiesto", "SS"},
        Wrong{"--valret", "20060315RBDD"},
        Wrong{"--riservato1", "123456789"},
        Wrong{"--riservato2", "日"},
        Wrong{"--windowcaption", "1234567890123456789012"},
        Wrong{"--modo", "tcp"},
        Wrong{"--evento", "due nomi"},
        Wrong{"--evento", "NoEvent"},
        Wrong{"--evento", ""},
        Wrong{"--anno", "1752"},
        Wrong{"--anno", "10000"},
        Wrong{"--anno", "06x"},
        Wrong{"--collaboratori", "0"},
        Wrong{"--righe", "32768"},
        Wrong{"--seme", "-1"},
        Wrong{"--risposte", "0"},
        Wrong{"--flag", "10"},
        Wrong{"--transito", "a/b"},
        Wrong{"--transito", ""},
    };
    for (const Wrong& pair : wrong) {
        EXPECT_THAT(refusal({pair.option, pair.value}), HasSubstr(std::string(pair.option) + ": "))
            << pair.value;
    }
}

TEST(HostOptions, UnknownAndIncompleteArgumentsAreRefused) {
    EXPECT_THAT(refusal({"--boh"}), HasSubstr("opzione sconosciuta: --boh"));
    EXPECT_THAT(refusal({"archivio"}), HasSubstr("opzione sconosciuta: archivio"));
    EXPECT_THAT(refusal({"-tipo", "M"}), HasSubstr("opzione sconosciuta: -tipo"));
    EXPECT_THAT(refusal({"--tipo"}), HasSubstr("--tipo vuole un valore: M|G|A"));
    EXPECT_THAT(refusal({"--giro=1"}), HasSubstr("--giro non vuole un valore"));
    EXPECT_THAT(refusal({"--solo-archivio"}), HasSubstr("vuole anche --archivio"));
}

TEST(HostHelp, ListsEveryOptionWithItsValue) {
    const std::string help = testoAiuto();
    for (const OpzioneRiga& opzione : tabellaOpzioni()) {
        const std::string head = "\n  --" + std::string(opzione.nome) +
                                 (opzione.valore.empty() ? "" : " " + std::string(opzione.valore)) + " ";
        EXPECT_THAT(help, HasSubstr(head));
    }
    EXPECT_GE(tabellaOpzioni().size(), 28u);
}

TEST(HostHelp, FitsAHundredColumns) {
    const std::string help = testoAiuto();
    for (std::size_t begin = 0; begin < help.size();) {
        const std::size_t end = help.find('\n', begin);
        EXPECT_LE(end - begin, 104u) << help.substr(begin, end - begin); // a few letters are two bytes
        begin = end + 1;
    }
}

} // namespace planner::toolstest
