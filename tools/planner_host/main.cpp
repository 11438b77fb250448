// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/check/check_folder.h"
#include "planner_host/errors.h"
#include "planner_host/host.h"
#include "planner_host/option_table.h"
#include "platform/system/system_clock.h"
#include "platform/system/system_file_system.h"
#include "platform/system/this_process.h"

#include <exception>
#include <iostream>

namespace {

/// What the surroundings lack, for a person who wonders why no window has come; empty when nothing.
const char* avvisoSchermo() {
    return planner::screenIsNamed() ? ""
                                    : "Manca lo schermo: né DISPLAY né WAYLAND_DISPLAY sono impostate.\n";
}

/// Says what is wrong in a host's files; the exit code.
int esitoControllo(const planner::OpzioniHost& opzioni) {
    const planner::Rilievi rilievi = controllaCartella(planner::SystemFileSystem(), opzioni.daControllare,
                                                       opzioni.transito, planner::SystemClock().today());
    std::cout << rilievi.testo() << (rilievi.empty() ? "non c'è nulla di sbagliato\n" : "");
    return static_cast<int>(rilievi.empty() ? planner::CodiceUscita::Riuscito
                                            : planner::CodiceUscita::ErroreFile);
}

} // namespace

int main(int argc, char** argv) {
    using namespace planner;
    try {
        keepStreamsPlain();
        const std::vector<std::string> parole = programArguments(argc, argv);
        const std::vector<std::string_view> argomenti(parole.begin(), parole.end());
        const OpzioniHost opzioni = leggiOpzioni(argomenti, SystemClock().today());
        if (opzioni.aiuto) {
            std::cout << testoAiuto();
            return 0;
        }
        if (!opzioni.daControllare.empty()) {
            return esitoControllo(opzioni);
        }
        const Interruzioni interruzioni;
        Host(opzioni, interruzioni, std::cout).esegui();
        return 0;
    } catch (const HostError& error) {
        std::cerr << "planner-host: " << error.what() << "\n";
        if (error.exitCode() == static_cast<int>(CodiceUscita::UsoErrato)) {
            std::cerr << "Le opzioni: planner-host --help\n";
        }
        if (error.exitCode() == static_cast<int>(CodiceUscita::PlannerFallito)) {
            std::cerr << avvisoSchermo();
        }
        return error.exitCode();
    } catch (const std::exception& error) {
        std::cerr << "planner-host: errore imprevisto: " << error.what() << "\n";
        return static_cast<int>(CodiceUscita::ErroreFile);
    }
}
