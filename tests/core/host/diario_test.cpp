// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/diario.h"
#include "ports/runtime_errors.h"
#include "session/versione.h"
#include "support/host_fixture.h"

#include <gmock/gmock.h>
#include <sstream>

namespace planner::test {
namespace {

using testing::ElementsAre;

/// What the log says of the link.
class DiarioTest : public HostFixture {
protected:
    DiarioTest() { putRequest(richiesta()); }

    /// The lines, without the time.
    std::vector<std::string> righe() const {
        std::istringstream text(scritto.str());
        std::vector<std::string> lines;
        for (std::string line; std::getline(text, line);) {
            EXPECT_EQ(line.substr(0, 4), "ORA ");
            lines.push_back(line.substr(4));
        }
        return lines;
    }

    /// Event mode, with everything written down.
    bool run() {
        mtavtrmpl link = makeLink("C:\\arch\\trans.dat 1 EV", {annotati, detti});
        return EventConversation(link, evento, eventi).eventLoop();
    }

    std::ostringstream scritto;
    Diario diario{scritto, [] { return std::string("ORA"); }};
    FileConDiario annotati{files, diario};
    MessaggiConDiario detti{messaggi, diario};
    EventoConDiario evento{ipc, diario};
};

TEST_F(DiarioTest, EachStepOfAConversationIsALineWithoutStaffCodes) {
    answers = {"20060315RBD", "20060316RBE"};
    ipc.hostActions = {[this] { putRequest(richiesta("G")); }};
    EXPECT_TRUE(run());
    EXPECT_THAT(righe(), ElementsAre("richiesta: tipo M, dal 20060315 al 20061231, giorno 00000000, 121 byte",
                                     "risposta: giorno 20060315, un collaboratore, azione D", //
                                     "evento creato", "evento segnalato", "evento atteso", "evento ricevuto",
                                     "richiesta: tipo G, dal 20060315 al 20061231, giorno 00000000, 121 byte",
                                     "risposta: giorno 20060316, un collaboratore, azione E", //
                                     "evento segnalato", "evento rimosso"));
}

TEST_F(DiarioTest, TheStartSaysTheVersionAndTheWayOfWaiting) {
    diario.annotaAvvio(parseCommandLine("C:\\arch\\trans.dat 1 EV"));
    diario.annotaAvvio(parseCommandLine("C:\\arch\\trans.dat 1 noevent"));
    const std::string planner = "avvio: planner " + std::string(versione());
    EXPECT_THAT(righe(), ElementsAre(planner + ", evento EV", planner + ", a marcatori"));
}

TEST_F(DiarioTest, AnAnswerWithoutStaffMemberSaysSo) {
    TransitRequest answer;
    answer.valret.assign("20060315  E");
    annotati.writeStart(Transito, bytesOf(answer));
    EXPECT_THAT(righe(), ElementsAre("risposta: giorno 20060315, nessun collaboratore, azione E"));
    EXPECT_EQ(answerInFile(), answer);
}

TEST_F(DiarioTest, ARecordLookedAtAgainSaysNothing) {
    std::string bytes(sizeof(TransitRequest), ' ');
    annotati.readStart(Transito, bytes);
    annotati.readStart(Transito, bytes);
    EXPECT_EQ(righe().size(), 1u);
    EXPECT_EQ(bytes, bytesOf(richiesta()));
}

TEST_F(DiarioTest, BytesThatAreNoTextAreQuestionMarks) {
    TransitRequest strange = richiesta("\n");
    strange.startdate.assign("2006\x01\xE0");
    putRequest(strange);
    std::string bytes(sizeof(TransitRequest), ' ');
    annotati.readStart(Transito, bytes);
    EXPECT_THAT(righe(), ElementsAre("richiesta: tipo ?, dal 2006?? al 20061231, giorno 00000000, 121 byte"));
}

TEST_F(DiarioTest, ArchivesAreWrittenDownWithTheirRecords) {
    files.put("C:\\arch\\wcollab", std::string(250, ' '));
    files.put("C:\\arch\\altro", std::string(7, ' '));
    files.put("C:\\arch\\wrighipl", "");
    files.refuse("C:\\arch\\wrighipl");
    EXPECT_EQ(annotati.openForReading("C:\\arch\\wcollab")->length(), 250u);
    annotati.openForReading("C:/arch/altro");
    std::string why;
    try {
        annotati.openForReading("C:\\arch\\wrighipl");
    } catch (const FileError& error) {
        why = error.what();
    }
    EXPECT_THAT(righe(), ElementsAre("archivio wcollab: 250 byte, 2 record", "archivio altro: 7 byte",
                                     "archivio wrighipl: non si apre: " + why));
    EXPECT_FALSE(why.empty());
}

TEST_F(DiarioTest, AnAnswerThatCannotBeWrittenIsWrittenDownWithWhatTheUserChose) {
    files.refuseWriting(Transito);
    messaggi.retries = {[] {}};
    answers = {"20060315RBE"};
    EXPECT_FALSE(run());
    const std::vector<std::string> lines = righe();
    ASSERT_GE(lines.size(), 6u);
    EXPECT_EQ(lines[1].substr(0, 25), "risposta: non si scrive: ");
    EXPECT_EQ(lines[2].substr(0, 32), "messaggio critico: Attenzione ! ");
    EXPECT_EQ(lines[3], "scelto: Riprova");
    EXPECT_EQ(lines[6], "scelto: Annulla");
}

TEST_F(DiarioTest, ARequestThatCannotBeReadIsWrittenDown) {
    files.refuse(Transito);
    EXPECT_FALSE(run());
    ASSERT_GE(righe().size(), 2u);
    EXPECT_EQ(righe()[0].substr(0, 25), "richiesta: non si legge: ");
}

TEST_F(DiarioTest, TheEventsTroublesAreWrittenDownWithTheirReason) {
    ipc.troubles["signal"] = {GuaioEvento{false, "nessuno spazio"}};
    EXPECT_TRUE(evento.TvIpcSetEvento("EV").has_value());
    EXPECT_FALSE(evento.TvIpcSetEvento("EV").has_value());
    EXPECT_FALSE(evento.interrompiAttesa("EV"));
    ipc.signalledBeforeRemoval = true;
    EXPECT_TRUE(evento.interrompiAttesa("EV"));
    EXPECT_THAT(righe(), ElementsAre("evento segnalato: non riuscito: nessuno spazio", "evento segnalato",
                                     "attesa interrotta", "attesa interrotta: l'host ha chiesto"));
}

TEST_F(DiarioTest, TheMarkersDeletionIsWrittenDown) {
    files.put("C:\\arch\\LockPl.lck", "");
    EXPECT_TRUE(annotati.deleteFile("C:\\arch\\LockPl.lck"));
    EXPECT_FALSE(annotati.deleteFile("C:\\arch\\LockPl.lck"));
    EXPECT_THAT(righe(), ElementsAre("file LockPl.lck eliminato", "file LockPl.lck non eliminato"));
}

TEST_F(DiarioTest, AMessageIsOneLine) {
    detti.show({MessageIcon::Information, "Planner", "uno\ndue"});
    EXPECT_THAT(righe(), ElementsAre("messaggio: uno due"));
    EXPECT_EQ(messaggi.shown.size(), 1u);
}

TEST_F(DiarioTest, WhatCannotBeWrittenDownDisturbsNobody) {
    scritto.setstate(std::ios::failbit);
    answers = {"20060315RBE"};
    EXPECT_TRUE(run());
    EXPECT_EQ(answerInFile().azione(), 'E');
}

} // namespace
} // namespace planner::test
