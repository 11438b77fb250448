// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "painted.h"
#include "ui/guida/folded_search.h"
#include "ui/guida/guida_window.h"
#include "ui/kit/appearance.h"
#include "window_bench.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

struct GuideWindowTest : testing::Test {
    WindowBench bench;

    GuidaWindow* guide() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<GuidaWindow*>(widget)) {
                return found;
            }
        }
        return nullptr;
    }
    GuidaWindow& opened() {
        bench.open("M");
        bench.key(Qt::Key_F1);
        if (guide() == nullptr || !QTest::qWaitForWindowActive(guide())) {
            throw std::runtime_error("no guide");
        }
        return *guide();
    }
    template <typename Widget>
    Widget& part(const char* name) {
        return *guide()->findChild<Widget*>(QLatin1String(name));
    }
    GuidaView& text() { return part<GuidaView>("testo"); }
    QString selected() { return text().textCursor().selectedText(); }
    void find(const char* word) {
        auto& field = part<QLineEdit>("parola");
        QTest::keyClick(guide(), Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(field.hasFocus());
        QTest::keyClicks(&field, QString::fromUtf8(word));
        QTest::keyClick(&field, Qt::Key_Return);
    }
    /// All pictures of the text, by their names.
    QStringList pictures() {
        QStringList names;
        for (QTextBlock block = text().document()->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
                if (format.isValid()) {
                    names << format.name();
                    EXPECT_GT(format.width(), 0) << format.name().toStdString();
                    EXPECT_LE(format.width(), text().viewport()->width()) << format.name().toStdString();
                }
            }
        }
        return names;
    }
};

} // namespace

/// Played on each screen and with large letters too.
struct GuideRoomTest : GuideWindowTest {};

TEST_F(GuideRoomTest, NothingStandsBesideThePage) {
    opened();
    EXPECT_LE(text().horizontalScrollBar()->maximum(), 1) << "rounded up";
    EXPECT_FALSE(text().horizontalScrollBar()->isVisible());
}

TEST_F(GuideWindowTest, IsMadeAtItsFirstUse) {
    bench.open("M");
    EXPECT_EQ(guide(), nullptr);
    bench.key(Qt::Key_F1);
    ASSERT_NE(guide(), nullptr);
    EXPECT_EQ(guide()->windowTitle(), QStringLiteral("Guida al planner"));
    EXPECT_FALSE(guide()->isModal());
    EXPECT_EQ(bench.reply(), "");
}

TEST_F(GuideWindowTest, HoldsEveryChapterOfTheGuide) {
    opened();
    QFile file(QStringLiteral(PLANNER_DOCS "/guida.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString source = QString::fromUtf8(file.readAll());
    static const QRegularExpression heading(QStringLiteral("^#+ (.+)$"), QRegularExpression::MultilineOption);
    QStringList expected;
    for (auto match = heading.globalMatch(source); match.hasNext();) {
        expected << match.next().captured(1);
    }
    QStringList listed;
    for (int row = 0; row < part<QListWidget>("capitoli").count(); ++row) {
        listed << part<QListWidget>("capitoli").item(row)->text().trimmed();
    }
    EXPECT_GT(expected.size(), 8);
    EXPECT_EQ(listed, expected);
}

TEST_F(GuideWindowTest, AChapterChosenStandsAtTheTop) {
    opened();
    auto& chapters = part<QListWidget>("capitoli");
    chapters.setFocus();
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&chapters, Qt::Key_Down);
    }
    ASSERT_EQ(chapters.currentRow(), 4);
    const QString title = chapters.currentItem()->text().trimmed();
    EXPECT_EQ(text().textCursor().block().text(), title);
    EXPECT_LT(text().cursorRect().top(), text().viewport()->height() / 4);
    EXPECT_GT(text().verticalScrollBar()->value(), 0);
    QTest::keyClick(&chapters, Qt::Key_Return);
    EXPECT_TRUE(text().hasFocus());
}

