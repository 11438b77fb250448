// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/event_pump.h"

namespace planner {

/// The toolkit's event queue.
class QtEventPump : public EventPump {
public:
    void waitAndProcess() override;
    void processFor(std::chrono::milliseconds time) override;
    void wakeUp() override;
    void flush() override;
};

} // namespace planner
