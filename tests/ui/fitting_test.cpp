// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "measures.h"
#include "ui/kit/fitted_label.h"
#include "ui/kit/text.h"
#include "window_bench.h"

#include <QAccessible>
#include <QHeaderView>
#include <QToolTip>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

const QString LongName = QStringLiteral("Degli Alessandri <b>Montecuccoli</b> Maria Vittoria");

int widthIn(const QFont& font, const QString& text) {
    return QFontMetrics(font).horizontalAdvance(text);
}

struct FittingTest : testing::Test {
    QFont font = qtFont(Carattere::normale, 1);
    FittingFont fitting{font};
    int width = widthIn(font, LongName);

    ~FittingTest() override { QToolTip::hideText(); }
};

} // namespace

TEST_F(FittingTest, ATextThatFitsIsShownAsDesigned) {
    const FittedText fitted = fitting.fit(LongName, width);
    EXPECT_EQ(fitted.shown, LongName);
    EXPECT_EQ(fitted.font(), font);
    EXPECT_FALSE(fitted.cut);
}

TEST_F(FittingTest, ATextALittleTooLongShrinksToNineTenths) {
    const FittedText fitted = fitting.fit(LongName, width - 1);
    EXPECT_EQ(fitted.shown, LongName);
    EXPECT_DOUBLE_EQ(fitted.font().pointSizeF(), font.pointSizeF() * 0.9);
    EXPECT_FALSE(fitted.cut);
}

TEST_F(FittingTest, ATextFarTooLongIsElidedAtItsEnd) {
    const FittedText fitted = fitting.fit(LongName, width / 2);
    EXPECT_TRUE(fitted.cut);
    EXPECT_TRUE(fitted.shown.startsWith(LongName.left(5)));
    EXPECT_TRUE(fitted.shown.endsWith(QChar(0x2026)));
    EXPECT_LE(widthIn(fitted.font(), fitted.shown), width / 2);
    EXPECT_DOUBLE_EQ(fitted.font().pointSizeF(), font.pointSizeF() * 0.9);
}

TEST_F(FittingTest, LettersShrinkFurtherOnALargeDesktopOnlyWhereThatSavesTheWhole) {
    const QVariant before = qApp->property("desktopPoints");
    qApp->setProperty("desktopPoints", 15.0);
    const QFont large = qtFont(Carattere::normale, 1.5);
    const FittingFont letters(large);
    const FittedText whole = letters.fit(LongName, widthIn(large, LongName) * 7 / 10);
    EXPECT_EQ(whole.shown, LongName);
    EXPECT_LT(whole.font().pointSizeF(), large.pointSizeF() * 0.8);
    const FittedText cut = letters.fit(LongName, widthIn(large, LongName) / 2);
    EXPECT_TRUE(cut.cut);
    EXPECT_DOUBLE_EQ(cut.font().pointSizeF(), large.pointSizeF() * 0.9);
    qApp->setProperty("desktopPoints", before);
}

TEST_F(FittingTest, WithoutRoomOrTextNothingGoesWrong) {
    EXPECT_FALSE(fitting.fit(QString(), 0).cut);
    EXPECT_TRUE(fitting.fit(LongName, 0).cut);
    EXPECT_TRUE(fitting.fit(LongName, -7).cut);
}

TEST_F(FittingTest, ALabelTellsItsWholeTextOnlyWhereItIsCut) {
    FittedLabel label(nullptr);
    label.setFont(font);
    label.setText(LongName);
    label.resize(width, 20);
    EXPECT_EQ(toolTipAt(label, {5, 5}), QString());
    label.resize(width / 2, 20);
    EXPECT_EQ(toolTipAt(label, {5, 5}), plainToolTip(LongName));
    EXPECT_EQ(label.text(), LongName);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), LongName);
    EXPECT_LT(label.minimumSizeHint().width(), width / 2) << "a layout may make it narrower";
}

TEST_F(FittingTest, ALabelFollowsItsFont) {
    FittedLabel label(nullptr);
    label.setText(LongName);
    label.setFont(font);
    label.resize(width, 60);
    EXPECT_FALSE(label.fitted().cut);
    label.setFont(qtFont(Carattere::normale, 3));
    EXPECT_TRUE(label.fitted().cut);
    EXPECT_DOUBLE_EQ(label.fitted().font().pointSizeF(), 27 * 0.9);
}

TEST_F(FittingTest, LettersHigherThanTheirLabelShrinkToIt) {
    FittedLabel label(nullptr);
    label.setText(QStringLiteral("È"));
    label.setFont(qtFont(Carattere::normale, 3));
    label.resize(width, 20);
    label.show();
    EXPECT_LE(QFontMetrics(label.fitted().font()).height(), 20);
    EXPECT_GT(label.fitted().font().pointSizeF(), 9);
}

TEST_F(FittingTest, ANameIsWholeInTheHeadersToolTipWhereItsColumnCutsItOff) {
    WindowBench bench;
    bench.base.putCollaboratori({collaboratore("RB", "Rossi"), collaboratore("DM", std::string(30, 'W'))});
    for (const char* kind : {"M", "G"}) {
        bench.open(kind);
        QHeaderView& names = *bench.view().verticalHeader();
        const auto tip = [&](int row) {
            return toolTipAt(*names.viewport(), {5, names.sectionViewportPosition(row) + 3});
        };
        const Griglia& griglia = *bench.base.controlli.grigliaVisibile();
        for (int row = 0; row < 2; ++row) {
            const QString name = fromCp1252(griglia.TextMatrix(row + griglia.FixedRows(), 0));
            EXPECT_EQ(tip(row), plainToolTip(name + QStringLiteral(": nessun impegno")))
                << kind << " " << name.toStdString();
        }
    }
}

TEST_F(FittingTest, ATitleTooLongIsCutAndItsToolTipIsWhole) {
    WindowBench bench;
    const std::string name(30, 'W');
    bench.base.putCollaboratori({collaboratore("RB", name)});
    bench.open("A");
    auto& title = bench.widget<FittedLabel>("lbldescr");
    EXPECT_TRUE(title.fitted().cut);
    EXPECT_EQ(toolTipAt(title, {5, 5}), plainToolTip(title.text()));
    EXPECT_TRUE(title.text().endsWith(QString::fromStdString(name)));
}

} // namespace planner::test