TEST_F(GuideWindowTest, AWordIsFoundWithoutCaseAndAccentsAndF3FindsTheNext) {
    opened();
    find("perche, PRATICA");
    EXPECT_EQ(selected(), QString());
    EXPECT_EQ(part<QLabel>("esito").text(), QStringLiteral("Non c'è nella guida."));
    part<QLineEdit>("parola").clear();
    find("FESTIVITA");
    EXPECT_EQ(selected(), QStringLiteral("festività"));
    EXPECT_EQ(part<QLabel>("esito").text(), QString());
    EXPECT_TRUE(text().viewport()->rect().contains(text().cursorRect().center()));
    part<QLineEdit>("parola").clear();
    find("collaborator");
    const int first = text().textCursor().position();
    QTest::keyClick(&text(), Qt::Key_F3);
    const int second = text().textCursor().position();
    EXPECT_GT(second, first);
    QTest::keyClick(&text(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(text().textCursor().position(), first);
}

TEST_F(GuideWindowTest, ShowsAPictureOfEveryDrawingAndOfEveryWindow) {
    opened();
    const QStringList names = pictures();
    for (const char* name : {"note.svg", "impegni.svg", "scadenze.svg", "pratiche.svg", "presenza.svg",
                             "planner-mensile.png", "planner-giornaliero.png", "planner-annuale.png",
                             "elenco.png", "grafico.png", "inserimento.png", "informazioni.png"}) {
        EXPECT_TRUE(names.contains(QStringLiteral("guida:") + QLatin1String(name))) << name;
    }
    guide()->resize(guide()->minimumSizeHint());
    QCoreApplication::processEvents();
    EXPECT_EQ(pictures().size(), names.size()) << "and none wider than the text";
}

TEST_F(GuideWindowTest, LoadsNothingFromElsewhere) {
    opened();
    EXPECT_FALSE(text().openLinks());
    EXPECT_FALSE(
        text().loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("/etc/passwd"))).isValid());
    EXPECT_FALSE(
        text().loadResource(QTextDocument::HtmlResource, QUrl(QStringLiteral("http://a/"))).isValid());
}

TEST_F(GuideWindowTest, EscapeClosesItAloneAndF1BringsItBack) {
    opened();
    QTest::keyClick(&text(), Qt::Key_Escape);
    EXPECT_FALSE(guide()->isVisible());
    EXPECT_TRUE(bench.vista.isVisible());
    EXPECT_FALSE(bench.base.sessione.FinePlanner);
    bench.vista.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&bench.vista));
    bench.key(Qt::Key_F1);
    EXPECT_TRUE(guide()->isVisible());
}

TEST_F(GuideWindowTest, ItGoesWithTheSession) {
    opened();
    bench.finestra.Form_KeyDown(TastoEscape);
    EXPECT_FALSE(guide()->isVisible());
}

TEST_F(GuideWindowTest, FitsTheScreenAndNamesItsParts) {
    opened();
    EXPECT_TRUE(guide()->screen()->availableGeometry().contains(guide()->geometry()));
    EXPECT_EQ(part<QListWidget>("capitoli").accessibleName(), QStringLiteral("Capitoli"));
    EXPECT_EQ(part<QLineEdit>("parola").accessibleName(), QStringLiteral("Trova una parola"));
    EXPECT_EQ(text().accessibleName(), QStringLiteral("Guida"));
    EXPECT_GE(text().viewport()->width(), guide()->width() / 2);
}

TEST_F(GuideWindowTest, IsReadOnADarkDesktopToo) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(49, 54, 59), QColor(35, 38, 41)));
    opened();
    const QRectF page = text().viewport()->rect();
    const Painted painted(*text().viewport());
    EXPECT_TRUE(isDark(painted.at({2, 2}))) << "the ground";
    EXPECT_GT(painted.amount(page, [](QRgb colour) { return qGray(colour) > 200; }), 100) << "the letters";
    part<QListWidget>("capitoli").setCurrentRow(2); // the drawings stand below
    const QRgb ground = qtColor(Colore::gialloChiaro).rgb();
    EXPECT_TRUE(Painted(*text().viewport()).any(page, is(ground))) << "the drawings' own ground";
    QApplication::setPalette(before);
}

TEST(FoldedSearchTest, GoesRoundTheEndInBothDirections) {
    QTextDocument document(QStringLiteral("Più oltre\nPIU\nniente"));
    QTextCursor at(&document);
    const auto places = [&](bool backward) {
        QList<int> found;
        for (int i = 0; i < 3; ++i) {
            at = findFolded(document, QStringLiteral("piu"), at, backward);
            found << at.selectionStart();
        }
        return found;
    };
    EXPECT_EQ(places(/*backward=*/false), (QList<int>{0, 10, 0}));
    EXPECT_EQ(places(/*backward=*/true), (QList<int>{10, 0, 10}));
    EXPECT_TRUE(findFolded(document, QStringLiteral("x"), at, false).isNull());
    EXPECT_TRUE(findFolded(document, QString(), at, false).isNull());
}

} // namespace planner::test
