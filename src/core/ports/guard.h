// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/message_boxes.h"
#include "ports/runtime_errors.h"

namespace planner {

/// The sentence for the user on what ended a command, UTF-8.
inline std::string operazioneNonRiuscita(const std::exception& error) {
    const bool foreseen = dynamic_cast<const RuntimeError*>(&error) != nullptr;
    return (foreseen ? "Operazione non riuscita: " : "Errore imprevisto: ") + std::string(error.what()) + ".";
}

/// Runs a command of the user or the host; an error ends the command and is said in a message box, and the
/// planner goes on. False when the command failed.
template <typename Command>
bool runCommand(MessageBoxes& messaggi, Command command) {
    try {
        command();
        return true;
    } catch (const std::exception& error) {
        messaggi.critical(operazioneNonRiuscita(error));
        return false;
    }
}

} // namespace planner
