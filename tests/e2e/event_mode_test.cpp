// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

#include <algorithm>

namespace planner::e2e {

namespace {

using Kind = Osservatore::Kind;
using EventMode = Scenario;

struct KindOfRequest {
    char tipoplanner;
    std::string_view day; // asked for
    std::string_view answered;
    std::string title;
};

void PrintTo(const KindOfRequest& kind, std::ostream* out) {
    *out << kind.tipoplanner << kind.day;
}

class EveryKind : public Scenario, public testing::WithParamInterface<KindOfRequest> {};

} // namespace

TEST_P(EveryKind, EscapeAnswersTheShownDayAndLeavesEveryOtherByteAlone) {
    const KindOfRequest& kind = GetParam();
    const std::string request = requestBytes(kind.tipoplanner, kind.day);
    archivio.writeTransit(request + everyByte());
    ospite.startWaiting();
    Programma& planner = startWithEvent();
    escape(planner, kind.title);
    EXPECT_EQ(ospite.answer(), closedOn(kind.answered, request) + everyByte());
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(planner.readToEnd(), "");
    EXPECT_EQ(archivio.transit(), closedOn(kind.answered, request) + everyByte());
}

INSTANTIATE_TEST_SUITE_P(EventMode, EveryKind,
                         testing::Values(KindOfRequest{'M', NoDay, "20060315", "Planner Mensile"},
                                         KindOfRequest{'M', "20060430", "20060430", "Planner Mensile"},
                                         KindOfRequest{'G', NoDay, "20060315", "Planner Giornaliero"},
                                         KindOfRequest{'G', "20060620", "20060620", "Planner Giornaliero"},
                                         KindOfRequest{'A', NoDay, "20060315", "Planner Annuale"},
                                         KindOfRequest{'A', "20061225", "20061225", "Planner Annuale"}),
                         [](const auto& tested) {
                             return std::string(1, tested.param.tipoplanner) +
                                    (tested.param.day == NoDay ? "WithoutDay" : "WithDay");
                         });

TEST_F(EventMode, TheHostHearsNothingBeforeTheUserHasAnswered) {
    archivio.writeTransit(requestBytes('M'));
    ospite.startWaiting();
    Programma& planner = startWithEvent();
    const Finestra finestra = window(planner, "Planner Mensile");
    finestra.activate();
    EXPECT_FALSE(ospite.isTold());
    EXPECT_EQ(archivio.transit(), requestBytes('M'));
    finestra.press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
}

TEST_F(EventMode, AHostThatComesAfterTheEndIsToldToo) {
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = startWithEvent();
    escape(planner);
    ASSERT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
}

TEST_F(EventMode, TheAnswerIsWrittenAndClosedBeforeTheEventIsCreated) {
    archivio.writeTransit(requestBytes('M'));
    Osservatore osservatore({archivio.path(), utente.eventFolder()});
    Programma& planner = startWithEvent();
    escape(planner);
    const std::string file(Archivio::Transit);
    const auto happened = osservatore.until({Kind::Created, ospite.eventFile()});
    const auto written =
        std::find(happened.begin(), happened.end(), Osservatore::Fatto{Kind::Modified, file});
    const std::vector<Osservatore::Fatto> fromThere(written, happened.end());
    EXPECT_EQ(fromThere, (std::vector<Osservatore::Fatto>{{Kind::Modified, file},
                                                          {Kind::ClosedAfterWriting, file},
                                                          {Kind::Created, ospite.eventFile()}}));
}

TEST_F(EventMode, TheEventIsRemovedWhenTheProgramEnds) {
    archivio.writeTransit(requestBytes('M'));
    Osservatore osservatore({utente.eventFolder()});
    Programma& planner = startWithEvent();
    escape(planner);
    ASSERT_EQ(planner.exitCode(), 0);
    EXPECT_FALSE(ospite.signal()) << "nobody is there to hear of another request";
    ospite.answer();
    osservatore.until({Kind::Deleted, ospite.eventFile()});
}

TEST_F(EventMode, AShortTransitFileGrowsToTheWholeRecord) {
    const std::string request = requestBytes('M').substr(0, 25); // up to the end date
    archivio.writeTransit(request);
    Programma& planner = startWithEvent();
    escape(planner);
    EXPECT_EQ(ospite.answer(), closedOn("20060315", request + std::string(RequestLength - 25, ' ')));
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(EventMode, AMissingTransitFileIsMadeAndAnsweredAsARequestOfNoKind) {
    const std::string before = today();
    Programma& planner = startWithEvent();
    confirmMessage(planner, "critical", "Richiesta non valida: il tipo di planner \" \" non è M, G o A.");
    EXPECT_EQ(archivio.transit(), "");
    const Finestra finestra = window(planner, "Planner grafico");
    EXPECT_EQ(finestra.title(), "Planner grafico");
    finestra.press("Escape");
    const std::string answer = ospite.answer();
    const std::string blanks(RequestLength, ' ');
    EXPECT_TRUE(answer == closedOn(before, blanks) || answer == closedOn(today(), blanks)) << answer;
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(EventMode, AWindowOfNoKindShowsNoGrid) {
    const auto coloursBelowTheMiddle = [this](char tipoplanner, const std::string& title) {
        archivio.writeTransit(requestBytes(tipoplanner));
        Programma& planner = startWithEvent();
        const Finestra finestra = windowAfterMessages(planner, title);
        finestra.activate();
        std::size_t colours = 0;
        const bool painted = comesTrue([&] {
            const Immagine picture = finestra.picture();
            const int half = picture.height() / 2;
            colours = picture.colours({0, half, picture.width(), half / 2}).size();
            return picture.colours({0, 0, picture.width(), half}).size() > 1;
        });
        EXPECT_TRUE(painted);
        finestra.press("Escape");
        ospite.answer();
        return colours;
    };
    EXPECT_GT(coloursBelowTheMiddle('M', "Planner Mensile"), 1U);
    EXPECT_EQ(coloursBelowTheMiddle('Z', "Planner grafico"), 1U);
}

} // namespace planner::e2e
