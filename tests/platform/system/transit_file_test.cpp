// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/ftavtrmpl.h"
#include "platform/system/system_file_system.h"
#include "support/host_fixture.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The host link on a real disk; the user answers "20060315RBE".
class TransitFileTest : public HostFixture {
protected:
    mtavtrmpl makeDiskLink(const std::string& mode) {
        RigaComando line = parseCommandLine(folder.path("trans.dat") + " 1 " + mode);
        return {line, {disk, messaggi}, [this] {
                    return std::make_unique<FakeMotore>(
                        journal, [](WPlannerCall& call) { call.valret = "20060315RBE"; });
                }};
    }
    bool runEvents() {
        mtavtrmpl link = makeDiskLink("EV");
        return makeConversation(link).eventLoop();
    }
    std::string trouble() const {
        return "Attenzione ! Problemi con il file di transito " + folder.path("trans.dat");
    }

    TempFolder folder;
    SystemFileSystem disk;
};

TEST_F(TransitFileTest, AFileOfAnyLengthIsRewrittenFromItsStartWith121Bytes) {
    for (std::size_t length = 0; length <= 130; ++length) {
        std::string before;
        for (std::size_t i = 0; i < length; ++i) {
            before += static_cast<char>('!' + i % 90);
        }
        folder.write("trans.dat", before);
        ASSERT_TRUE(runEvents());

        std::string expected = before.substr(0, std::min<std::size_t>(length, 121));
        expected.resize(121, ' ');
        expected.replace(88, 11, "20060315RBE");
        if (length > 121) {
            expected += before.substr(121);
        }
        EXPECT_EQ(folder.read("trans.dat"), expected) << length;
    }
    EXPECT_THAT(messageTexts(), IsEmpty());
}

TEST_F(TransitFileTest, AMissingFileIsMadeInEventMode) {
    EXPECT_TRUE(runEvents());
    EXPECT_EQ(folder.read("trans.dat"), std::string(88, ' ') + "20060315RBE" + std::string(22, ' '));
}

TEST_F(TransitFileTest, AFolderInItsPlaceIsSaidAndEndsTheConversation) {
    folder.makeFolder("trans.dat");
    EXPECT_FALSE(runEvents());
    EXPECT_THAT(messageTexts(), ElementsAre(trouble()));
    EXPECT_THAT(journal, ElementsAre("message", "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(TransitFileTest, AMissingFolderIsSaidAndEndsTheConversation) {
    std::filesystem::remove(folder.path());
    EXPECT_FALSE(runEvents());
    EXPECT_THAT(messageTexts(), ElementsAre(trouble()));
}

TEST_F(TransitFileTest, TheAnswerIsOnTheDiskBeforeTheHostIsTold) {
    folder.write("trans.dat", bytesOf(richiesta()));
    mtavtrmpl link = makeDiskLink("EV");
    link.readRequest();
    EXPECT_TRUE(link.dispatch());
    EXPECT_EQ(recordOf<TransitRequest>(folder.read("trans.dat")).valret.view(), "20060315RBE");
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner"));
}

TEST_F(TransitFileTest, PollingServesTheRequestAndRemovesTheMarker) {
    folder.write("trans.dat", bytesOf(richiesta()));
    mtavtrmpl link = makeDiskLink("NOEVENT");
    Ftavtrmpl form(link, disk, timer);
    EXPECT_EQ(form.Form_Load(), Seguito::Continua);
    EXPECT_EQ(form.Timer1_Timer(), Seguito::Continua);
    EXPECT_TRUE(timer.enabled);
    folder.write("LockPl.lck", "");
    EXPECT_EQ(form.Timer1_Timer(), Seguito::Termina);
    EXPECT_FALSE(folder.exists("LockPl.lck"));
    EXPECT_EQ(recordOf<TransitRequest>(folder.read("trans.dat")).valret.view(), "20060315RBE");
}

TEST_F(TransitFileTest, AFolderIsNoMarker) {
    folder.write("trans.dat", bytesOf(richiesta()));
    folder.makeFolder("LockPl.lck");
    mtavtrmpl link = makeDiskLink("NOEVENT");
    Ftavtrmpl form(link, disk, timer);
    form.Form_Load();
    EXPECT_EQ(form.Timer1_Timer(), Seguito::Continua);
    EXPECT_THAT(journal, ElementsAre("timer on"));
}

TEST_F(TransitFileTest, AFolderIsNoTransitFileForPolling) {
    folder.makeFolder("trans.dat");
    mtavtrmpl link = makeDiskLink("NOEVENT");
    Ftavtrmpl form(link, disk, timer);
    EXPECT_EQ(form.Form_Load(), Seguito::Termina);
    EXPECT_THAT(messageTexts(), ElementsAre(trouble()));
}

} // namespace
} // namespace planner::test
