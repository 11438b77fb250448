// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/records.h"
#include "host/transit_request.h"
#include "planner_host/answer.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace planner {
namespace {

std::string hostIntegration() {
    std::ifstream file(PLANNER_DOCS "/host-integration.md");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string row(const Field& field) {
    return "| `" + std::string(field.name) + "` | " + std::to_string(field.offset) + " | " +
           std::to_string(field.length) + " | " + std::string(field.meaning) + " |\n";
}

template <typename Fields>
void expectDocumented(const Fields& fields) {
    const std::string document = hostIntegration();
    for (const Field& field : fields) {
        EXPECT_NE(document.find(row(field)), std::string::npos) << row(field);
    }
}

TEST(HostIntegrationTest, EveryFieldOfTheTransitRecordIsDocumented) {
    expectDocumented(TransitRequestFields);
}

TEST(HostIntegrationTest, EveryFieldOfTheArchiveRecordsIsDocumented) {
    expectDocumented(RigaPlannerFields);
    expectDocumented(MesePlannerFields);
    expectDocumented(CollaboratoreFields);
    expectDocumented(RigaGraficoFields);
}

TEST(HostIntegrationTest, EveryActionLetterIsDocumented) {
    const std::string document = hostIntegration();
    for (const AzioneRisposta& azione : AzioniRisposta) {
        const std::string cell =
            azione.lettera == ' ' ? "| blank |" : std::string("`") + azione.lettera + "`";
        EXPECT_NE(document.find(cell), std::string::npos) << cell;
    }
}

} // namespace
} // namespace planner
