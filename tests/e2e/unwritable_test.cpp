// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/inamovibile.h"
#include "e2e/support/scenario.h"

#include <fstream>
#include <sys/mount.h>
#include <sys/resource.h>

namespace planner::e2e {

namespace {

/// An answer that cannot be written: the user is asked, and presses Enter for "Riprova" or Escape for
/// "Annulla".
class Unwritable : public Scenario {
protected:
    Unwritable() { archivio.writeTransit(requestBytes('M')); }

    /// From now on the planner's files cannot grow beyond the start of a record; 0 lifts it.
    static void limitFiles(const Programma& planner, rlim_t bytes) {
        const rlimit limit{bytes > 0 ? bytes : RLIM_INFINITY, RLIM_INFINITY};
        ASSERT_EQ(::prlimit(planner.pid(), RLIMIT_FSIZE, &limit, nullptr), 0);
    }
    void answerTrouble(const Programma& planner, const std::string& key) const {
        const Finestra box = window(planner, "Planner");
        EXPECT_EQ(box.title(), "Planner");
        box.press(key);
    }
    void checkGivenUp(Programma& planner) {
        EXPECT_EQ(planner.exitCode(), 1);
        EXPECT_EQ(archivio.transit(), requestBytes('M'));
    }
    /// The host is told all the same, of the record as it was.
    void checkToldInVain() {
        EXPECT_EQ(ospite.answer(), requestBytes('M'));
        EXPECT_FALSE(ospite.signal()) << "the event is removed";
    }

    static constexpr rlim_t HalfARecord = 60;
};

/// A disk of its own, as small as there are, full.
class FullDisk : public Scenario {
protected:
    FullDisk() {
        archivio.folder().makeFolder("disk");
        m_mounted = ::mount("none", disk().c_str(), "tmpfs", 0, "size=64k,mode=0700") == 0;
        std::ofstream filling(disk() + "/filling", std::ios::binary);
        while (m_mounted && filling.put('x').flush()) {
        }
    }
    ~FullDisk() override {
        if (m_mounted) {
            ::umount2(disk().c_str(), MNT_DETACH);
        }
    }

    std::string disk() const { return archivio.path("disk"); }
    bool isMounted() const { return m_mounted; }

private:
    bool m_mounted = false;
};

} // namespace

TEST_F(Unwritable, AnAnswerIsWrittenOnceThereIsRoomAgain) {
    Programma& planner = startWithEvent();
    const Finestra finestra = window(planner, "Planner Mensile");
    limitFiles(planner, HalfARecord);
    finestra.press("Escape");
    window(planner, "Planner").activate();
    EXPECT_EQ(archivio.transit(), requestBytes('M')) << "no half of an answer";
    EXPECT_FALSE(ospite.isTold());
    limitFiles(planner, 0);
    answerTrouble(planner, "Return");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(Unwritable, AnAnswerThatIsGivenUpWakesTheHostAndEndsWithATrouble) {
    Programma& planner = startWithEvent();
    const Finestra finestra = window(planner, "Planner Mensile");
    limitFiles(planner, HalfARecord);
    finestra.press("Escape");
    answerTrouble(planner, "Escape");
    // The limit keeps no event from being made: it is shorter.
    checkGivenUp(planner);
    checkToldInVain();
}

TEST_F(Unwritable, AFileThatCannotBeWrittenAtAllIsSaidAndGivenUp) {
    Programma& planner = startWithEvent();
    const Finestra finestra = window(planner, "Planner Mensile");
    Inamovibile transit(archivio.transitPath());
    if (!transit.holds()) {
        GTEST_SKIP() << "this file system, or this user, cannot keep a file from being written";
    }
    finestra.press("Escape");
    answerTrouble(planner, "Escape");
    checkGivenUp(planner);
    checkToldInVain();
}

TEST_F(Unwritable, AFileThatCanBeWrittenAgainTakesTheAnswer) {
    Programma& planner = startWithEvent();
    const Finestra finestra = window(planner, "Planner Mensile");
    Inamovibile transit(archivio.transitPath());
    if (!transit.holds()) {
        GTEST_SKIP() << "this file system, or this user, cannot keep a file from being written";
    }
    finestra.press("Escape");
    window(planner, "Planner").activate();
    transit.release();
    answerTrouble(planner, "Return");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(Unwritable, AGivenUpAnswerLeavesTheMarkerOfAPollingHost) {
    archivio.putMarker(Archivio::LockPl);
    Programma& planner = startPolling();
    const Finestra finestra = window(planner, "Planner Mensile");
    limitFiles(planner, HalfARecord);
    finestra.press("Escape");
    answerTrouble(planner, "Escape");
    checkGivenUp(planner);
    EXPECT_TRUE(archivio.exists(Archivio::LockPl));
}

TEST_F(FullDisk, AnAnswerIsWrittenOnceThereIsRoomAgain) {
    if (!isMounted()) {
        GTEST_SKIP() << "this user cannot mount a disk";
    }
    const std::string transit = disk() + "/TRANSIT.DAT";
    Programma& planner = start({transit, "1", evento}); // there is no file yet: reading makes an empty one
    confirmMessage(planner, "critical", "Richiesta non valida: il tipo di planner \" \" non è M, G o A.");
    window(planner, "Planner grafico").press("Escape");
    const Finestra trouble = window(planner, "Planner");
    trouble.activate();
    EXPECT_EQ(test::fileBytes(transit), "");
    archivio.remove("disk/filling");
    trouble.press("Return");
    Ospite host(evento, transit);
    EXPECT_EQ(actionIn(host.answer()), 'E');
    EXPECT_EQ(planner.exitCode(), 0);
}

} // namespace planner::e2e
