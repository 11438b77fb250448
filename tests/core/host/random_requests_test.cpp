// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/mtavtrmpl.h"
#include "support/planner_bench.h"

#include <gtest/gtest.h>
#include <random>

namespace planner::test {
namespace {

constexpr const char* Transito = "C:\\arch\\trans.dat";

/// The host link with the real engine: whatever the request holds, it must be answered with 121 bytes and
/// the host's own fields untouched.
class RandomRequestsTest : public testing::Test {
protected:
    RandomRequestsTest() {
        bench.putRighe({riga("RB", "20060315", {{1, "1"}}), riga("BI", "20060231", {{1, "1"}}), RigaPlanner{},
                        RigaPlanner{}});
    }

    /// Serves the request; the user answers with `letter`.
    void serve(const std::string& request, char letter) {
        bench.files.put(Transito, request);
        bench.eventi.actions = {bench.answers(std::string("20060315RB") + letter, "RB")};
        link.readRequest();
        ASSERT_TRUE(link.dispatch());
        ASSERT_TRUE(bench.eventi.actions.empty()) << "the user was never asked";
        ASSERT_EQ(link.finished(), letter == 'E');
        const std::string answer = bench.files.get(Transito);
        ASSERT_EQ(answer.size(), 121u);
        ASSERT_EQ(answer.substr(86, 13), std::string("RB20060315RB") + letter);
        ASSERT_EQ(answer.substr(0, 86), request.substr(0, 86));
        ASSERT_EQ(answer.substr(99), request.substr(99));
    }

    std::string randomBytes(std::size_t count) {
        std::string bytes;
        for (std::size_t i = 0; i < count; ++i) {
            bytes += static_cast<char>(random() % 256);
        }
        return bytes;
    }

    /// Eight characters that may be a date: one in four is, the others come near it.
    std::string randomDate() {
        std::string date = std::to_string(1700 + random() % 8400) +
                           twoDigits(static_cast<int>(random() % 14)) +
                           twoDigits(static_cast<int>(random() % 33));
        date.resize(8, ' ');
        switch (random() % 4) {
        case 0:
            date[random() % 8] = static_cast<char>(random() % 256);
            break;
        case 1:
            date = "00000000";
            break;
        default:
            break;
        }
        return date;
    }

    std::string likelyRequest() {
        std::string request = randomBytes(121);
        request.replace(8, 1, 1, "MGA"[random() % 3]);
        request.replace(9, 8, randomDate());
        request.replace(17, 8, randomDate());
        request.replace(88, 8, randomDate());
        request.replace(99, 1, 1, "N x"[random() % 3]);
        return request;
    }

    char randomLetter() { return "EFACDIPST "[random() % 10]; }

    PlannerBench bench;
    RecordingIpc ipc{bench.journal};
    std::mt19937 random{20060315}; // a fixed seed: each run makes the same requests
    mtavtrmpl link{parseCommandLine("C:\\arch\\trans.dat 1 EV"), {bench.files, bench.messaggi}, [this] {
                       return std::make_unique<clsplg>(Ambiente{bench.sessione, bench.controlli,
                                                                bench.finestra, bench.files, bench.messaggi,
                                                                bench.eventi, bench.orologio});
                   }};
};

TEST_F(RandomRequestsTest, AnyBytesAreAnswered) {
    for (int i = 0; i < 2000 && !HasFatalFailure(); ++i) {
        serve(randomBytes(121), randomLetter());
    }
}

TEST_F(RandomRequestsTest, LikelyRequestsAreAnswered) {
    for (int i = 0; i < 2000 && !HasFatalFailure(); ++i) {
        serve(likelyRequest(), randomLetter());
    }
}

TEST_F(RandomRequestsTest, EveryByteOfEveryFieldThatIsReadIsAnswered) {
    auto request = richiesta();
    request.collab.assign("RB");
    const std::string bytes = bytesOf(request);
    for (std::size_t place = 0; place < 121 && !HasFatalFailure(); ++place) {
        const bool hostsOwn = place < 8 || (place >= 25 && place < 85);
        for (int value = 0; value < 256 && !HasFatalFailure(); value += hostsOwn ? 51 : 1) {
            std::string changed = bytes;
            changed[place] = static_cast<char>(value);
            serve(changed, 'D');
        }
    }
}

TEST_F(RandomRequestsTest, RandomArchivesAreShownToo) {
    for (int i = 0; i < 300 && !HasFatalFailure(); ++i) {
        for (const auto file : {FileRighe, FileCollaboratori, FileAnnuale}) {
            bench.put(file, randomBytes(random() % 3000));
        }
        serve(likelyRequest(), randomLetter());
    }
}

TEST_F(RandomRequestsTest, ARecordOfNulsIsSaidToHaveNoKindAndIsAnswered) {
    serve(std::string(121, '\0'), 'E');
    ASSERT_EQ(bench.messaggi.shown.size(), 1u);
    EXPECT_EQ(bench.messaggi.shown[0].text, "Richiesta non valida: il tipo di planner \" \" non è M, G o A.");
}

TEST_F(RandomRequestsTest, ABlankRecordIsSaidToHaveNoKindAndIsAnswered) {
    serve(std::string(121, ' '), 'E');
    ASSERT_EQ(bench.messaggi.shown.size(), 1u);
    EXPECT_EQ(bench.messaggi.shown[0].text, "Richiesta non valida: il tipo di planner \" \" non è M, G o A.");
}

} // namespace
} // namespace planner::test
