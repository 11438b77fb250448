// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "planner_host/conversation.h"

namespace planner {

/// Talks through a named event. The wait for it knows no time limit, so it runs in a thread of its own, and
/// the host can notice at the same time that the planner has gone.
class EventConversation : public Conversation {
public:
    EventConversation(DatiColloquio dati, const Interruzioni& interruzioni)
        : Conversation(std::move(dati), interruzioni) {}

    TransitRequest chiedi(const TransitRequest& richiesta) override;
    void congeda() override;

private:
    void announce();
    void waitForAnswer();
    [[noreturn]] void fail(const std::string& what, int error);
};

} // namespace planner
