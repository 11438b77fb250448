// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
//
// A planner without a window: obeys the host's protocol in both modes and answers from a script.
//
//   FAKE_PLANNER_SCRIPT  one character per request: an action letter is answered with the incoming day and,
//                        for the letters that name a staff member, the code RB; further
//                          !  ends at once with exit code 9, without an answer
//                          e  answers "E", then ends with exit code 7
//                          x  answers eleven characters that are no answer
//                          r  answers "D" and spoils the host's own fields
//                          k  is killed, without an answer
//                          v  answers "D", removes its event, and gives no further answer
//                          w  says "waiting" and gives no answer; says "ended gently" when asked to end
//   FAKE_PLANNER_BEHIND  when set, a child plays the planner, and this process lives on when it is gone
//   FAKE_PLANNER_DIARY   a file that gets one line per request
#include "TavTermIPC.h"
#include "fake_planner_system.h"
#include "host/transit_request.h"
#include "platform/system/paths.h"
#include "platform/system/this_process.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace {

using planner::TransitRequest;
using namespace planner::toolstest;

constexpr int UsageExit = 64;
constexpr int DiesExit = 9;
constexpr int BadEndExit = 7;

struct Script {
    std::string letters;
    std::size_t next = 0;

    char take() { return next < letters.size() ? letters[next++] : 'E'; }
    char last() const { return next == 0 ? ' ' : letters[next - 1]; }
};

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string{} : std::string(value);
}

TransitRequest readRecord(const std::filesystem::path& transit) {
    TransitRequest record;
    std::ifstream(transit, std::ios::binary).read(reinterpret_cast<char*>(&record), sizeof record);
    return record;
}

void writeRecord(const std::filesystem::path& transit, const TransitRequest& record) {
    std::ofstream(transit, std::ios::binary | std::ios::in | std::ios::out)
        .write(reinterpret_cast<const char*>(&record), sizeof record);
}

/// Kind, period, incoming answer, staff code, the host's own fields, year of the yearly archive.
void writeDiary(const TransitRequest& record, const std::filesystem::path& folder) {
    std::string year(4, '-');
    std::ifstream(folder / "wplanner", std::ios::binary).read(year.data(), 4);
    std::ofstream diary(environment("FAKE_PLANNER_DIARY"), std::ios::app | std::ios::binary);
    diary << record.tipoplanner.view() << '|' << record.startdate.view() << '|' << record.enddate.view()
          << '|' << record.valret.view() << '|' << record.collab.view() << '|'
          << record.riservato1.trimmedRight() << '|' << record.riservato2.trimmedRight() << '|'
          << record.Windowcaption.trimmedRight() << '|' << year << '\n';
}

void answer(TransitRequest& record, char letter) {
    const std::string day(record.valret.view().substr(0, 8));
    const bool named = std::string_view("ACDITrv").find(letter) != std::string_view::npos;
    record.collab.assign(named ? "RB" : "");
    if (letter == 'r') {
        record.riservato1.assign("spoiled");
        letter = 'D';
    }
    if (letter == 'v') {
        letter = 'D';
    }
    record.valret.assign(
        letter == 'x' ? "no answer!?" : day + record.collab.text() + static_cast<char>(std::toupper(letter)));
}

/// Serves the request in the transit file; false when the planner has to end.
bool serve(Script& script, const std::filesystem::path& transit, int& exitCode) {
    TransitRequest record = readRecord(transit);
    writeDiary(record, transit.parent_path());
    const char letter = script.take();
    if (letter == '!') {
        std::exit(DiesExit);
    }
    if (letter == 'k') {
        dieAtOnce();
    }
    if (letter == 'w') {
        waitForEver();
    }
    answer(record, letter);
    writeRecord(transit, record);
    exitCode = letter == 'e' ? BadEndExit : 0;
    return record.azione() != 'E';
}

int runWithEvent(Script& script, const std::filesystem::path& transit, const char* event) {
    int exitCode = 0;
    bool goOn = serve(script, transit, exitCode);
    TvIpcCreazioneEvento(event);
    while (goOn) {
        TvIpcSetEvento(event);
        if (script.last() == 'v') {
            TvIpcRimozioneEvento(event);
            waitForEver();
        }
        TvIpcWaitEvento(event);
        goOn = serve(script, transit, exitCode);
    }
    TvIpcSetEvento(event);
    TvIpcRimozioneEvento(event);
    return exitCode;
}

int runWithMarker(Script& script, const std::filesystem::path& transit) {
    const std::filesystem::path marker = transit.parent_path() / "LockPl.lck";
    int exitCode = 0;
    bool goOn = true;
    while (goOn) {
        if (!std::filesystem::exists(marker)) {
            std::this_thread::sleep_for(
                std::chrono::milliseconds(5)); // this mode has nothing else to wait for
            continue;
        }
        if (!std::filesystem::exists(transit)) {
            return 0;
        }
        goOn = serve(script, transit, exitCode);
        std::filesystem::remove(marker);
    }
    return exitCode;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments = planner::programArguments(argc, argv);
    if (arguments.size() != 3 || arguments[1].size() != 1) {
        return UsageExit;
    }
    goBehind();
    endWithStarter();
    const std::filesystem::path transit = planner::pathOf(arguments[0]);
    Script script{environment("FAKE_PLANNER_SCRIPT")};
    if (arguments[2] != "NOEVENT") {
        return runWithEvent(script, transit, arguments[2].c_str());
    }
    if (arguments[1] == "0") {
        std::filesystem::remove(transit.parent_path() / "TvPlaOK.lck");
        return 0;
    }
    return runWithMarker(script, transit);
}
