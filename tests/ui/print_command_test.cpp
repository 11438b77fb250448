// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "modal_dialog.h"
#include "ui/stampa/stampa_griglia.h"
#include "window_bench.h"

#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QPageRanges>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

namespace planner::test {

namespace {

QByteArray bytesIn(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qsizetype pagesIn(const QString& path) {
    return bytesIn(path).count("/Type /Page\n");
}

struct PrintCommandTest : testing::Test {
    WindowBench bench;
    QTemporaryDir folder;

    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    DocumentoStampa documento(bool totali = false) {
        return {bench.base.controlli, bench.base.sessione, PlannerBench::Oggi, CartaA4, totali};
    }
    /// Presses the keys of a print command and prints into a file.
    void printInto(const QString& file, Qt::KeyboardModifiers modifiers) {
        bench.vista.activateWindow(); // as a window system does when a dialog has closed
        EXPECT_TRUE(QTest::qWaitForWindowActive(&bench.vista));
        whileModal([&] { bench.key(Qt::Key_P, modifiers); },
                   [&](QDialog& printing) {
                       EXPECT_EQ(printing.objectName(), QStringLiteral("stampaGriglia"));
                       printing.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(file);
                       QTest::keyClick(&printing, Qt::Key_Return);
                   });
    }
};

} // namespace

TEST_F(PrintCommandTest, CtrlPPrintsTheGridOnALandscapeSheet) {
    bench.open("M");
    printInto(path("a.pdf"), Qt::ControlModifier);
    EXPECT_EQ(pagesIn(path("a.pdf")), 1);
    EXPECT_TRUE(bytesIn(path("a.pdf")).contains("/MediaBox [0 0 842.000000 595.000000]")) << "A4";
    EXPECT_EQ(bench.reply(), "") << "no answer to the host";
}

TEST_F(PrintCommandTest, CtrlShiftPAddsTheTotals) {
    bench.open("M");
    printInto(path("a.pdf"), Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(pagesIn(path("a.pdf")), 2);
}

struct PrintEachKind : PrintCommandTest, testing::WithParamInterface<const char*> {};

TEST_P(PrintEachKind, IsPrintedAsOftenAsOneLikes) {
    bench.open(GetParam());
    for (const char* file : {"a.pdf", "b.pdf"}) {
        printInto(path(file), Qt::ControlModifier);
        EXPECT_EQ(pagesIn(path(file)), 1) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, PrintEachKind, testing::Values("M", "G", "A"));

TEST_F(PrintCommandTest, EscapeLeavesThePlannerAsItWas) {
    bench.open("M");
    whileModal([&] { bench.key(Qt::Key_P, Qt::ControlModifier); },
               [](QDialog& printing) { QTest::keyClick(&printing, Qt::Key_Escape); });
    EXPECT_TRUE(bench.vista.isVisible());
    EXPECT_TRUE(bench.base.messaggi.shown.empty());
}

TEST_F(PrintCommandTest, CtrlCCopiesTextAndTable) {
    bench.base.putCollaboratori({collaboratore("RB", "<b>Rossi</b>")});
    bench.open("M");
    bench.key(Qt::Key_C, Qt::ControlModifier);
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(data->text().startsWith(
        QStringLiteral("Mese di Marzo 2006 - Planner Mensile\nCollaboratore\t1\t2\t")));
    EXPECT_TRUE(data->text().contains(QStringLiteral("\n<b>Rossi</b>\t")));
    EXPECT_TRUE(data->html().contains(QStringLiteral("<td>&lt;b&gt;Rossi&lt;/b&gt;</td>")));
    EXPECT_EQ(bench.finestra.stato(), "La tabella è stata copiata.");
}

TEST_F(PrintCommandTest, OnlyThePagesAskedForArePrinted) {
    bench.open("M");
    {
        QPdfWriter writer(path("a.pdf"));
        writer.setPageRanges(QPageRanges::fromString(QStringLiteral("2")));
        EXPECT_TRUE(printOn(writer, documento(/*totali=*/true)));
    }
    EXPECT_EQ(pagesIn(path("a.pdf")), 1);
}

TEST_F(PrintCommandTest, OnePageIsOnePictureAndSeveralAreNumbered) {
    bench.open("M");
    EXPECT_EQ(savePng(documento(), path("a.png")), QString());
    EXPECT_TRUE(QFile::exists(path("a.png")));
    EXPECT_EQ(savePng(documento(/*totali=*/true), path("b.png")), QString());
    EXPECT_FALSE(QFile::exists(path("b.png")));
    EXPECT_GT(QImage(path("b-1.png")).width(), QImage(path("b-1.png")).height()) << "landscape";
    EXPECT_TRUE(QFile::exists(path("b-2.png")));
    EXPECT_EQ(pngNames(QStringLiteral("foglio"), 2),
              (QStringList{QStringLiteral("foglio-1.png"), QStringLiteral("foglio-2.png")}));
}

TEST_F(PrintCommandTest, AFileThatCannotBeWrittenIsNamedAndTheOldOneStays) {
    bench.open("M");
    EXPECT_FALSE(savePdf(documento(), path("manca/a.pdf")).isEmpty());
    EXPECT_FALSE(savePng(documento(), path("manca/a.png")).isEmpty());
}

} // namespace planner::test
