// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/host_fixture.h"

namespace planner::test {

mtavtrmpl HostFixture::makeLink(const std::string& commandLine, const mtavtrmpl::Porte& porte) {
    const auto answer = [this](WPlannerCall& call) {
        calls.push_back(call);
        if (serve) {
            serve(call);
        }
        if (!answers.empty()) {
            call.valret = answers.front();
            answers.pop_front();
        }
    };
    return {parseCommandLine(commandLine), porte,
            [this, answer] { return std::make_unique<FakeMotore>(journal, answer); }};
}

std::vector<std::string> HostFixture::messageTexts() const {
    std::vector<std::string> texts;
    for (const Message& message : messaggi.shown) {
        EXPECT_EQ(message.icon, MessageIcon::Critical);
        EXPECT_EQ(message.title, "Planner");
        texts.push_back(message.text);
    }
    return texts;
}

} // namespace planner::test
