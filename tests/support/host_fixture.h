// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/event_conversation.h"
#include "support/builders.h"
#include "support/fakes.h"
#include "support/memory_file_system.h"

#include <deque>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace planner::test {

/// The host link with everything around it faked: files in memory, and an engine whose user gives the next
/// of `answers` at once.
class HostFixture : public testing::Test {
protected:
    static constexpr const char* Transito = "C:\\arch\\trans.dat";

    mtavtrmpl makeLink(const std::string& commandLine) { return makeLink(commandLine, {files, messaggi}); }
    mtavtrmpl makeLink(const std::string& commandLine, const mtavtrmpl::Porte& porte);
    EventConversation makeConversation(mtavtrmpl& link) { return {link, ipc, eventi}; }
    void putRequest(const TransitRequest& request) { files.put(Transito, bytesOf(request)); }
    TransitRequest answerInFile() const { return recordOf<TransitRequest>(files.get(Transito)); }
    /// The texts of the message boxes; each must be critical and titled as all are.
    std::vector<std::string> messageTexts() const;

    Journal journal;
    MemoryFileSystem files{journal};
    RecordingMessages messaggi{journal};
    ScriptedPump eventi{journal};
    RecordingIpc ipc{journal};
    RecordingTimer timer{journal};

    std::vector<WPlannerCall> calls; // as they came in
    std::deque<std::string> answers; // each becomes a returned `valret`
    FakeMotore::Serve serve;         // does more than answer, when it is set
};

} // namespace planner::test
