// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/fuzzed_user.h"
#include "host/mtavtrmpl.h"

#include <algorithm>

namespace planner::test {
namespace {

constexpr const char* Transito = "C:\\arch\\trans.dat";
constexpr std::size_t PlaceOfKind = 8;
constexpr std::size_t PlaceOfAnswer = 86; // staff code and answer
constexpr std::size_t EndOfAnswer = 99;
constexpr int MostRequests = 3;  // that the host sends in a row
constexpr int MostGestures = 12; // of the user's, before the window is closed

/// What the host has written: the transit file, and its archives.
struct HostFiles {
    explicit HostFiles(FuzzInput& input)
        : transito(input.part()), righe(input.part()), collaboratori(input.part()), annuale(input.part()),
          grafici(input.part()) {}

    std::string transito, righe, collaboratori, annuale, grafici;
};

/// Host link, engine and window over the files; only widgets, user and host are faked.
class FuzzedSession : public FuzzedUser {
public:
    FuzzedSession(const HostFiles& files, const FuzzInput& gestures) : m_gestures(gestures) {
        bench.put(FileRighe, files.righe);
        bench.put(FileCollaboratori, files.collaboratori);
        bench.put(FileAnnuale, files.annuale);
        bench.put(FileGrafici, files.grafici);
    }

    /// The host's request, and the same one again as long as the planner stays.
    void serve(const std::string& request) {
        for (int i = 0; i < MostRequests && (i == 0 || !m_link.finished()); ++i) {
            bench.files.put(Transito, request);
            waitForUser();
            m_link.readRequest();
            require(m_link.dispatch(), "the answer can be written");
            requireSoundAnswer(request, bench.files.get(Transito));
        }
        requireNoUnexpectedError();
    }

private:
    void waitForUser() {
        bench.eventi.actions = {[this] {
            waitForUser();
            m_gestures.atEnd() || m_gesturesLeft == 0 ? leave() : nextGesture();
        }};
    }

    void nextGesture() {
        --m_gesturesLeft;
        act(m_gestures);
    }

    static void requireSoundAnswer(std::string request, const std::string& answer) {
        request.resize(std::max(request.size(), sizeof(TransitRequest)), ' ');
        require(answer.size() == request.size(), "the record's length, or the file's when it was longer");
        require(answer.substr(0, PlaceOfAnswer) == request.substr(0, PlaceOfAnswer) &&
                    answer.substr(EndOfAnswer) == request.substr(EndOfAnswer),
                "only staff code and answer change");
        const auto record = recordOf<TransitRequest>(answer.substr(0, sizeof(TransitRequest)));
        const std::string_view valret = record.valret.view();
        require(parseDate(valret.substr(0, 8)).has_value(), "the answer names a day");
        require(valret.substr(8, 2) == record.collab.view(), "the answer repeats the staff code");
        require(std::string_view("EFACDIPST ").find(record.azione()) != std::string_view::npos,
                "the answer ends with an action letter");
    }

    void requireNoUnexpectedError() {
        for (const Message& message : bench.messaggi.shown) {
            require(message.text.find("errore imprevisto") == std::string::npos, message.text);
        }
    }

    FuzzInput m_gestures;
    int m_gesturesLeft = MostGestures;
    RecordingIpc m_ipc{bench.journal};
    mtavtrmpl m_link{parseCommandLine("C:\\arch\\trans.dat 1 EV"), {bench.files, bench.messaggi}, [this] {
                         return makeEngine();
                     }};
};

/// The same request; of one of the three kinds where it is of none.
std::string ofSomeKind(std::string request) {
    constexpr std::string_view kinds = "MGA";
    if (request.size() > PlaceOfKind && kinds.find(request[PlaceOfKind]) == std::string_view::npos) {
        request[PlaceOfKind] = kinds[static_cast<unsigned char>(request[PlaceOfKind]) % kinds.size()];
    }
    return request;
}

void fuzzRequest(FuzzInput input) {
    const HostFiles files(input);
    FuzzedSession(files, input).serve(files.transito);
    if (const std::string known = ofSomeKind(files.transito); known != files.transito) {
        FuzzedSession(files, input).serve(known);
    }
}

} // namespace
} // namespace planner::test

/// Transit file and the four archives, each as a part, then the user's gestures.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    planner::test::fuzzRequest({data, size});
    return 0;
}
