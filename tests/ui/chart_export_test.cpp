// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "chart_bench.h"
#include "ui/kit/text.h"
#include "ui/plfgraf/chart_export.h"

#include <QAccessible>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace planner::test {

namespace {

using testing::SizeIs;

struct ChartExportTest : ChartBench {};

} // namespace

TEST_F(ChartExportTest, CtrlCCopiesTheValuesAsATable) {
    openChart("G", [](QDialog& dialog) {
        QTest::keyClick(&chart(dialog), Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(),
                  QStringLiteral("Ore dei collaboratori - 15 marzo 2006\nCollaboratori\tOre\tOre decimali\n"
                                 "BI\t6:45\t6,75\nRB\t7:30\t7,5\n7 \t0:00\t0\n"));
    });
}

TEST_F(ChartExportTest, TheContextMenuOffersToCopyToSaveAndToPrint) {
    openChart("M", [](QDialog& dialog) {
        QStringList texts;
        for (const QAction* action : chart(dialog).actions()) {
            texts.append(action->text());
        }
        EXPECT_EQ(texts.join(QLatin1Char('|')), QStringLiteral("Copia i valori|Salva il grafico…|Stampa…"));
        EXPECT_EQ(chart(dialog).contextMenuPolicy(), Qt::ActionsContextMenu);
    });
}

TEST_F(ChartExportTest, NamesShowAsTheyAreWhateverTheyHold) {
    const std::vector<std::string> names{"<b>Bianchi</b>", "Rossi &amp; %1", "Rossi &amp; %1",
                                         std::string(50, 'W')};
    bench.base.putCollaboratori({collaboratore("BI", names[0]), collaboratore("RB", names[1]),
                                 collaboratore("7 ", names[2]), collaboratore("WW", names[3])});
    openChart("G", [&](QDialog& dialog) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&chart(dialog));
        for (std::size_t i = 0; i < names.size(); ++i) {
            const QString name = QString::fromStdString(names[i]);
            QTest::keyClick(&chart(dialog), Qt::Key_Right);
            EXPECT_TRUE(status(dialog).startsWith(name)) << names[i];
            EXPECT_TRUE(accessible->child(static_cast<int>(i))->text(QAccessible::Name).startsWith(name));
        }
        EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("stato"))->textFormat(), Qt::PlainText);
        const std::vector<PlacedText>& texts = chart(dialog).chartLayout().texts;
        EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&](const PlacedText& text) {
            return text.text == names[1];
        })) << "the legend";
    });
}

TEST_F(ChartExportTest, SavesInTheFormatThatTheNameEndsWith) {
    const QTemporaryDir folder;
    const std::vector<std::pair<QString, QByteArray>> formats{{QStringLiteral("png"), "\x89PNG"},
                                                              {QStringLiteral("svg"), "<?xml"},
                                                              {QStringLiteral("PDF"), "%PDF"}};
    for (const auto& [suffix, start] : formats) {
        const QString path = folder.filePath(QStringLiteral("grafico.") + suffix);
        EXPECT_EQ(saveAs(path), QStringLiteral("Grafico salvato in ") + path);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        const QByteArray bytes = file.readAll();
        EXPECT_TRUE(bytes.startsWith(start.constData())) << path.toStdString();
        EXPECT_GT(bytes.size(), 1000);
    }
}

TEST_F(ChartExportTest, ASavedDrawingHoldsTheTextsAsTheyAre) {
    const QTemporaryDir folder;
    bench.base.putCollaboratori({collaboratore("BI", "B"), collaboratore("RB", "<b>Rossi</b> & %1")});
    const QString path = folder.filePath(QStringLiteral("grafico.svg"));
    saveAs(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString svg = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(svg.contains(QStringLiteral(">&lt;b&gt;Rossi&lt;/b&gt; &amp; %1<"))) << "the legend";
    EXPECT_TRUE(svg.contains(QStringLiteral(">Ore di &lt;b&gt;Rossi&lt;/b&gt; &amp; %1 - marzo 2006<")));
    EXPECT_FALSE(svg.contains(QStringLiteral("<b>")));
}

TEST_F(ChartExportTest, ANameThatNoFileCanHaveIsOfferedWithoutWhatIsForbidden) {
    bench.base.putCollaboratori({collaboratore("BI", "B"), collaboratore("RB", "../Rossi: B.")});
    openChart("M", [](QDialog& dialog) {
        EXPECT_EQ(offeredName(dialog), QStringLiteral("Ore di ___Rossi_ B_ - marzo 2006"));
    });
}

TEST_F(ChartExportTest, PrintsOnOneLandscapePage) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stampa.pdf"));
    openChart("M", [&](QDialog& dialog) {
        whileModal([&] { trigger(dialog, "stampa"); },
                   [&](QDialog& printing) {
                       printing.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(path);
                       QTest::keyClick(&printing, Qt::Key_Return);
                   });
    });
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page\n"), 1);
    EXPECT_TRUE(bytes.contains("/MediaBox [0 0 842.000000 595.000000]")) << "A4, landscape";
}

TEST_F(ChartExportTest, AFileThatCannotBeWrittenIsSaid) {
    const QTemporaryDir folder;
    saveAs(folder.filePath(QStringLiteral("manca/grafico.png")));
    ASSERT_THAT(bench.base.messaggi.shown, SizeIs(1));
    EXPECT_EQ(bench.base.messaggi.shown.front().icon, MessageIcon::Critical);
    EXPECT_THAT(bench.base.messaggi.shown.front().text, testing::HasSubstr("manca/grafico.png"));
}

TEST_F(ChartExportTest, ANameThatEndsOtherwiseIsRefused) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("grafico.txt"));
    saveAs(path);
    ASSERT_THAT(bench.base.messaggi.shown, SizeIs(1));
    EXPECT_THAT(bench.base.messaggi.shown.front().text,
                testing::HasSubstr("il nome deve finire con .png, .svg o .pdf"));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ChartExportTest, AFailedSaveLeavesTheOldFileAsItWas) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("grafico.png"));
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    EXPECT_FALSE(saveDrawing({QSizeF(), QString(), [](QPainter&, QSizeF) {}}, path).isEmpty());
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
}

} // namespace planner::test
