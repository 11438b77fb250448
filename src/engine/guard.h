// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/runtime_errors.h"
#include "platform/ports/message_boxes.h"

namespace planner {

/// Runs a command of the user or the host; a run-time error ends the command and is said in a message box,
/// and the planner goes on. False when the command failed.
template <typename Command>
bool runCommand(MessageBoxes& messaggi, Command command) {
    try {
        command();
        return true;
    } catch (const RuntimeError& error) {
        messaggi.critical("Operazione non riuscita: " + std::string(error.what()) + ".");
        return false;
    }
}

} // namespace planner
