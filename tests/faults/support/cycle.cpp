// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "faults/support/cycle.h"

#include "faults/support/requests.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <map>
#include <sstream>
#include <thread>

namespace planner::faults {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::string_view Letters = "DE";
constexpr const char* Archives[] = {"wrighipl", "wplanner", "wcollab", "wgrafici"};

constexpr int Slower = E2E_SANITIZED ? 4 : 1;
/// Every end comes by then: the planner tries an event for two seconds, at most three times in a cycle.
constexpr milliseconds Limit{Slower * 15'000};
/// How long a planner is watched that looks for its marker again and again and cannot succeed.
constexpr milliseconds Patience{Slower * 1'000};
/// A host's wait ends by itself when a planner has died whose first answer it has had.
constexpr milliseconds UntilDeathIsNoticed{Slower * 5'000};
constexpr milliseconds UntilLastAnswer{Slower * 200}; // which may stand there already
constexpr milliseconds BetweenLooks{2};

/// "12345 openat(AT_FDCWD, ..." names a call; what a call goes on with after another one does not.
std::string nameOfCall(const std::string& line) {
    std::istringstream words(line);
    std::string process;
    std::string rest;
    words >> process;
    std::getline(words >> std::ws, rest);
    const std::size_t end = rest.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_");
    return end != std::string::npos && rest[end] == '(' ? process + " " + rest.substr(0, end) : "";
}

/// Of what strace has written: numbered by name, in each thread apart, as strace itself counts.
std::vector<Chiamata> callsIn(const std::string& log) {
    std::map<std::string, int> counted;
    std::vector<Chiamata> calls;
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        if (const std::string key = nameOfCall(line); !key.empty()) {
            calls.push_back({key.substr(key.find(' ') + 1), ++counted[key]});
        }
    }
    return calls;
}

bool endedWith(const std::optional<int>& code, FineOspite expected) {
    return code == static_cast<int>(expected);
}

} // namespace

std::string nameOf(Modo modo) {
    return modo == Modo::HostWaits        ? "HostWaits"
           : modo == Modo::HostComesLater ? "HostComesLater"
                                          : "Polling";
}

std::string Guasto::text() const {
    return call.name + ":" + what + ":when=" + std::to_string(call.number) + (fromThenOn ? "+" : "");
}

Ufficio::Ufficio(Modo modo) : m_modo(modo), m_environment(e2e::plainEnvironment()) {
    std::filesystem::permissions(m_run.path(), std::filesystem::perms::owner_all);
    m_environment["XDG_RUNTIME_DIR"] = m_run.path();
    m_environment["ASAN_OPTIONS"] += ":detect_leaks=0"; // which cannot be done under an observer
    for (const char* name : Archives) {
        m_archive.write(name, name);
    }
}

std::string Ufficio::event() const {
    // No two offices share a name, wherever an event may go.
    return m_modo == Modo::Polling ? NoEvent : m_run.folder().filename().string();
}

std::vector<std::string> Ufficio::planner() const {
    return {ANSWER_WRITER_FILE, m_transit, "1", event()};
}

std::vector<std::string> Ufficio::observed(std::vector<std::string> options) const {
    std::vector<std::string> words{"strace", "-f"};
    for (const std::string& path :
         {m_transit, markerOf(m_transit), m_run.path(), m_eventFolder, m_eventFolder + "/ev-" + event()}) {
        options.insert(options.end(), {"-P", path});
    }
    words.insert(words.end(), options.begin(), options.end());
    words.insert(words.end(), {"setpriv", "--pdeathsig", "KILL", "--"}); // the planner goes with its observer
    for (const std::string& word : planner()) {
        words.push_back(word);
    }
    return words;
}

std::vector<Chiamata> Ufficio::calls() const {
    const test::TempFolder log;
    const Fine fine = meet(observed({"-o", log.path("calls")}), Limit);
    if (fine.planner != 0 || fine.host != 0) {
        throw std::runtime_error("strace must be installed, and allowed to observe");
    }
    return callsIn(log.read("calls"));
}

Fine Ufficio::cycle() const {
    return meet(planner(), Limit);
}

Fine Ufficio::cycleWith(const Guasto& guasto) const {
    const bool mayGoOn = m_modo == Modo::Polling && guasto.fromThenOn;
    return meet(
        observed({"-o", "/dev/null", "-e", "trace=" + guasto.call.name, "-e", "inject=" + guasto.text()}),
        mayGoOn ? Patience : Limit);
}

Fine Ufficio::cycleKilledAfter(std::chrono::microseconds time) const {
    return meet(planner(), Limit, time);
}

bool Ufficio::eventIsThere() const {
    return std::filesystem::exists(m_eventFolder + "/ev-" + event());
}

void Ufficio::putFirstRequest() const {
    writeRequest(m_transit, Letters.front());
    if (m_modo == Modo::Polling) {
        putMarker(m_transit);
    }
}

std::unique_ptr<e2e::Processo> Ufficio::startHost() const {
    return std::make_unique<e2e::Processo>(
        std::vector<std::string>{SWEEP_HOST_FILE, m_transit, event(), std::string(Letters)}, m_environment,
        e2e::Errors::Dropped);
}

/// Comes when the planner has made its event, or cannot any more.
std::unique_ptr<e2e::Processo> Ufficio::hostFor(e2e::Processo& planner) const {
    const auto end = Clock::now() + Limit;
    while (!eventIsThere() && !planner.endsWithin(BetweenLooks) && Clock::now() < end) {
    }
    return startHost();
}

std::unique_ptr<e2e::Processo> Ufficio::waitingHost() const {
    auto host = startHost();
    while (m_modo == Modo::HostWaits && !eventIsThere() && !host->endsWithin(BetweenLooks)) {
    }
    return host;
}

Fine Ufficio::meet(const std::vector<std::string>& words, milliseconds limit,
                   std::optional<std::chrono::microseconds> kill) const {
    putFirstRequest();
    auto host = m_modo == Modo::HostComesLater ? nullptr : waitingHost();
    e2e::Processo planner(words, m_environment, e2e::Errors::Dropped);
    if (kill) {
        std::this_thread::sleep_for(*kill);
        planner.kill();
    }
    if (!host) {
        host = hostFor(planner);
    }
    const Fine fine = endsOf(planner, *host, limit);
    planner.kill();
    planner.readToEnd(); // which is open as long as the one that was observed lives
    return fine;
}

Fine Ufficio::endsOf(e2e::Processo& planner, e2e::Processo& host, milliseconds limit) const {
    const auto end = Clock::now() + limit;
    while (!planner.endsWithin(BetweenLooks) && !host.endsWithin(milliseconds{0}) && Clock::now() < end) {
    }
    const auto hosts = host.exitCode(milliseconds{0});
    if (endedWith(hosts, FineOspite::Servito) || endedWith(hosts, FineOspite::RispostaSbagliata)) {
        planner.exitCode(limit);
    } else if (const auto code = planner.exitCode(milliseconds{0})) {
        host.exitCode(code == 0 ? limit : deathIsNoticed(code) ? UntilDeathIsNoticed : UntilLastAnswer);
    }
    return {planner.exitCode(milliseconds{0}), host.exitCode(milliseconds{0})};
}

std::string Ufficio::brokenByEnds(const Fine& fine, bool persistent) const {
    if (endedWith(fine.host, FineOspite::Servito)) {
        return fine.planner ? "" : "the planner does not end after its last answer";
    }
    if (fine.planner == 0) {
        return "the planner ends content, and the host has no answer";
    }
    // A planner that gives an answer up tells its host all the same, and says so in its exit code.
    if (endedWith(fine.host, FineOspite::RispostaSbagliata) && !fine.planner) {
        return "the host is told of what is no answer";
    }
    const bool goesOnTrying = persistent && m_modo == Modo::Polling;
    if (!fine.planner && !fine.host && !goesOnTrying) {
        return "nobody comes to an end";
    }
    return !fine.host && deathIsNoticed(fine.planner) ? "the host waits for a planner that is gone" : "";
}

/// A marker tells of no planner, and an event of none that has not made it or has removed it.
bool Ufficio::deathIsNoticed(const std::optional<int>& planner) const {
    const std::string record = test::fileBytes(m_transit);
    const char last = Letters.back();
    const bool answeredBefore =
        record == requestFor(last) || record == answerTo(last) || record == endTo(last);
    return m_modo != Modo::Polling && answeredBefore && planner == 128 + SIGKILL;
}

std::string Ufficio::brokenInFiles() const {
    const std::string record = test::fileBytes(m_transit);
    const bool whole = std::any_of(Letters.begin(), Letters.end(), [&record](char letter) {
        return record == requestFor(letter) || record == answerTo(letter) || record == endTo(letter);
    });
    for (const char* name : Archives) {
        if (test::fileBytes(m_archive.path(name)) != name) {
            return std::string(name) + " is another";
        }
    }
    return whole ? "" : "the record is neither the old nor the new one";
}

std::string Ufficio::brokenBy(const Fine& fine, bool persistent) const {
    std::string broken = brokenByEnds(fine, persistent);
    if (broken.empty()) {
        broken = brokenInFiles();
    }
    const Fine next = cycle();
    return !broken.empty()                       ? broken
           : next.planner == 0 && next.host == 0 ? ""
                                                 : "the next planner and host do not meet";
}

} // namespace planner::faults
