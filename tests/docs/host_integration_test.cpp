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

std::string document(const std::string& name) {
    std::ifstream file(PLANNER_DOCS "/" + name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string hostIntegration() {
    return document("host-integration.md");
}

/// What follows the two lines on the licence.
std::string withoutLicence(const std::string& source) {
    return source.substr(source.find('\n', source.find("SPDX-License-Identifier")) + 1);
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

TEST(HostIntegrationTest, TheFirstHostsAreTheFilesThatTheTestsRun) {
    const std::string text = hostIntegration();
    for (const auto& [language, file] :
         {std::pair("c", "hosts/first_host.c"), std::pair("python", "hosts/first_host.py"),
          std::pair("sh", "hosts/first_host.sh")}) {
        const std::string source = withoutLicence(document(file));
        EXPECT_GT(source.size(), 300u) << file;
        EXPECT_NE(text.find("```" + std::string(language) + "\n" + source + "```"), std::string::npos)
            << file;
    }
}

} // namespace
} // namespace planner
