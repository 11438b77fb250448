// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/planner_process.h"

#include "planner_host/errors.h"
#include "platform/system/paths.h"

#include <array>
#include <system_error>

namespace planner {

namespace {

constexpr std::chrono::milliseconds TempoPerFinire{5000};

std::string causeText(const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory) {
        return "il file non c'è";
    }
    return error == std::errc::permission_denied ? "il file non si può eseguire" : error.message();
}

ChildProcess start(const std::filesystem::path& programma, const std::vector<std::string>& argomenti) {
    try {
        return {programma, argomenti};
    } catch (const std::system_error& error) {
        throw HostError(CodiceUscita::PlannerFallito, "impossibile avviare il planner " + textOf(programma) +
                                                          ": " + causeText(error.code()));
    }
}

} // namespace

PlannerProcess::PlannerProcess(const std::filesystem::path& programma,
                               const std::vector<std::string>& argomenti)
    : m_process(start(programma, argomenti)) {}

PlannerProcess::~PlannerProcess() {
    terminate();
}

bool PlannerProcess::waitForEnd(std::chrono::milliseconds limit) {
    waitForFirst(std::array{m_process.waitable()}, limit);
    return m_process.end().has_value();
}

void PlannerProcess::terminate() {
    if (waitForEnd(std::chrono::milliseconds{0})) {
        return;
    }
    if (!m_process.askToEnd() || !waitForEnd(TempoPerFinire)) {
        m_process.kill();
        waitForEnd(TempoPerFinire);
    }
}

bool PlannerProcess::endedWell() {
    const auto& end = m_process.end();
    return end && end->number == 0 && !end->signalled;
}

std::string PlannerProcess::descriviFine() {
    const ProcessEnd end = m_process.end().value_or(ProcessEnd{0, false});
    return (end.signalled ? "chiuso dal segnale " : "codice d'uscita ") + std::to_string(end.number);
}

} // namespace planner
