// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "planner_host/host_options.h"

#include <span>
#include <string>
#include <string_view>

namespace planner {

/// One option of the command line.
struct OpzioneRiga {
    std::string_view gruppo; // heading in the help
    std::string_view nome;   // without the leading "--"
    std::string_view valore; // what the value is called in the help; empty for an option without value
    std::string_view aiuto;  // Italian, UTF-8; "\n" starts a further line
    /// Stores the value, in UTF-8. Throws HostError when it does not fit.
    void (*imposta)(OpzioniHost& opzioni, std::string_view valore);
};

/// Every option, in the order of the help.
std::span<const OpzioneRiga> tabellaOpzioni();

/// The option with this name; null when there is none.
const OpzioneRiga* trovaOpzione(std::string_view nome);

/// The text that --help prints.
std::string testoAiuto();

} // namespace planner
