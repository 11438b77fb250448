// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/message_boxes.h"

namespace planner {

/// Message boxes on the screen, over the active window if there is one.
class QtMessageBoxes : public MessageBoxes {
public:
    void show(const Message& message) override;
    bool askToRetry(const Message& message) override;
};

} // namespace planner
