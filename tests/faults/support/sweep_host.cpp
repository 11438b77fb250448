// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// A host that is content with any end of its wait, as long as there is one. Its arguments are the transit
// file, the event or NOEVENT, and the letters that it asks for; the first request is in the file already. It
// ends with the exit codes of `FineOspite`.
#include "TavTermIPC.h"
#include "faults/support/requests.h"
#include "support/temp_folder.h"

#include <chrono>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace planner::faults {

namespace {

constexpr std::chrono::milliseconds BetweenLooks{2}; // at the marker

bool exists(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

class Host {
public:
    Host(std::string transit, std::string event) : m_transit(std::move(transit)), m_event(std::move(event)) {}

    FineOspite askFor(std::string_view letters) {
        for (std::size_t i = 0; i < letters.size(); ++i) {
            if (i > 0 && !ask(letters[i])) {
                return FineOspite::SegnaleFallito;
            }
            if (!waitForAnswer()) {
                return FineOspite::AttesaFallita;
            }
            const std::string answer = test::fileBytes(m_transit);
            if (answer == endTo(letters[i])) {
                break;
            }
            if (answer != answerTo(letters[i])) {
                return FineOspite::RispostaSbagliata;
            }
        }
        return FineOspite::Servito;
    }

private:
    bool polling() const { return m_event == NoEvent; }

    bool ask(char letter) {
        writeRequest(m_transit, letter);
        if (polling()) {
            putMarker(m_transit);
        }
        return polling() || TvIpcSetEvento(m_event.c_str()) != 0;
    }

    bool waitForAnswer() {
        if (!polling()) {
            return TvIpcWaitEvento(m_event.c_str()) != 0;
        }
        while (exists(markerOf(m_transit))) {
            std::this_thread::sleep_for(BetweenLooks);
        }
        return true;
    }

    std::string m_transit;
    std::string m_event;
};

} // namespace

} // namespace planner::faults

int main(int argc, char** argv) {
    using namespace planner::faults;
    return argc == 4 ? static_cast<int>(Host(argv[1], argv[2]).askFor(argv[3])) : EXIT_FAILURE;
}
