// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/fakes.h"

namespace planner::test {

namespace {

void runNext(std::deque<Action>& actions, const char* whoWaits) {
    if (actions.empty()) {
        throw ScriptEnded(whoWaits);
    }
    const Action action = actions.front();
    actions.pop_front();
    action();
}

} // namespace

void RecordingMessages::show(const Message& message) {
    shown.push_back(message);
    m_journal.push_back("message");
}

bool RecordingMessages::askToRetry(const Message& message) {
    show(message);
    if (retries.empty()) {
        return false;
    }
    runNext(retries, "");
    return true;
}

void FakeWindow::load() {
    m_journal.push_back(m_loaded ? "load again" : "load");
    m_loaded = true;
}

void FakeWindow::unload() {
    m_journal.push_back("unload");
    m_loaded = false;
}

void ScriptedPump::waitAndProcess() {
    m_journal.push_back("wait for the user");
    runNext(actions, "the planner waits for a user who does nothing more");
}

void ScriptedPump::processFor(std::chrono::milliseconds time) {
    pauses.push_back(time);
    if (onPause) {
        onPause();
    }
}

EsitoEvento RecordingIpc::note(const std::string& call, const std::string& nome) {
    m_journal.push_back(call + " [" + nome + "]");
    auto& waiting = troubles[call];
    if (waiting.empty()) {
        return {};
    }
    const GuaioEvento trouble = waiting.front();
    waiting.pop_front();
    return trouble;
}

EsitoEvento RecordingIpc::TvIpcWaitEvento(const std::string& nome) {
    EsitoEvento outcome = note("wait", nome);
    if (!outcome) {
        runNext(hostActions, "the planner waits for a host that does nothing more");
    }
    return outcome;
}

bool RecordingIpc::interrompiAttesa(const std::string& nome) {
    note("remove", nome);
    return signalledBeforeRemoval;
}

void FakeMotore::WPlanner(std::string& tipoplanner, const std::string& startdate, const std::string& enddate,
                          const std::string& PathArchivi, const std::string& tipocall, std::string& collab,
                          std::string& valret, std::string& Windowcaption, std::string& planrichiesto) {
    m_journal.push_back("WPlanner");
    WPlannerCall call{tipoplanner, startdate, enddate,       PathArchivi,  tipocall,
                      collab,      valret,    Windowcaption, planrichiesto};
    m_serve(call);
    tipoplanner = call.tipoplanner;
    collab = call.collab;
    valret = call.valret;
    Windowcaption = call.Windowcaption;
    planrichiesto = call.planrichiesto;
}

void FakeMotore::chiusura(std::string& collab, std::string& valret) const {
    collab = "BI";
    valret = "20060321BIE";
}

std::optional<std::string> FakeVistaPlfcollab::chiediTesto(std::string_view titolo,
                                                           const std::string& iniziale) {
    m_journal.push_back("ask [" + std::string(titolo) + "]");
    offerti.push_back(iniziale);
    return risposta;
}

std::string PlainCollation::folded(std::string_view text) const {
    std::string lower(text);
    for (char& c : lower) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return lower;
}

void FakeVista::disponi(const std::vector<ControlloProgetto>& controlli, const Scala& scala) {
    m_journal.push_back("lay out");
    placed = controlli;
    placedScale = scala;
}

} // namespace planner::test
