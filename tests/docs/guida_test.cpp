// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/design.h"
#include "forms/plcal/gesti.h"
#include "forms/plcal/salti.h"
#include "forms/plfcollab/commands.h"
#include "forms/plfgraf/plfgraf.h"
#include "forms/tasti.h"
#include "session/toolbar.h"
#include "support/compiti.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace planner {
namespace {

std::string guida() {
    std::ifstream file(PLANNER_DOCS "/guida.md");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The keys as an Italian keyboard names them.
std::string italianKeys(std::string keys) {
    for (const auto& [english, italian] : NomiTasti) {
        const std::size_t at = keys.find(english);
        if (at != std::string::npos) {
            keys.replace(at, english.size(), italian);
        }
    }
    return keys;
}

std::vector<std::string> each(std::string_view keys) {
    std::istringstream list{std::string(keys)};
    std::vector<std::string> all;
    for (std::string one; std::getline(list >> std::ws, one, ';');) {
        all.push_back(italianKeys(one));
    }
    return all;
}

/// The table row of a command holds its caption, and each of its keys in the second column.
void expectDocumented(std::string_view caption, std::string_view keys) {
    std::istringstream lines(guida());
    std::string line;
    while (std::getline(lines, line)) {
        const std::size_t second = line.find('|', 1);
        if (line.starts_with("| ") && line.substr(0, second).find(caption) != std::string::npos) {
            for (const std::string& one : each(keys)) {
                EXPECT_NE(line.find(one, second), std::string::npos) << one << ": " << line;
            }
            return;
        }
    }
    ADD_FAILURE() << caption;
}

TEST(GuidaTest, EveryToolbarCommandHasItsRowAndKeys) {
    for (const DescrizionePulsante& button : PulsantiToolbar) {
        expectDocumented(button.didascalia, button.scorciatoia);
    }
}

TEST(GuidaTest, EveryCommandOfTheGridsMenuHasItsRowAndKeys) {
    for (const DescrizioneComandoGriglia& command : ComandiGriglia) {
        expectDocumented(command.didascalia, command.scorciatoia);
    }
}

TEST(GuidaTest, EveryPeriodKeyHasItsRowAndKeys) {
    for (const TastoPeriodo& key : TastiPeriodo) {
        expectDocumented(key.didascalia, key.scorciatoia);
    }
}

TEST(GuidaTest, EveryJumpHasItsRowAndKeys) {
    for (const Salto& jump : Salti) {
        expectDocumented(jump.didascalia, jump.scorciatoia);
    }
}

TEST(GuidaTest, EveryCommandOfTheStaffListHasItsRowAndKeys) {
    for (const DescrizioneComandoCollab& command : ComandiCollab) {
        expectDocumented(command.didascalia, command.scorciatoia);
    }
}

TEST(GuidaTest, EveryCommandOfTheChartsHasItsRowAndKeys) {
    for (const DescrizioneComandoGrafico& command : ComandiGrafico) {
        expectDocumented(command.didascalia, command.scorciatoia);
    }
}

TEST(GuidaTest, EveryKindOfChartIsNamed) {
    for (const std::string_view option : OpzioniTipoGrafico) {
        EXPECT_NE(guida().find("«" + std::string(option) + "»"), std::string::npos) << option;
    }
}

std::string rowOf(const EffettoGesto& effect) {
    constexpr std::array luoghi{"casella di un giorno", "casella senza giorno", "nome", "riga senza nome"};
    constexpr std::array cursori{"va alla casella", "va alla riga del nome"};
    constexpr std::array scelte{"sceglie e mostra i totali", "resta, i totali spariscono",
                                "mostra i totali del giorno"};
    const std::string vista = effect.tipo == TipoPlanner::Mensile       ? "mensile"
                              : effect.tipo == TipoPlanner::Giornaliero ? "giornaliero"
                                                                        : "annuale";
    return "| " + vista + " | " + luoghi.at(static_cast<std::size_t>(effect.luogo)) + " | " +
           (effect.giorno ? "diventa quello della casella" : "resta") + " | " +
           cursori.at(static_cast<std::size_t>(effect.cursore)) + " | " +
           scelte.at(static_cast<std::size_t>(effect.scelta)) + " |\n";
}

TEST(GuidaTest, SaysWhatEachGestureMoves) {
    for (const EffettoGesto& effect : EffettiGesti) {
        EXPECT_NE(guida().find(rowOf(effect)), std::string::npos) << rowOf(effect);
    }
}

TEST(GuidaTest, NamesEveryGestureAndWhatFollowsIt) {
    for (const DescrizioneMezzo& mezzo : Mezzi) {
        const std::string after = mezzo.menu ? "si apre il menu |" : mezzo.consulta ? "consulta |" : "|";
        const std::string row = "| " + std::string(mezzo.nome) + " | " + after + "\n";
        EXPECT_NE(guida().find(row), std::string::npos) << row;
    }
}

std::string nameOf(const test::Battuta& battuta) {
    const std::string name(battuta.tasto);
    return battuta.testo.empty() ? italianKeys(name) : name;
}

/// "| task | its keys | their number | after which one it is heard that it is done |".
std::string rowOf(const test::Compito& compito) {
    std::string keys;
    std::string heard;
    for (const test::Battuta& battuta : compito.battute()) {
        keys += (keys.empty() ? "" : ", ") + nameOf(battuta);
        const auto said = battuta.dette();
        if (std::find(said.begin(), said.end(), compito.fatto) != said.end()) {
            heard = nameOf(battuta) + ": «" + std::string(compito.fatto) + "»";
        }
    }
    return "| " + std::string(compito.nome) + " | " + keys + " | " + std::to_string(compito.quante()) +
           " | " + heard + " |\n";
}

TEST(GuidaTest, SaysHowTheTasksOfTheDayAreDoneByKeysAndByEarAlone) {
    for (const test::Compito& compito : test::Compiti) {
        EXPECT_LE(compito.quante(), test::MassimoBattute) << compito.nome;
        EXPECT_NE(guida().find(rowOf(compito)), std::string::npos) << rowOf(compito);
    }
}

TEST(GuidaTest, NamesTheKeysOfEveryPeriodButton) {
    for (const PulsantePeriodo& button : PulsantiPeriodo) {
        for (const std::string& one : each(button.scorciatoia)) {
            EXPECT_NE(guida().find(one), std::string::npos) << one;
        }
    }
}

} // namespace
} // namespace planner
