// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "painted.h"
#include "support/contrast.h"
#include "ui/kit/legible.h"
#include "ui/plcal/shown_calendar.h"
#include "window_bench.h"

#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStyleOption>

#include <gtest/gtest.h>
#include <ostream>

namespace planner::test {

namespace {

Rgb rgbOf(const QColor& colour) {
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

double least(const QColor& shown, const QColor& ground) {
    double contrast = contrasto(rgbOf(shown), rgbOf(ground));
    for (const Vista& vista : Viste) {
        contrast = std::min(contrast, contrasto(rgbOf(shown), rgbOf(ground), vista));
    }
    return contrast;
}

/// The colours that a drawing of the program's resources is filled with.
QList<QColor> coloursOf(const QString& drawing) {
    QFile file(QStringLiteral(":/planner/") + drawing + QStringLiteral(".svg"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << drawing.toStdString();
    static const QRegularExpression fill(QStringLiteral("fill=\"(#[0-9A-Fa-f]{6})\""));
    QList<QColor> colours;
    auto found = fill.globalMatch(QString::fromUtf8(file.readAll()));
    while (found.hasNext()) {
        colours.append(QColor(found.next().captured(1)));
    }
    return colours;
}

struct Desktop {
    const char* name;
    QPalette palette;

    friend std::ostream& operator<<(std::ostream& out, const Desktop& desktop) { return out << desktop.name; }
};

QPalette paletteOf(const QColor& window, const QColor& text, const QColor& base) {
    QPalette palette(window);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Base, base);
    return palette;
}

/// The planner window on desktops of other colours.
struct DesktopContrastTest : testing::TestWithParam<Desktop> {
    QPalette before = QApplication::palette();

    DesktopContrastTest() { QApplication::setPalette(GetParam().palette); }
    ~DesktopContrastTest() override { QApplication::setPalette(before); }
};

} // namespace

TEST(DrawingContrastTest, EveryDrawingStandsOutFromEveryGroundAndItsDetailsFromIt) {
    for (const char* drawing : {"note", "impegni", "scadenze", "pratiche", "presenza"}) {
        for (const QColor& ink : coloursOf(QLatin1String(drawing))) {
            if (ink == QColor(Qt::white)) {
                continue; // stands on the drawing's own ink
            }
            for (const Colore ground : {Colore::gialloChiaro, Colore::giallo, Colore::ciano, Colore::azzurro,
                                        Colore::intestazione, Colore::bianco}) {
                EXPECT_GE(least(ink, qtColor(ground)), ShapeContrast)
                    << drawing << " on " << static_cast<int>(ground);
            }
        }
    }
}

TEST_P(DesktopContrastTest, WhatTheProgramColoursItselfStandsOut) {
    WindowBench bench;
    bench.open("M");
    const auto& calendar = bench.widget<ShownCalendar>("calendario");
    for (const QPalette::ColorRole ground : {QPalette::Base, QPalette::AlternateBase}) {
        EXPECT_GE(least(calendar.weekendLetters(), calendar.palette().color(ground)), TextContrast);
    }
    const auto boxes = bench.vista.findChildren<QFrame*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QFrame* box : boxes) {
        if (box->frameStyle() == static_cast<int>(QFrame::Box | QFrame::Plain)) {
            const QColor edge = box->palette().color(QPalette::WindowText);
            EXPECT_GE(least(edge, bench.vista.palette().color(QPalette::Window)), ShapeContrast);
            EXPECT_GE(least(edge, box->palette().color(QPalette::Base)), ShapeContrast);
        }
    }
}

TEST_P(DesktopContrastTest, EveryLabelStandsOutFromWhatItStandsOn) {
    WindowBench bench;
    bench.open("M");
    bench.click(3, 17);
    for (const QLabel* label : bench.vista.findChildren<QLabel*>()) {
        const auto* box = qobject_cast<const QFrame*>(label->parentWidget());
        const QPalette::ColorRole ground = box == nullptr ? QPalette::Window : QPalette::Base;
        EXPECT_GE(least(label->palette().color(label->foregroundRole()),
                        label->parentWidget()->palette().color(ground)),
                  TextContrast)
            << label->text().toStdString();
    }
}

TEST_P(DesktopContrastTest, TheCalendarFollowsTheDesktopWhileItIsOpen) {
    WindowBench bench;
    QApplication::setPalette(before);
    bench.open("M");
    QApplication::setPalette(GetParam().palette);
    QCoreApplication::processEvents();
    const auto& calendar = bench.widget<ShownCalendar>("calendario");
    EXPECT_GE(least(calendar.weekendLetters(), calendar.palette().color(QPalette::Base)), TextContrast);
}

TEST_P(DesktopContrastTest, WhatIsChosenAndWhatCannotBeUsedCanBeRead) {
    QPalette palette = GetParam().palette;
    palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
    palette.setColor(QPalette::HighlightedText, QColor(239, 240, 241));
    palette.setColor(QPalette::Disabled, QPalette::Text, palette.color(QPalette::Base));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, palette.color(QPalette::Window));
    makeLegible(palette);
    const auto contrast = [&](QPalette::ColorGroup group, QPalette::ColorRole ink,
                              QPalette::ColorRole ground) {
        return contrasto(rgbOf(palette.color(group, ink)), rgbOf(palette.color(group, ground)));
    };
    EXPECT_GE(contrast(QPalette::Active, QPalette::HighlightedText, QPalette::Highlight), TextContrast);
    EXPECT_GE(contrast(QPalette::Inactive, QPalette::HighlightedText, QPalette::Highlight), TextContrast);
    EXPECT_GE(contrast(QPalette::Active, QPalette::PlaceholderText, QPalette::Base), TextContrast);
    EXPECT_GE(contrast(QPalette::Disabled, QPalette::Text, QPalette::Base), ShapeContrast);
    EXPECT_GE(contrast(QPalette::Disabled, QPalette::WindowText, QPalette::Window), ShapeContrast);
}

TEST_P(DesktopContrastTest, ButtonsFieldsAndMarksHaveEdgesThatShow) {
    QWidget window;
    QPushButton button(&window);
    QLineEdit field(&window);
    QRadioButton mark(&window);
    int left = 10;
    for (QWidget* control :
         {static_cast<QWidget*>(&button), static_cast<QWidget*>(&field), static_cast<QWidget*>(&mark)}) {
        control->setGeometry(left, 10, 40, 30);
        left += 60;
    }
    const Painted painted(window);
    for (const QRect& edge : {QRect(8, 24, 6, 1), QRect(68, 24, 6, 1), QRect(128, 24, 6, 1)}) {
        EXPECT_TRUE(painted.any(edge, [](QRgb pixel) {
            return least(QColor(pixel), GetParam().palette.color(QPalette::Window)) >= ShapeContrast - 0.1;
        })) << edge.x();
    }
}

TEST_P(DesktopContrastTest, AMenuStandsOutFromTheWindowBehindIt) {
    QMenu menu;
    menu.addAction(QStringLiteral("Guida"));
    menu.resize(menu.sizeHint());
    const Painted painted(menu);
    const QColor edge = painted.at({0, menu.height() / 2.0});
    EXPECT_GE(contrasto(rgbOf(edge), rgbOf(GetParam().palette.color(QPalette::Window))), ShapeContrast - 0.1);
}

TEST_P(DesktopContrastTest, TheFieldWithTheFocusHasAnEdgeThatShows) {
    QStyleOptionFrame field;
    field.rect = {0, 0, 40, 20};
    field.state = QStyle::State_Enabled | QStyle::State_HasFocus;
    field.lineWidth = 1;
    field.palette = GetParam().palette;
    field.palette.setColor(QPalette::Highlight, GetParam().palette.color(QPalette::Window));
    const QColor ground = GetParam().palette.color(QPalette::Window);
    const Painted painted(field.rect.size(), 1, [&](QPainter& painter) {
        painter.fillRect(field.rect, ground);
        QApplication::style()->drawPrimitive(QStyle::PE_FrameLineEdit, &field, &painter);
    });
    EXPECT_GE(contrasto(rgbOf(QColor(painted.at({0, 10}))), rgbOf(ground)), ShapeContrast);
}

TEST(LegiblePaletteTest, TheProgramsOwnColoursAreMadeLegible) {
    const QPalette palette = QApplication::palette();
    EXPECT_GE(
        contrasto(rgbOf(palette.color(QPalette::HighlightedText)), rgbOf(palette.color(QPalette::Highlight))),
        TextContrast);
}

INSTANTIATE_TEST_SUITE_P(
    Desktops, DesktopContrastTest,
    testing::Values(Desktop{"light", paletteOf(QColor(239, 239, 239), Qt::black, Qt::white)},
                    Desktop{"dark", paletteOf(QColor(49, 54, 59), QColor(239, 240, 241), QColor(35, 38, 41))},
                    Desktop{"highContrast", paletteOf(Qt::black, Qt::white, Qt::black)},
                    Desktop{"highContrastLight", paletteOf(Qt::white, Qt::black, Qt::white)}),
    testing::PrintToStringParamName());

} // namespace planner::test
