// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// The planner as its host and its user meet it: from the start or the host's signal to the painted window,
// from the key to the answer; against a program that shows a line of text.

#include "TavTermIPC.h"
#include "host/transit_request.h"
#include "program/running_program.h"
#include "program/screen.h"
#include "sample_archive/sample_archive.h"
#include "support/benchmark.h"
#include "support/measure.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

using namespace planner;
using namespace planner::bench;

namespace {

constexpr int Staff = 60;
constexpr int Records = 5000;
constexpr unsigned Return = 0xFF0D; // X key symbols
constexpr unsigned Escape = 0xFF1B;
constexpr const char* Transit = "transito.dat";

double since(Clock::time_point start, Clock::time_point end = Clock::now()) {
    return std::chrono::duration<double, std::milli>(end - start).count();
}

/// What one life of a program has shown: milliseconds, kilobytes.
struct Life {
    double start = 0;
    double memory = 0;
    double next = 0; // a further request, or another window
    double answer = 0;
    double close = 0;
};

/// An office and the place where host and planner meet.
class Office {
public:
    Office() {
        std::filesystem::create_directories(m_folder);
        constexpr int year = 2006;
        constexpr int seed = 1;
        scriviArchivioCampione(creaArchivioCampione({year, Staff, Records, seed}), m_folder.string());
    }
    ~Office() { std::filesystem::remove_all(m_folder); }
    Office(const Office&) = delete;
    Office& operator=(const Office&) = delete;

    std::string folder() const { return m_folder.string(); }
    const std::string& event() const { return m_event; }
    void ask() const {
        TransitRequest request;
        request.tipoplanner.assign("M");
        request.startdate.assign("20060101");
        request.enddate.assign("20061231");
        request.valret.assign("20060115");
        std::ofstream(m_folder / Transit, std::ios::binary)
            .write(reinterpret_cast<const char*>(&request), sizeof request);
    }
    /// Waits for the planner's answer and gives its action letter.
    char answer() const {
        if (TvIpcWaitEvento(m_event.c_str()) == 0) {
            throw std::runtime_error(std::string("no answer: ") + std::strerror(errno));
        }
        TransitRequest answer;
        std::ifstream(m_folder / Transit, std::ios::binary)
            .read(reinterpret_cast<char*>(&answer), sizeof answer);
        return answer.azione();
    }

private:
    std::string m_event = "bench-program-" + std::to_string(getpid());
    std::filesystem::path m_folder = std::filesystem::temp_directory_path() / m_event;
};

/// Milliseconds from the act until all is painted that follows.
template <typename Act>
double untilPainted(Screen& screen, Act act) {
    screen.forget();
    const Clock::time_point start = Clock::now();
    act();
    return since(start, screen.painted());
}

/// Milliseconds from the key to the host's knowing of it.
double untilAnswered(Screen& screen, const Office& office, unsigned key, char action) {
    screen.awaitFocus();
    const Clock::time_point start = Clock::now();
    screen.press(key);
    const char answered = office.answer();
    const double taken = since(start);
    if (answered != action) {
        throw std::runtime_error(std::string("another answer: ") + answered);
    }
    return taken;
}

Life livePlanner(Screen& screen, const Office& office, const std::string& program) {
    Life life;
    office.ask();
    std::unique_ptr<RunningProgram> planner;
    life.start = untilPainted(screen, [&] {
        planner = std::make_unique<RunningProgram>(
            program, std::vector<std::string>{Transit, "1", office.event()}, office.folder());
    });
    life.memory = planner->residentKilobytes();
    life.answer = untilAnswered(screen, office, Return, 'D');
    office.ask();
    life.next = untilPainted(screen, [&] { TvIpcSetEvento(office.event().c_str()); });
    life.close = untilAnswered(screen, office, Escape, 'E');
    const Clock::time_point answered = Clock::now();
    planner->awaitEnd();
    life.close += since(answered);
    return life;
}

Life liveLine(Screen& screen, const std::string& program) {
    Life life;
    std::unique_ptr<RunningProgram> line;
    life.start = untilPainted(
        screen, [&] { line = std::make_unique<RunningProgram>(program, std::vector<std::string>{}, "."); });
    life.memory = line->residentKilobytes();
    untilPainted(screen, [&] { line->tell(); }); // gone
    life.next = untilPainted(screen, [&] { line->tell(); });
    return life;
}

struct Row {
    const char* name;
    double Life::*figure;
    double reach; // of the line's figure; 0: nothing to compare with
};
constexpr std::array Rows{Row{"start, ms", &Life::start, 1.35}, Row{"further request, ms", &Life::next, 0.45},
                          Row{"memory, kB", &Life::memory, 1.3}, Row{"answer, ms", &Life::answer, 0},
                          Row{"close, ms", &Life::close, 0}};

double medianOf(const std::vector<Life>& lives, double Life::*figure) {
    Times times;
    for (const Life& life : lives) {
        times.push_back(life.*figure);
    }
    return median(times);
}

Json report(const std::vector<Life>& planner, const std::vector<Life>& line) {
    std::printf("the planner with %d staff, %d records against a line of text, medians of %zu lives\n", Staff,
                Records, planner.size());
    std::printf("%-24s %-10s %-10s %s\n", "", "planner", "line", "ratio");
    Json::Members members;
    std::string reach;
    for (const Row& row : Rows) {
        const double ours = medianOf(planner, row.figure);
        const double theirs = medianOf(line, row.figure);
        Json::Members figures{{"planner", ours}};
        std::printf("%-24s %-10.1f", row.name, ours);
        if (row.reach > 0) {
            std::printf(" %-10.1f %.2f", theirs, ours / theirs);
            figures.insert(figures.end(), {{"line", theirs}, {"ratio", ours / theirs}});
            std::array<char, 100> text;
            std::snprintf(text.data(), text.size(), "to reach: %s at most %.2f: %s\n", row.name, row.reach,
                          reachedOrMissed(ours / theirs <= row.reach));
            reach += text.data();
        }
        std::printf("\n");
        members.emplace_back(row.name, figures);
    }
    std::fputs(reach.c_str(), stdout);
    return members;
}

} // namespace

int main(int argc, char* argv[]) {
    int lives = 21;
    return benchmark(argc, argv, {{"--lives", &lives}}, [&] {
        const std::filesystem::path bin = std::filesystem::absolute(argv[0]).parent_path();
        Screen screen;
        const Office office;
        std::vector<Life> planner;
        std::vector<Life> line;
        for (int i = 0; i < lives; ++i) { // in turn, so that both see the same machine
            line.push_back(liveLine(screen, bin / "one-line"));
            planner.push_back(livePlanner(screen, office, bin / "planner"));
        }
        return report(planner, line);
    });
}
